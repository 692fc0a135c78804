// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/ChangedTint.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>
#include <QLineEdit>
#include <QVariantAnimation>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ChangedTintTest : public WidgetFixture
{
protected:
    ChangedTintTest()
    {
        field->setProperty("look", u"field"_s);
        column->addWidget(field);
        show();
        tint = new ChangedTint(theme, *field);
    }
    QColor ground() const
    {
        return field->grab().toImage().pixelColor(field->width() / 2, field->height() / 2);
    }

    QLineEdit *field = new QLineEdit;
    ChangedTint *tint = nullptr;
};

TEST_F(ChangedTintTest, FadesOverFourHundredMilliseconds)
{
    for (const auto scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        theme.setScheme(scheme);
        theme.setAnimated(true);
        const QColor before = ground();
        tint->flash();
        auto *motion = tint->findChild<QVariantAnimation *>();
        motion->pause();
        EXPECT_EQ(motion->duration(), 400);
        EXPECT_EQ(ground(), theme.colors().tint);
        motion->setCurrentTime(200);
        EXPECT_NE(ground(), theme.colors().tint);
        EXPECT_NE(ground(), before);
        motion->resume();
        motion->setCurrentTime(400);
        EXPECT_TRUE(tint->isHidden());
        EXPECT_EQ(ground(), before);
    }
}

TEST_F(ChangedTintTest, WithoutMotionThereIsNone)
{
    tint->flash();
    EXPECT_TRUE(tint->isHidden());
}

} // namespace
} // namespace quillon::test
