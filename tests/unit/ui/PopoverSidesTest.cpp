// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/Features.h"
#include "face/FaceProgram.h"
#include "ui/widgets/Popover.h"

#include <QAbstractButton>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Where the popovers of the window open, where there is room.
class PopoverSidesTest : public ::testing::Test
{
protected:
    /// Opens the one of that button and gives where its body and the button are on the screen.
    std::pair<QRect, QRect> places(const QString &name)
    {
        FaceProgram::part<QWidget>(u"windowView"_s).move(-150, 0);
        auto &button = FaceProgram::part<QAbstractButton>(name);
        button.click();
        program.settle();
        const auto *popover = qobject_cast<Popover *>(QApplication::activePopupWidget());
        EXPECT_NE(popover, nullptr) << name.toStdString();
        if (popover == nullptr) {
            return {};
        }
        const QRect content(
            popover->content()->mapToGlobal(QPoint(0, 0)), popover->content()->size());
        const QRect anchor(button.mapToGlobal(QPoint(0, 0)), button.size());
        button.click();
        program.settle();
        return {content, anchor};
    }

    FaceProgram program{{.scheme = ColorScheme::Light, .isStill = true}};
};

TEST_F(PopoverSidesTest, ThoseOfTheRowsLieRightOfThem)
{
    program.start();
    for (const auto &name : {u"hardwareButton"_s, u"softwareButton"_s, u"vendorButton"_s,
             u"networkButton"_s, u"rulesButton"_s}) {
        const auto [popover, row] = places(name);
        EXPECT_GT(popover.left(), row.right()) << name.toStdString();
    }
}

TEST_F(PopoverSidesTest, ThatOfTheHintLiesBelowIt)
{
    program.machine.helper.installed = false;
    program.start();
    const auto [popover, hint] = places(u"readMeLabel"_s);
    EXPECT_GT(popover.top(), hint.bottom());
}

} // namespace
} // namespace quillon::test
