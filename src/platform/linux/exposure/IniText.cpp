// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/IniText.h"

#include <QStringList>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostEntries = 4000;

QString withoutQuotes(const QString &value)
{
    const bool isQuoted = value.size() > 1 && value.front() == u'"' && value.back() == u'"';
    return isQuoted ? value.sliced(1, value.size() - 2) : value;
}

} // namespace

IniText::IniText(const QByteArray &text)
{
    QString section;
    const auto lines = QString::fromUtf8(text).split(u'\n');
    for (const QString &whole : lines) {
        const QString line = whole.trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            section = line.sliced(1, line.size() - 2);
        } else if (equals > 0 && !line.startsWith(u'#') && !line.startsWith(u';')) {
            m_entries.append({section, line.first(equals).trimmed(),
                withoutQuotes(line.sliced(equals + 1).trimmed())});
        }
        if (m_entries.size() >= mostEntries) {
            return;
        }
    }
}

std::optional<QString> IniText::value(const QString &section, const QString &key) const
{
    const auto found = std::find_if(m_entries.crbegin(), m_entries.crend(), [&](const Entry &one) {
        return one.section == section && one.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    return found == m_entries.crend() ? std::nullopt : std::optional(found->value);
}

std::optional<bool> IniText::truth(const QString &section, const QString &key) const
{
    const auto word = value(section, key);
    return word ? truthOf(*word) : std::nullopt;
}

std::optional<bool> truthOf(const QString &word)
{
    static const QStringList yes = {u"yes"_s, u"true"_s, u"on"_s, u"1"_s, u"y"_s, u"t"_s};
    static const QStringList no = {u"no"_s, u"false"_s, u"off"_s, u"0"_s, u"n"_s, u"f"_s};
    if (yes.contains(word, Qt::CaseInsensitive)) {
        return true;
    }
    return no.contains(word, Qt::CaseInsensitive) ? std::optional(false) : std::nullopt;
}

} // namespace quillon
