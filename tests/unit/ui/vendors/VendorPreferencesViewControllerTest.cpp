// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorPreferencesViewController.h"

#include "ui/theme/Theme.h"
#include "unit/vendors/VendorFixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorPreferencesViewControllerTest : public VendorFixture
{
protected:
    VendorPreferencesViewControllerTest()
    {
        theme.apply();
        makeLive(registryOf(3));
        card = std::make_unique<VendorPreferencesViewController>(pane, theme);
        card->show();
    }

    template <typename T>
    T *part(const char *name) const
    {
        return card->findChild<T *>(QString::fromLatin1(name));
    }
    void unfold() { part<QToolButton>("vendorDataTitle")->click(); }

    Theme theme;
    std::unique_ptr<VendorPreferencesViewController> card;
};

TEST_F(VendorPreferencesViewControllerTest, IsFoldedUntilItsTitleIsChosen)
{
    auto *title = part<QToolButton>("vendorDataTitle");
    EXPECT_EQ(title->text(), u"Vendor Data"_s);
    EXPECT_EQ(title->accessibleDescription(), u"Folded"_s);
    EXPECT_FALSE(part<QPushButton>("downloadButton")->isVisible());
    title->click();
    EXPECT_TRUE(part<QPushButton>("downloadButton")->isVisible());
    EXPECT_EQ(title->accessibleDescription(), u"Unfolded"_s);
    title->click();
    EXPECT_FALSE(part<QPushButton>("downloadButton")->isVisible());
}

TEST_F(VendorPreferencesViewControllerTest, ShowsTheTextsOfThePane)
{
    settings.set(keys::vendorIDUpdatedDate, u"Nov 21, 2026, 2:37 PM"_s);
    settings.set(keys::vendorCountValue, 32530);
    pane.showStoredTexts();
    EXPECT_EQ(part<QLabel>("updatedLabel")->text(), u"Last Updated: Nov 21, 2026, 2:37 PM"_s);
    EXPECT_EQ(part<QLabel>("updatedLabel")->accessibleName(), part<QLabel>("updatedLabel")->text());
    EXPECT_EQ(part<QLabel>("vendorCount")->text(), u"32530 Vendor Identifiers"_s);
    EXPECT_EQ(part<QPushButton>("downloadButton")->text(), u"Update database"_s);
}

TEST_F(VendorPreferencesViewControllerTest, TheButtonStartsAndCancelsUnderTheTitleOfEach)
{
    unfold();
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
    EXPECT_EQ(part<QLabel>("updatedLabel")->text(), u"Download cancelled..."_s);
}

TEST_F(VendorPreferencesViewControllerTest, ThePreviousDatabaseIsRestoredOnceThereIsOne)
{
    unfold();
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

TEST_F(VendorPreferencesViewControllerTest, TheBarFollowsTheDownload)
{
    unfold();
    auto *bar = part<QProgressBar>("progressBar");
    EXPECT_FALSE(bar->isVisible());
    pane.showProgress(16384, 250'000, 1'000'000);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->value() * 4, bar->maximum());
    pane.resetDownloadButton();
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(VendorPreferencesViewControllerTest, ADownloadOfUnknownSizeHasAnEmptyBar)
{
    unfold();
    pane.showProgress(16384, 250'000, 1'000'000);
    pane.showProgress(16384, 300'000, -1);
    ASSERT_LT(pane.state().progress, 0.0F);
    EXPECT_TRUE(part<QProgressBar>("progressBar")->isVisible());
    EXPECT_EQ(part<QProgressBar>("progressBar")->value(), 0);
}

TEST_F(VendorPreferencesViewControllerTest, MoreThanTheWholeIsAFullBar)
{
    pane.showProgress(1, 3'000'000, 1'000'000);
    EXPECT_EQ(
        part<QProgressBar>("progressBar")->value(), part<QProgressBar>("progressBar")->maximum());
}

TEST_F(VendorPreferencesViewControllerTest, KeepsItsSizeWhileTheBarComesAndGoes)
{
    unfold();
    constexpr int width = Theme::windowWidth - 2 * Theme::windowMargin;
    pane.showStoredTexts();
    const int before = card->heightForWidth(width);
    pane.showProgress(1, 1, 2);
    ASSERT_FALSE(part<QProgressBar>("progressBar")->isHidden());
    EXPECT_EQ(card->heightForWidth(width), before);
}

TEST_F(VendorPreferencesViewControllerTest, LongTextsTakeMoreLinesInsteadOfMoreWidth)
{
    unfold();
    constexpr int width = Theme::windowWidth - 2 * Theme::windowMargin;
    for (const char *date :
        {"(null)", "Wednesday, September 30, 2026, 12:37:59 PM (added 1 new)"}) {
        pane.showAdditionNoted(QString::fromLatin1(date) + u" (added 32530 new Identifiers)"_s);
        EXPECT_LE(card->minimumSizeHint().width(), width) << date;
    }
    pane.showDownloadBegun();
    EXPECT_LE(card->minimumSizeHint().width(), width);
    card->resize(width, card->heightForWidth(width));
    QCoreApplication::processEvents();
    auto *label = part<QLabel>("updatedLabel");
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
}

} // namespace
} // namespace quillon::test
