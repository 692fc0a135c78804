// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/Theme.h"

#include "fakes/QtPrinting.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::DoubleNear;
using ::testing::HasSubstr;
using ::testing::Not;

class ThemeInEachScheme : public ::testing::TestWithParam<ColorScheme>
{
};

INSTANTIATE_TEST_SUITE_P(Theme, ThemeInEachScheme,
    ::testing::Values(ColorScheme::Light, ColorScheme::Dark),
    [](const auto &scheme) { return scheme.param == ColorScheme::Dark ? "Dark" : "Light"; });

TEST_P(ThemeInEachScheme, WhatCarriesMeaningIsLegible)
{
    const auto pairs = meaningfulPairs(ThemeColors::forScheme(GetParam()));
    ASSERT_GT(pairs.size(), 20);
    for (const ColorPair &pair : pairs) {
        EXPECT_GE(contrastRatio(pair.foreground, pair.background), pair.leastContrast) << pair.use;
    }
}

TEST_P(ThemeInEachScheme, TheStatusItemIsVisibleOnEveryPanel)
{
    const Theme theme(GetParam());
    const QColor ink = theme.ink(Theme::Ink::Tray);
    EXPECT_GE(contrastRatio(ink, Qt::white), 3.0);
    EXPECT_GE(contrastRatio(ink, QColor(0x1e1e1e)), 3.0);
}

TEST_P(ThemeInEachScheme, ThePaletteSaysWhichSchemeItIs)
{
    EXPECT_EQ(schemeOf(ThemeColors::forScheme(GetParam()).palette()), GetParam());
}

TEST_P(ThemeInEachScheme, TheStyleSheetKnowsEveryNameThatItUses)
{
    const Theme theme;
    QFile file(u":/ui/theme.qss"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString sheet = Theme::styleSheet(QString::fromUtf8(file.readAll()).section(u"*/"_s, 1),
        ThemeColors::forScheme(GetParam()), GetParam());
    EXPECT_FALSE(sheet.isEmpty());
    EXPECT_THAT(sheet.toStdString(), Not(HasSubstr("@")));
}

TEST(ThemeContrast, IsThatOfTheAccessibilityGuidelines)
{
    EXPECT_THAT(contrastRatio(Qt::black, Qt::white), DoubleNear(21.0, 0.001));
    EXPECT_THAT(contrastRatio(Qt::white, Qt::white), DoubleNear(1.0, 0.001));
    EXPECT_THAT(contrastRatio(QColor(0x777777), Qt::white), DoubleNear(4.48, 0.01));
}

TEST(ThemeStyleSheet, FillsInColorsByName)
{
    const auto colors = ThemeColors::forScheme(ColorScheme::Light);
    EXPECT_EQ(Theme::styleSheet(u"a: @text; b: @mutedText"_s, colors, ColorScheme::Light),
        u"a: %1; b: %2"_s.arg(colors.text.name(), colors.mutedText.name()));
    EXPECT_EQ(Theme::styleSheet(u"@nothing"_s, colors, ColorScheme::Light), u"@nothing"_s);
}

QColor middleOf(const QIcon &icon, int size, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(size, size), 1.0, mode).toImage().pixelColor(size / 2, size / 2);
}

TEST(ThemeSymbolicIcons, AreDrawnInTheInkThatTheyWereGiven)
{
    const Theme theme;
    const QIcon dot = theme.icon(u"link-active"_s, Theme::Ink::Positive);
    EXPECT_EQ(middleOf(dot, 20), theme.colors().positive);
    EXPECT_EQ(middleOf(dot, 20, QIcon::Disabled), theme.colors().disabledText);
}

TEST(ThemeSymbolicIcons, FollowTheScheme)
{
    Theme theme;
    const QIcon dot = theme.icon(u"link-active"_s, Theme::Ink::Positive);
    theme.setScheme(ColorScheme::Dark);
    EXPECT_EQ(middleOf(dot, 20), ThemeColors::forScheme(ColorScheme::Dark).positive);
}

TEST(ThemeSymbolicIcons, AreAsSharpAsTheScreen)
{
    const Theme theme;
    const QPixmap picture = theme.icon(u"random"_s, Theme::Ink::Text).pixmap(QSize(20, 20), 2.0);
    EXPECT_EQ(picture.size(), QSize(40, 40));
    EXPECT_EQ(picture.devicePixelRatio(), 2.0);
}

TEST(ThemeSymbolicIcons, OfAnUnknownNameAreEmpty)
{
    const Theme theme;
    const QIcon icon = theme.icon(u"no-such-icon"_s, Theme::Ink::Text);
    EXPECT_TRUE(icon.pixmap(QSize(20, 20)).isNull());
}

TEST(ThemeOfTheApplication, ChangesWithTheDesktop)
{
    Theme theme;
    theme.apply();
    int changes = 0;
    QObject::connect(&theme, &Theme::changed, [&] { ++changes; });
    theme.setScheme(ColorScheme::Dark);
    theme.setScheme(ColorScheme::Dark);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(schemeOf(QApplication::palette()), ColorScheme::Dark);
    theme.setScheme(ColorScheme::Light);
    EXPECT_EQ(schemeOf(QApplication::palette()), ColorScheme::Light);
}

} // namespace
} // namespace quillon::test
