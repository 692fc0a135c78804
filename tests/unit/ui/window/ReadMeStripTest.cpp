// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/ReadMeStrip.h"

#include "unit/ui/window/MainWindowFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ReadMeStripTest : public MainWindowFixture
{
};

TEST_F(ReadMeStripTest, TheHintIsDrawnInTheModelsStyle)
{
    readMe.setHelperInstalled(false);
    const auto *hint = named<QPushButton>("Helper hint");
    const auto look = ReadMeModel::style();
    EXPECT_EQ(look.pointSize, 14);
    EXPECT_EQ(hint->font().pointSize(), look.pointSize);
    EXPECT_TRUE(hint->font().bold());
    const QColor color = hint->palette().color(QPalette::ButtonText);
    EXPECT_NEAR(color.redF(), look.red, 0.005);
    EXPECT_NEAR(color.greenF(), look.green, 0.005);
    EXPECT_NEAR(color.blueF(), look.blue, 0.005);
    EXPECT_NEAR(color.alphaF(), look.alpha, 0.005);
}

TEST_F(ReadMeStripTest, WithoutTheHelperItOffersToInstallIt)
{
    auto *install = view->findChild<QPushButton *>(u"installButton"_s);
    EXPECT_EQ(install->accessibleName(), u"Install helper"_s);
    EXPECT_FALSE(install->isVisible());
    window.setHelperInstalled(false);
    readMe.setHelperInstalled(false);
    EXPECT_TRUE(install->isVisible());
    EXPECT_TRUE(named<QPushButton>("Helper hint")->isVisible());
    EXPECT_FALSE(named<QLineEdit>("Address")->isEnabled());
    install->click();
    EXPECT_TRUE(machine.helper.journal().contains(u"install"_s));
    readMe.setInstalling(true);
    EXPECT_EQ(install->text(), u"Installing…"_s);
    machine.helper.clearJournal();
    install->click();
    scheduler.runPending();
    EXPECT_FALSE(machine.helper.journal().contains(u"install"_s)) << "once is enough";
}

TEST_F(ReadMeStripTest, TheHelperIsExplainedOnDemand)
{
    readMe.setHelperInstalled(false);
    for (int time = 0; time < 2; ++time) {
        named<QPushButton>("Helper hint")->click();
        const auto *explanation = named<QLabel>("About the helper");
        EXPECT_TRUE(explanation->isVisible());
        EXPECT_EQ(explanation->text(), ReadMeModel::text());
        named<QPushButton>("Helper hint")->click();
        EXPECT_FALSE(explanation->isVisible());
    }
}

} // namespace
} // namespace quillon::test
