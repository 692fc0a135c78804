// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/Theme.h"

#include "fakes/QtPrinting.h"
#include "ui/theme/SymbolicIcon.h"

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

TEST_P(ThemeInEachScheme, WhatCarriesMeaningIsLegibleWithHighContrast)
{
    for (const ColorPair &pair :
        meaningfulPairs(ThemeColors::forScheme(GetParam(), Contrast::High))) {
        EXPECT_GE(contrastRatio(pair.foreground, pair.background), pair.leastContrast) << pair.use;
    }
}

TEST_P(ThemeInEachScheme, WithHighContrastEdgesAreAsDarkAsText)
{
    const auto colors = ThemeColors::forScheme(GetParam(), Contrast::High);
    EXPECT_EQ(colors.surfaceBorder, colors.text);
    EXPECT_EQ(colors.popoverBorder, colors.text);
    EXPECT_EQ(colors.controlBorder, colors.text);
    EXPECT_EQ(colors.tint, colors.window);
    EXPECT_EQ(colors.tintEdge, colors.accent);
}

TEST_P(ThemeInEachScheme, HasTheContrastThatTheDesignPromises)
{
    const ThemeColors colors = ThemeColors::forScheme(GetParam());
    struct Promise
    {
        const char *use;
        QColor foreground, background;
        double light, dark;
    };
    const Promise promises[] = {
        {"outline", colors.controlBorder, colors.surface, 3.6, 4.1},
        {"outline on the window", colors.controlBorder, colors.window, 3.3, 4.6},
        {"text on what is pressed", colors.text, colors.controlPressed, 13.5, 9.0},
        {"text", colors.text, colors.surface, 17.1, 14.4},
        {"muted", colors.mutedText, colors.surface, 6.3, 7.7},
        {"disabled", colors.disabledText, colors.disabledFill, 3.5, 4.1},
        {"on accent", colors.onAccent, colors.accent, 6.2, 6.9},
        {"ring on the window", colors.accent, colors.window, 5.6, 6.7},
        {"on tint", colors.onTint, colors.tint, 6.4, 7.7},
        {"text on tint", colors.text, colors.tint, 14.3, 11.1},
        {"muted on tint", colors.mutedText, colors.tint, 5.3, 5.9},
        {"positive", colors.positive, colors.surface, 5.7, 7.3},
        {"notice", colors.notice, colors.noticeSurface, 6.7, 9.1},
        {"danger", colors.danger, colors.dangerSurface, 5.7, 7.3},
        {"heart", colors.heart, colors.surface, 5.7, 7.5},
        {"read-me strip", colors.hintText, colors.hint, 6.0, 6.0},
    };
    for (const Promise &promise : promises) {
        const double least = GetParam() == ColorScheme::Dark ? promise.dark : promise.light;
        EXPECT_NEAR(contrastRatio(promise.foreground, promise.background), least, 0.06)
            << promise.use;
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
    EXPECT_EQ(middleOf(dot, 20), ThemeColors::forScheme(ColorScheme::Light).positive);
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

TEST(ThemeSymbolicIcons, AreDrawnOnceForEachSizeAndColor)
{
    const Theme theme;
    SymbolicIcon dot(theme, u"link-active"_s, Theme::Ink::Positive);
    const auto draw = [&dot](int size, QIcon::Mode mode) {
        return dot.pixmap(QSize(size, size), mode, QIcon::Off).cacheKey();
    };
    const qint64 first = draw(20, QIcon::Normal);
    EXPECT_EQ(draw(20, QIcon::Normal), first);
    EXPECT_NE(draw(20, QIcon::Disabled), first);
    EXPECT_EQ(dot.pixmap(QSize(40, 40), QIcon::Normal, QIcon::Off).size(), QSize(40, 40));
}

TEST(ThemeSymbolicIcons, OfAnUnknownNameAreEmpty)
{
    const Theme theme;
    const QIcon icon = theme.icon(u"no-such-icon"_s, Theme::Ink::Text);
    EXPECT_TRUE(icon.pixmap(QSize(20, 20)).isNull());
}

TEST(ThemeOfTheApplication, HasASizeForEachUseOfText)
{
    const double body = QApplication::font().pointSizeF();
    EXPECT_DOUBLE_EQ(Theme::font(Theme::Type::Title).pointSizeF(), 1.3 * body);
    EXPECT_DOUBLE_EQ(Theme::font(Theme::Type::Head).pointSizeF(), 1.1 * body);
    EXPECT_DOUBLE_EQ(Theme::font(Theme::Type::Body).pointSizeF(), body);
    EXPECT_DOUBLE_EQ(Theme::font(Theme::Type::Caption).pointSizeF(), 0.9 * body);
    EXPECT_DOUBLE_EQ(Theme::font(Theme::Type::AddressField).pointSizeF(), 1.6 * body);
    EXPECT_EQ(Theme::font(Theme::Type::Badge).weight(), QFont::DemiBold);
    EXPECT_EQ(Theme::font(Theme::Type::Address).styleHint(), QFont::Monospace);
}

TEST(ThemeOfTheApplication, ContrastIsAChangeToo)
{
    Theme theme;
    int changes = 0;
    QObject::connect(&theme, &Theme::changed, [&] { ++changes; });
    theme.setContrast(Contrast::High);
    theme.setContrast(Contrast::High);
    EXPECT_EQ(changes, 1);
    theme.setScheme(ColorScheme::Dark);
    EXPECT_EQ(theme.colors().controlBorder, theme.colors().text);
}

TEST(ThemeOfTheApplication, NothingMovesWhereNothingShall)
{
    Theme theme;
    EXPECT_EQ(theme.motion(Theme::popoverMotion), 120);
    theme.setAnimated(false);
    EXPECT_EQ(theme.motion(Theme::popoverMotion), 0);
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
