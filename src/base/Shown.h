// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

namespace quillon {

/// The state of a model, a plain value with ==, that somebody mirrors: whoever mirrors it is told
/// of every edit that changes it, and of no other.
template <typename State>
class Shown
{
public:
    explicit Shown(std::function<void()> tellChanged)
        : m_tellChanged(std::move(tellChanged))
    {
    }

    const State &get() const { return m_state; }
    const State *operator->() const { return &m_state; }

    /// `edit` receives a copy by reference. An edit from within the notification is a change of its
    /// own.
    template <typename Edit>
    void update(Edit edit)
    {
        State next = m_state;
        edit(next);
        if (next != m_state) {
            m_state = std::move(next);
            m_tellChanged();
        }
    }

private:
    State m_state;
    std::function<void()> m_tellChanged;
};

} // namespace quillon
