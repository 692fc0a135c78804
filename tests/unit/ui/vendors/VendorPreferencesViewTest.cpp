// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorPreferencesView.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"
#include "unit/vendors/VendorFixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorPreferencesViewTest : public VendorFixture
{
protected:
    VendorPreferencesViewTest()
    {
        theme.apply();
        makeLive(registryOf(3));
        card = std::make_unique<VendorPreferencesView>(pane, theme);
        card->show();
    }

    template <typename T>
    T *part(const char *name) const
    {
        return card->findChild<T *>(QString::fromLatin1(name));
    }

    Theme theme;
    std::unique_ptr<VendorPreferencesView> card;
};

TEST_F(VendorPreferencesViewTest, ShowsTheTextsOfThePane)
{
    settings.set(keys::vendorIDUpdatedDate, u"Nov 21, 2026, 2:37 PM"_s);
    settings.set(keys::vendorCountValue, 32530);
    pane.showStoredTexts();
    EXPECT_EQ(part<InlineLine>("updatedLabel")->text(), u"Last Updated: Nov 21, 2026, 2:37 PM"_s);
    EXPECT_TRUE(part<InlineLine>("updatedLabel")->isVisible());
    EXPECT_EQ(part<QLabel>("vendorCount")->text(), u"32530 Vendor Identifiers"_s);
    EXPECT_EQ(part<QPushButton>("downloadButton")->text(), u"Update database"_s);
}

TEST_F(VendorPreferencesViewTest, TheButtonStartsAndCancelsUnderTheTitleOfEach)
{
    count.updateVendorCount();
    scheduler.runPending();
    auto *button = part<QPushButton>("downloadButton");
    button->click();
    EXPECT_EQ(http.requests(), QList<QUrl>{registry});
    EXPECT_EQ(button->text(), u"Cancel download..."_s);
    EXPECT_EQ(button->accessibleName(), u"Cancel download..."_s);
    button->click();
    EXPECT_EQ(http.cancelled().size(), 1);
    EXPECT_EQ(button->text(), u"Update database"_s);
    EXPECT_EQ(part<InlineLine>("updatedLabel")->text(), u"Download cancelled..."_s);
}

TEST_F(VendorPreferencesViewTest, ThePreviousDatabaseIsRestoredOnceThereIsOne)
{
    auto *restore = part<QPushButton>("restoreButton");
    EXPECT_EQ(restore->text(), u"Restore previous"_s);
    EXPECT_EQ(restore->accessibleName(), restore->text());
    EXPECT_FALSE(restore->isEnabled());
    EXPECT_EQ(restore->toolTip(), u"There are no vendors from before an update"_s);
    http.serve(registry, registryOf(5));
    part<QPushButton>("downloadButton")->click();
    scheduler.runPending();
    ASSERT_TRUE(restore->isEnabled());
    EXPECT_EQ(restore->toolTip(), u"Bring back the vendors from before the last update"_s);
    auto *button = part<QPushButton>("downloadButton");
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(button->toolTip(), QString());
    restore->click();
    EXPECT_FALSE(restore->isEnabled());
    EXPECT_EQ(
        restore->toolTip(), u"The vendors from before the last update are being brought back"_s);
    EXPECT_FALSE(button->isEnabled());
    EXPECT_EQ(button->toolTip(), u"Not while the vendors from before are being brought back"_s);
    scheduler.runPending();
    EXPECT_TRUE(restore->isEnabled());
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(part<QLabel>("vendorCount")->text(), u"3 Vendor Identifiers"_s);
}

TEST_F(VendorPreferencesViewTest, TheBarFollowsTheDownload)
{
    auto *bar = part<QProgressBar>("progressBar");
    EXPECT_FALSE(bar->isVisible());
    pane.showProgress(16384, 250'000, 1'000'000);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->value() * 4, bar->maximum());
    pane.resetDownloadButton();
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(VendorPreferencesViewTest, TheBarOfADownloadOfUnknownSizeOnlyMoves)
{
    auto *bar = part<QProgressBar>("progressBar");
    pane.showProgress(16384, 250'000, 1'000'000);
    ASSERT_GT(bar->maximum(), 0);
    pane.showProgress(16384, 300'000, -1);
    ASSERT_LT(pane.state().progress, 0.0F);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->maximum(), 0);
    pane.showProgress(16384, 500'000, 1'000'000);
    EXPECT_EQ(bar->value() * 2, bar->maximum());
}

TEST_F(VendorPreferencesViewTest, MoreThanTheWholeIsAFullBar)
{
    pane.showProgress(1, 3'000'000, 1'000'000);
    EXPECT_EQ(
        part<QProgressBar>("progressBar")->value(), part<QProgressBar>("progressBar")->maximum());
}

TEST_F(VendorPreferencesViewTest, ADateThatIsNotKnownIsNotShown)
{
    pane.showStoredTexts();
    ASSERT_EQ(pane.state().updatedLabel, u"Last Updated: (null)"_s);
    EXPECT_FALSE(part<InlineLine>("updatedLabel")->isVisible());
    pane.showAdditionNoted(u"(null) (added 3 new Identifiers)"_s);
    EXPECT_FALSE(part<InlineLine>("updatedLabel")->isVisible());
    pane.showDownloadBegun();
    EXPECT_TRUE(part<InlineLine>("updatedLabel")->isVisible());
    pane.showDownloadCompleted(u"Nov 21, 2026"_s);
    EXPECT_TRUE(part<InlineLine>("updatedLabel")->isVisible());
}

TEST_F(VendorPreferencesViewTest, WhatFailedIsRedUntilSomethingElseHappens)
{
    auto *line = part<InlineLine>("updatedLabel");
    pane.showParsingFailed();
    EXPECT_EQ(line->text(), u"Parsing file failed..."_s);
    EXPECT_EQ(line->kind(), InlineLine::Kind::Danger);
    pane.showDownloadBegun();
    EXPECT_EQ(line->kind(), InlineLine::Kind::Muted);
    pane.showRestorationFailed();
    EXPECT_EQ(line->kind(), InlineLine::Kind::Danger);
}

TEST_F(VendorPreferencesViewTest, LongTextsTakeMoreLinesInsteadOfMoreWidth)
{
    constexpr int width = Theme::windowWidth - 2 * Theme::windowMargin;
    for (const char *date :
        {"(null)", "Wednesday, September 30, 2026, 12:37:59 PM (added 1 new)"}) {
        pane.showAdditionNoted(QString::fromLatin1(date) + u" (added 32530 new Identifiers)"_s);
        EXPECT_LE(card->minimumSizeHint().width(), width) << date;
    }
    pane.showDownloadBegun();
    EXPECT_LE(card->minimumSizeHint().width(), width);
}

} // namespace
} // namespace quillon::test
