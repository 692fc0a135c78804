// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// A file of lines "key=value" below lines "[section]", as the owners of interfaces have them.
class IniText
{
public:
    struct Entry
    {
        QString section;
        QString key;
        QString value; ///< without what encloses it
    };

    IniText() = default;
    /// What is no such line is left out, and so is everything after the first few thousand.
    explicit IniText(const QByteArray &text);

    const QList<Entry> &entries() const { return m_entries; }
    /// As it stands last, in any of its spellings of case; none where it does not stand. Before the
    /// first section it is in "".
    std::optional<QString> value(const QString &section, const QString &key) const;
    /// The same of one that is yes or no in whatever words; none for any other.
    std::optional<bool> truth(const QString &section, const QString &key) const;
    /// A file that is read later, and goes before.
    void append(const IniText &later) { m_entries += later.m_entries; }

private:
    QList<Entry> m_entries;
};

/// "yes", "true", "on", "1" and what they are not; none for any other word.
std::optional<bool> truthOf(const QString &word);

} // namespace quillon
