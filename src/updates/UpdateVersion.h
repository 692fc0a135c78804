// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <compare>
#include <cstdint>
#include <optional>

namespace quillon {

/// The version of a release: one to four numbers with dots between them. "4.1" is "4.1.0".
class UpdateVersion
{
public:
    /// Strict, so that a version has few spellings: numbers of at most nine digits, no zero in
    /// front of another digit, nothing else (no "v", no "-beta").
    static std::optional<UpdateVersion> fromText(QStringView text);

    /// As it was written.
    const QString &text() const { return m_text; }

    bool operator==(const UpdateVersion &other) const { return m_numbers == other.m_numbers; }
    std::strong_ordering operator<=>(const UpdateVersion &other) const
    {
        return m_numbers <=> other.m_numbers;
    }

private:
    static constexpr std::size_t mostNumbers = 4;

    QString m_text;
    std::array<std::uint32_t, mostNumbers> m_numbers{};
};

} // namespace quillon
