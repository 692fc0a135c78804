// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/AutostartEntry.h"

#include <QHash>
#include <QList>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString maskKey = u"X-Quillon-Mask"_s;

/// The keys of the first group with its name, without those for one language.
QHash<QString, QString> keysOf(const QString &text)
{
    QHash<QString, QString> keys;
    bool isInside = false;
    bool wasInside = false;
    const auto lines = text.split(u'\n');
    for (const QString &each : lines) {
        const QString line = each.trimmed();
        if (line.startsWith(u'[')) {
            isInside = !wasInside && line == "[Desktop Entry]"_L1;
            wasInside = wasInside || isInside;
        } else if (isInside && !line.startsWith(u'#') && line.contains(u'=')) {
            keys.insert(line.section(u'=', 0, 0).trimmed(), line.section(u'=', 1).trimmed());
        }
    }
    return keys;
}

/// The escapes of a value that is a string.
QString unescaped(const QString &value)
{
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value.at(i) != u'\\' || i + 1 == value.size()) {
            text += value.at(i);
            continue;
        }
        ++i;
        switch (value.at(i).unicode()) {
        case u's':
            text += u' ';
            break;
        case u'n':
            text += u'\n';
            break;
        case u't':
            text += u'\t';
            break;
        case u'r':
            text += u'\r';
            break;
        default:
            text += value.at(i);
        }
    }
    return text;
}

bool needsQuotes(QChar character)
{
    return u" \t\n\"'\\><~|&;$*?#()`"_s.contains(character);
}

/// The only word of a command; none for a command of several, or of none.
std::optional<QString> onlyWord(const QString &command)
{
    QString word;
    const bool isQuoted = command.startsWith(u'"');
    const qsizetype end = isQuoted ? command.size() - 1 : command.size();
    if (isQuoted && (command.size() < 2 || !command.endsWith(u'"'))) {
        return std::nullopt;
    }
    for (qsizetype i = isQuoted ? 1 : 0; i < end; ++i) {
        const QChar character = command.at(i);
        const bool isEscape = character == u'\\' && isQuoted && i + 1 < end;
        if (isEscape) {
            word += command.at(++i);
        } else if (character == u'%') {
            // "%%" is one; any other is a place for an argument.
            if (i + 1 >= end || command.at(i + 1) != u'%') {
                return std::nullopt;
            }
            word += command.at(++i);
        } else if (isQuoted ? character == u'"' : needsQuotes(character)) {
            return std::nullopt;
        } else {
            word += character;
        }
    }
    return word.isEmpty() ? std::nullopt : std::optional(word);
}

QStringList namesIn(const QString &list)
{
    QStringList names;
    const auto parts = list.split(u';', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        names.append(part.trimmed());
    }
    return names;
}

QString escaped(QString value)
{
    value.replace(u'\\', "\\\\"_L1);
    value.replace(u'\n', "\\n"_L1);
    value.replace(u'\t', "\\t"_L1);
    value.replace(u'\r', "\\r"_L1);
    return value;
}

QString commandFor(const QString &program)
{
    QString word;
    bool isQuoted = false;
    for (const QChar character : program) {
        isQuoted = isQuoted || needsQuotes(character);
        if (u"\"`$\\"_s.contains(character)) {
            word += u'\\';
        }
        word += character;
        if (character == u'%') {
            word += u'%';
        }
    }
    return isQuoted ? u'"' + word + u'"' : word;
}

} // namespace

AutostartEntry AutostartEntry::read(const QByteArray &content)
{
    const auto keys = keysOf(QString::fromUtf8(content));
    const auto isSet = [&keys](const QString &key, const QString &value) {
        return keys.value(key).compare(value, Qt::CaseInsensitive) == 0;
    };
    const QString command = unescaped(keys.value(u"Exec"_s));
    AutostartEntry entry;
    entry.command = command;
    entry.program = onlyWord(command).value_or(QString());
    entry.isSwitchedOff =
        isSet(u"Hidden"_s, u"true"_s) || isSet(u"X-GNOME-Autostart-enabled"_s, u"false"_s);
    entry.isMask = entry.isSwitchedOff && isSet(maskKey, u"true"_s);
    if (keys.contains(u"OnlyShowIn"_s)) {
        entry.onlyShownIn = namesIn(keys.value(u"OnlyShowIn"_s));
    }
    entry.notShownIn = namesIn(keys.value(u"NotShowIn"_s));
    return entry;
}

bool AutostartEntry::isFor(const QStringList &names) const
{
    const auto isOneOf = [&names](const QString &name) { return names.contains(name); };
    return (!onlyShownIn || std::ranges::any_of(*onlyShownIn, isOneOf)) &&
           std::ranges::none_of(notShownIn, isOneOf);
}

QByteArray AutostartEntry::text(const QString &program, const QString &comment)
{
    const QStringList lines{u"[Desktop Entry]"_s, u"Type=Application"_s, u"Name=Quillon"_s,
        u"Comment="_s + escaped(comment), u"Exec="_s + escaped(commandFor(program)),
        u"TryExec="_s + escaped(program), u"Icon=com.orvandel.Quillon4"_s, u"NoDisplay=true"_s,
        u"X-GNOME-Autostart-enabled=true"_s, QString()};
    return lines.join(u'\n').toUtf8();
}

QByteArray AutostartEntry::mask()
{
    const QStringList lines{u"[Desktop Entry]"_s, u"Type=Application"_s, u"Name=Quillon"_s,
        u"Hidden=true"_s, maskKey + u"=true"_s, QString()};
    return lines.join(u'\n').toUtf8();
}

} // namespace quillon
