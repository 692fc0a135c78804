// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/KeyCombination.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

QString normalForm(const QString &text)
{
    const auto combination = KeyCombination::fromText(text);
    return combination ? combination->toText() : u"none"_s;
}

TEST(KeyCombination, IsReadAsItIsWritten)
{
    for (const QString &text :
        {u"Ctrl+Alt+M"_s, u"Meta+F5"_s, u"F35"_s, u"Ctrl+Alt+Shift+Meta+Space"_s, u"Ctrl++"_s,
            u"Ctrl+Shift++"_s, u"Alt+-"_s, u"Ctrl+1"_s, u"Ctrl+\u00C4"_s, u"Alt+PgDown"_s}) {
        EXPECT_EQ(normalForm(text), text);
    }
}

TEST(KeyCombination, LettersAndBlanksDoNotMatter)
{
    EXPECT_EQ(normalForm(u" ctrl + ALT+m "_s), u"Ctrl+Alt+M"_s);
    EXPECT_EQ(normalForm(u"shift+ctrl+f5"_s), u"Ctrl+Shift+F5"_s);
    EXPECT_EQ(normalForm(u"ctrl+SPACE"_s), u"Ctrl+Space"_s);
}

TEST(KeyCombination, AKeyThatEverybodyTypesIsNone)
{
    for (const QString &text : {u"M"_s, u"Shift+M"_s, u"Space"_s, u"Return"_s, u"Shift+Tab"_s}) {
        EXPECT_EQ(normalForm(text), u"none"_s) << text.toStdString();
    }
}

TEST(KeyCombination, WhatIsNoCombinationIsNone)
{
    for (const QString &text : {QString(), u"+"_s, u"++"_s, u"Ctrl"_s, u"Ctrl+"_s, u"Ctrl+Alt"_s,
             u"Hyper+M"_s, u"Ctrl+MM"_s, u"F36"_s, u"F0"_s, u"Ctrl+F"_s + QString(1000, u'1'),
             u"Ctrl+\n"_s, u"+Ctrl+M"_s, u"Ctrl+\u2603"_s}) {
        EXPECT_EQ(normalForm(text), u"none"_s) << text.toStdString();
    }
}

TEST(KeyCombination, KeysHaveTheSymbolsOfTheWindowSystem)
{
    const auto expectSymbol = [](const QString &key, quint32 number, const QString &name) {
        const auto symbol = symbolOf(key);
        ASSERT_TRUE(symbol) << key.toStdString();
        EXPECT_EQ(symbol->number, number) << key.toStdString();
        EXPECT_EQ(symbol->name, name);
    };
    expectSymbol(u"M"_s, 0x6d, u"m"_s);
    expectSymbol(u"1"_s, 0x31, u"1"_s);
    expectSymbol(u"F1"_s, 0xffbe, u"F1"_s);
    expectSymbol(u"F35"_s, 0xffe0, u"F35"_s);
    expectSymbol(u"Space"_s, 0x20, u"space"_s);
    expectSymbol(u"+"_s, 0x2b, u"plus"_s);
    expectSymbol(u"\u00C4"_s, 0xe4, u"\u00E4"_s);
    expectSymbol(u"\u042F"_s, 0x0100'044f, u"U44F"_s);
    EXPECT_FALSE(symbolOf(u"F36"_s));
}

} // namespace
} // namespace quillon::test
