// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/KeyCombination.h"

#include <QStringList>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

struct NamedKey
{
    QLatin1StringView name;   ///< ours
    QLatin1StringView symbol; ///< of the window system
    quint32 number;
};

constexpr NamedKey namedKeys[] = {
    {"Space"_L1, "space"_L1, 0x0020},
    {"Backspace"_L1, "BackSpace"_L1, 0xff08},
    {"Tab"_L1, "Tab"_L1, 0xff09},
    {"Return"_L1, "Return"_L1, 0xff0d},
    {"Pause"_L1, "Pause"_L1, 0xff13},
    {"Esc"_L1, "Escape"_L1, 0xff1b},
    {"Home"_L1, "Home"_L1, 0xff50},
    {"Left"_L1, "Left"_L1, 0xff51},
    {"Up"_L1, "Up"_L1, 0xff52},
    {"Right"_L1, "Right"_L1, 0xff53},
    {"Down"_L1, "Down"_L1, 0xff54},
    {"PgUp"_L1, "Prior"_L1, 0xff55},
    {"PgDown"_L1, "Next"_L1, 0xff56},
    {"End"_L1, "End"_L1, 0xff57},
    {"Print"_L1, "Print"_L1, 0xff61},
    {"Ins"_L1, "Insert"_L1, 0xff63},
    {"Menu"_L1, "Menu"_L1, 0xff67},
    {"Del"_L1, "Delete"_L1, 0xffff},
    {"!"_L1, "exclam"_L1, 0x21},
    {"\""_L1, "quotedbl"_L1, 0x22},
    {"#"_L1, "numbersign"_L1, 0x23},
    {"$"_L1, "dollar"_L1, 0x24},
    {"%"_L1, "percent"_L1, 0x25},
    {"&"_L1, "ampersand"_L1, 0x26},
    {"'"_L1, "apostrophe"_L1, 0x27},
    {"("_L1, "parenleft"_L1, 0x28},
    {")"_L1, "parenright"_L1, 0x29},
    {"*"_L1, "asterisk"_L1, 0x2a},
    {"+"_L1, "plus"_L1, 0x2b},
    {","_L1, "comma"_L1, 0x2c},
    {"-"_L1, "minus"_L1, 0x2d},
    {"."_L1, "period"_L1, 0x2e},
    {"/"_L1, "slash"_L1, 0x2f},
    {":"_L1, "colon"_L1, 0x3a},
    {";"_L1, "semicolon"_L1, 0x3b},
    {"<"_L1, "less"_L1, 0x3c},
    {"="_L1, "equal"_L1, 0x3d},
    {">"_L1, "greater"_L1, 0x3e},
    {"?"_L1, "question"_L1, 0x3f},
    {"@"_L1, "at"_L1, 0x40},
    {"["_L1, "bracketleft"_L1, 0x5b},
    {"\\"_L1, "backslash"_L1, 0x5c},
    {"]"_L1, "bracketright"_L1, 0x5d},
    {"^"_L1, "asciicircum"_L1, 0x5e},
    {"_"_L1, "underscore"_L1, 0x5f},
    {"`"_L1, "grave"_L1, 0x60},
    {"{"_L1, "braceleft"_L1, 0x7b},
    {"|"_L1, "bar"_L1, 0x7c},
    {"}"_L1, "braceright"_L1, 0x7d},
    {"~"_L1, "asciitilde"_L1, 0x7e},
};

constexpr quint32 firstFunctionKey = 0xffbe;
constexpr int functionKeys = 35;
/// Symbols of characters beyond Latin 1 are the character's number above this.
constexpr quint32 unicodeSymbols = 0x0100'0000;
constexpr char16_t lastOfLatin1 = 0xff;

/// 1 to 35, and 0 for any other key.
int functionKeyNumber(const QString &key)
{
    bool isNumber = false;
    const int number = key.startsWith(u'F') ? key.mid(1).toInt(&isNumber) : 0;
    return isNumber && number >= 1 && number <= functionKeys ? number : 0;
}

const NamedKey *namedKey(const QString &key)
{
    for (const NamedKey &named : namedKeys) {
        if (key.compare(named.name, Qt::CaseInsensitive) == 0) {
            return &named;
        }
    }
    return nullptr;
}

/// The key as we write it, "" for what is no key.
QString normalized(const QString &key)
{
    if (const NamedKey *named = namedKey(key)) {
        return named->name;
    }
    const QString upper = key.toUpper();
    if (functionKeyNumber(upper) != 0) {
        return u'F' + QString::number(functionKeyNumber(upper));
    }
    return key.size() == 1 && key.front().isLetterOrNumber() ? upper.left(1) : QString();
}

bool setModifier(KeyCombination &combination, const QString &name)
{
    const QString known = name.trimmed().toLower();
    if (known == u"ctrl"_s) {
        combination.control = true;
    } else if (known == u"alt"_s) {
        combination.alt = true;
    } else if (known == u"shift"_s) {
        combination.shift = true;
    } else if (known == u"meta"_s) {
        combination.meta = true;
    } else {
        return false;
    }
    return true;
}

} // namespace

std::optional<KeyCombination> KeyCombination::fromText(const QString &text)
{
    const QString trimmed = text.trimmed();
    // The last sign is the key, also when it is the one that stands between the others.
    const auto separator = trimmed.lastIndexOf(u'+', -2);
    KeyCombination combination;
    const QStringList modifiers =
        separator < 0 ? QStringList() : trimmed.left(separator).split(u'+');
    for (const QString &modifier : modifiers) {
        if (!setModifier(combination, modifier)) {
            return std::nullopt;
        }
    }
    combination.key = normalized(trimmed.mid(separator + 1).trimmed());
    const bool isSafe = combination.control || combination.alt || combination.meta ||
                        functionKeyNumber(combination.key) != 0;
    return !combination.key.isEmpty() && isSafe ? std::optional(combination) : std::nullopt;
}

QString KeyCombination::toText() const
{
    QStringList parts;
    if (control) {
        parts << u"Ctrl"_s;
    }
    if (alt) {
        parts << u"Alt"_s;
    }
    if (shift) {
        parts << u"Shift"_s;
    }
    if (meta) {
        parts << u"Meta"_s;
    }
    parts << key;
    return parts.join(u'+');
}

std::optional<KeySymbol> symbolOf(const QString &key)
{
    if (const NamedKey *named = namedKey(key)) {
        return KeySymbol{named->number, named->symbol};
    }
    if (const int number = functionKeyNumber(key)) {
        return KeySymbol{firstFunctionKey + static_cast<quint32>(number) - 1, key};
    }
    if (key.size() != 1) {
        return std::nullopt;
    }
    const char16_t character = key.front().toLower().unicode();
    if (character <= lastOfLatin1) {
        return KeySymbol{character, QString(QChar(character))};
    }
    return KeySymbol{unicodeSymbols + character, u'U' + QString::number(character, 16).toUpper()};
}

} // namespace quillon
