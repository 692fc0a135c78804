// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <utility>
#include <variant>

namespace quillon {

/// A value or the Error that prevented it.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_state(std::move(value))
    {
    }
    Result(Error error)
        : m_state(std::move(error))
    {
    }

    explicit operator bool() const { return std::holds_alternative<T>(m_state); }
    const T &value() const & { return std::get<T>(m_state); }
    T &value() & { return std::get<T>(m_state); }
    // By value, so that a loop over a passing result's value does not outlive it.
    T value() && { return std::get<T>(std::move(m_state)); }
    const Error &error() const & { return std::get<Error>(m_state); }
    Error error() && { return std::get<Error>(std::move(m_state)); }

private:
    std::variant<T, Error> m_state;
};

} // namespace quillon
