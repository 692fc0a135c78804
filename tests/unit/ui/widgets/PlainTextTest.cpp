// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PlainText.h"

#include "fakes/QtPrinting.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTextDocument>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

QString readAsHtml(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText();
}

TEST(PlainText, ALineLeavesOrdinaryTextsAlone)
{
    for (const QString &text : {QString(), u"Ethernet"_s, u"Société <Générale> & Co."_s, u"שלום"_s,
             u"日本電気"_s, u"😀"_s, QString(120, u'x')}) {
        EXPECT_EQ(plainLine(text), text);
        EXPECT_EQ(plainParagraphs(text), text);
    }
}

TEST(PlainText, ALineHasNoControlCharacters)
{
    EXPECT_EQ(
        plainLine(u"a\tb\nc\rd\u0000e\u007Ff\u0085g\u2028h\u2029i"_s), u"a b c d e f g h i"_s);
    EXPECT_EQ(plainParagraphs(u"a\nb\tc\u2028d"_s), u"a\nb c d"_s);
}

TEST(PlainText, NothingTurnsTheTextAroundIt)
{
    for (const char16_t code : u"\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069") {
        if (code != 0) {
            EXPECT_EQ(plainLine(QString(QChar(code)) + u'x'), u"\uFFFDx"_s);
            EXPECT_EQ(plainParagraphs(QString(QChar(code)) + u'x'), u"\uFFFDx"_s);
            EXPECT_EQ(plainToolTip(QString(QChar(code)) + u'x'), u"\uFFFDx"_s);
        }
    }
}

TEST(PlainText, AnIsolateThatEndsTurnsNothingRoundAndStays)
{
    const QString sentence = u"عنوان \u206800:ab\u2069، \u2068\u2068a\u2069\u2069."_s;
    EXPECT_EQ(plainLine(sentence), sentence);
    EXPECT_EQ(plainLine(plainLine(sentence)), sentence);
    EXPECT_EQ(plainParagraphs(sentence), sentence);
    EXPECT_EQ(plainToolTip(sentence), sentence);
    EXPECT_EQ(plainLine(u"\u2068a\u2069\u2069 \u2068\u202Eb\u2069"_s),
        u"\u2068a\u2069\uFFFD \u2068\uFFFDb\u2069"_s)
        << "nobody ends another's isolate unseen";
}

TEST(PlainText, WhatIsCutHasNoHalfIsolates)
{
    const QString value(130, u'x');
    const QString line = plainLine(u"ع \u2068"_s + value + u"\u2069 ع"_s);
    EXPECT_EQ(line, u"ع "_s + QString(116, u'x') + u'…');
    EXPECT_EQ(plainLine(line), line);
    EXPECT_FALSE(plainEntry(u"\u2068"_s + value + u"\u2069 ع"_s).contains(u'\u2069'));
    EXPECT_EQ(plainToolTip(u"\u2068"_s + QString(1000, u'x')),
        plainToolTip(u"\uFFFD"_s + QString(1000, u'x')))
        << "what began as a half is still seen";
}

TEST(PlainText, LongTextsAreCutBetweenCharacters)
{
    EXPECT_EQ(plainLine(QString(121, u'x')), QString(119, u'x') + u'…');
    EXPECT_EQ(plainParagraphs(QString(2001, u'x')), QString(1999, u'x') + u'…');
    EXPECT_EQ(plainLine(QString(118, u'x') + u"😀😀"_s), QString(118, u'x') + u'…');
}

TEST(PlainText, AToolTipThatIsNoHtmlIsTheTextItself)
{
    for (const QString &text : {QString(), u"Appian (00000A)"_s, u"AT&T & Co"_s, u"a < b"_s,
             u"1 <2>"_s, QString(160, u'x')}) {
        EXPECT_EQ(plainToolTip(text), text);
    }
}

TEST(PlainText, AToolTipThatLooksLikeHtmlReadsAsItIsWritten)
{
    for (const QString &text : {u"<b>x</b>"_s, u"  <img src='/x'>"_s, u"&lt;b>"_s,
             u"a <i>b</i>  \"c\" & d"_s, u"a < b > c"_s, u"<p></p><img src='/x'>"_s}) {
        const QString tip = plainToolTip(text);
        EXPECT_NE(tip, text);
        ASSERT_TRUE(Qt::mightBeRichText(tip));
        EXPECT_EQ(readAsHtml(tip), text);
    }
}

TEST(PlainText, OfAnEntryThatIsTooLongTheMiddleIsLeftOut)
{
    EXPECT_EQ(plainEntry(u"Two\nLines \u202E(00000F)"_s), u"Two Lines \uFFFD(00000F)"_s);
    EXPECT_EQ(plainEntry(QString(120, u'x')), QString(120, u'x'));
    const QString longName = plainEntry(QString(4096, u'x') + u" (00000F)"_s);
    EXPECT_EQ(longName, QString(95, u'x') + u'…' + QString(15, u'x') + u" (00000F)"_s);
    for (const QString &shift : {QString(), u"x"_s}) {
        const QString pairs = plainEntry(shift + u"\U0001F600"_s.repeated(100) + shift);
        EXPECT_LE(pairs.size(), 120);
        EXPECT_EQ(QString::fromUtf8(pairs.toUtf8()), pairs) << "a pair was cut";
        EXPECT_FALSE(pairs.contains(QChar::ReplacementCharacter));
    }
}

TEST(PlainText, ALongToolTipIsBrokenIntoLines)
{
    const QString tip = plainToolTip(u"word "_s.repeated(400));
    ASSERT_TRUE(Qt::mightBeRichText(tip));
    EXPECT_EQ(readAsHtml(tip).size(), 1000);
}

TEST(PlainText, ALabelShowsALineAndSaysItWhole)
{
    const std::unique_ptr<QLabel> label(plainLabel(u"<b>x</b>"_s));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), u"<b>x</b>"_s);
    showLine(*label, u"AT&T\n<b>"_s);
    EXPECT_EQ(label->text(), u"AT&T <b>"_s);
    EXPECT_EQ(label->accessibleName(), u"AT&T <b>"_s);
    const QString name = u"a long name of a network interface"_s;
    showLine(*label, name, 60);
    EXPECT_TRUE(label->text().endsWith(u'…'));
    EXPECT_LE(label->sizeHint().width(), 70);
    EXPECT_EQ(label->accessibleName(), name);
}

TEST(PlainText, InAMirroredWindowALatinNameStandsBesideTheOthers)
{
    const auto blackOf = [](const QString &text) {
        const std::unique_ptr<QLabel> label(plainLabel(text));
        label->resize(300, 30);
        const QImage picture = label->grab().toImage();
        const QRgb ground = picture.pixel(0, 0);
        QRect ink;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixel(x, y) != ground) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    };
    EXPECT_LT(blackOf(u"Harbor"_s).right(), 150);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(blackOf(u"Harbor"_s).left(), 150);
    EXPECT_GT(blackOf(u"شبكة"_s).left(), 150);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(PlainText, LongWordsMayBeBrokenAndAreSaidWhole)
{
    const std::unique_ptr<QLabel> label(plainLabel());
    label->setWordWrap(true);
    const QString ordinary = u"Forschungsgesellschaft mbH, Köln\nGermany"_s;
    showBroken(*label, ordinary);
    EXPECT_EQ(label->text(), ordinary);
    const QString word(500, u'W');
    showBroken(*label, u"a "_s + word + u"\nb"_s);
    EXPECT_EQ(label->accessibleName(), u"a "_s + word + u"\nb"_s);
    EXPECT_LT(label->minimumSizeHint().width(), 100);
    const QString faces = u"👩‍🚀👩‍🚀👩‍🚀👩‍🚀👩‍🚀👩‍🚀"_s;
    ASSERT_GT(faces.size(), 24);
    showBroken(*label, faces);
    EXPECT_TRUE(label->text().startsWith(u"👩‍🚀\u200B"_s)) << "never within a character";
}

} // namespace
} // namespace quillon::test
