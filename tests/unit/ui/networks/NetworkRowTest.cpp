// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/NetworkRow.h"

#include "devices/CurrentInterface.h"
#include "fakes/FakeExposureSource.h"
#include "fakes/FakeRadioSwitch.h"
#include "networks/SavedNetworks.h"
#include "presentation/networks/NetworkInfoModel.h"
#include "presentation/networks/RemovedFavorite.h"
#include "presentation/networks/TracesModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/HeartButton.h"
#include "ui/widgets/LiveGraph.h"
#include "ui/widgets/Popover.h"
#include "unit/networks/NetworkFixture.h"

#include <QLabel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class NetworkRowTest : public NetworkFixture
{
protected:
    NetworkRowTest()
    {
        QObject::connect(&network, &WiFiNetwork::networkButtonShown, &model,
            &NetworkInfoModel::showNetworkButton);
        network.updateWiFiNetwork();
    }
    QStringList texts()
    {
        QStringList texts;
        for (const auto *label : row.popover().content()->findChildren<QLabel *>()) {
            texts.append(label->text());
        }
        return texts;
    }

    Theme theme;
    FakeRadioSwitch radioSwitch;
    SavedNetworks saved{settings, network};
    RemovedFavorite removed{settings, network};
    NetworkInfoModel model{{settings, scheduler, table, network, radioSwitch, saved, removed}};
    CurrentInterface current{settings, scheduler, table};
    FakeExposureSource exposure{scheduler};
    TracesModel traces{exposure, scheduler, current, table};
    NetworkRow row{model, traces, theme};
};

TEST_F(NetworkRowTest, ShowsTheNetworkAndWhatTheRadioKnowsOfIt)
{
    EXPECT_EQ(row.value(), u"Home"_s);
    EXPECT_TRUE(row.hasPopover());
    row.click();
    EXPECT_TRUE(model.state().popoverShown);
    for (const auto &text : {u"WPA2 Personal"_s, u"-54 dBm"_s, u"866.7 Mbps"_s, u"9"_s}) {
        EXPECT_TRUE(texts().contains(text)) << text.toStdString();
    }
}

TEST_F(NetworkRowTest, AValueThatIsTooWideIsCutInItsMiddleAndTold)
{
    QVariantMap stored = settings.getDictionary(keys::currentWiFiDict);
    const QString name = QString(16, u'W') + QString(16, u'M');
    stored[u"SSID"_s] = name;
    stored[u"security"_s] = u"Unknown"_s;
    settings.set(keys::currentWiFiDict, stored);
    const QLabel *cut = nullptr;
    const QLabel *unknown = nullptr;
    for (const auto *label : row.popover().content()->findChildren<QLabel *>()) {
        cut = label->accessibleName() == name ? label : cut;
        unknown = label->text() == "Unknown"_L1 ? label : unknown;
    }
    ASSERT_NE(cut, nullptr);
    EXPECT_TRUE(cut->text().startsWith(u'W') && cut->text().endsWith(u'M'));
    EXPECT_TRUE(cut->text().contains(u'…'));
    EXPECT_EQ(cut->toolTip(), name);
    ASSERT_NE(unknown, nullptr);
    EXPECT_EQ(unknown->property("look"), u"caption"_s) << "quiet";
}

TEST_F(NetworkRowTest, ItsGraphGrowsWhileItIsShown)
{
    row.click();
    scheduler.advance(6s);
    EXPECT_EQ(row.popover().content()->findChild<LiveGraph *>()->samples().size(), 3);
}

TEST_F(NetworkRowTest, LeftWhileThePopoverIsOpenTheNetworkHasNoHeart)
{
    row.click();
    const auto *heart = row.popover().content()->findChild<HeartButton *>();
    EXPECT_FALSE(heart->isHidden());
    radio.leave();
    scheduler.advance(3s);
    EXPECT_TRUE(model.state().popoverShown) << "it goes on reading";
    EXPECT_TRUE(texts().contains(u"Not currently connected..."_s));
    EXPECT_TRUE(heart->isHidden());
    model.chooseFavoriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).isEmpty());
}

TEST_F(NetworkRowTest, ItsHeartSavesTheNetworkAndForgetsIt)
{
    auto *heart = row.popover().content()->findChild<HeartButton *>();
    EXPECT_EQ(heart->accessibleName(), u"Add Network to Favorites"_s);
    heart->click();
    EXPECT_TRUE(saved.isCurrentNetworkSaved());
    EXPECT_TRUE(heart->isFavorite());
    EXPECT_EQ(heart->accessibleName(), u"Remove Network from Favorites"_s);
    heart->click();
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
}

TEST_F(NetworkRowTest, OnNoNetworkItSaysSoAndOpensNothing)
{
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_EQ(row.value(), u"Not currently connected..."_s);
    EXPECT_FALSE(row.hasPopover());
    EXPECT_TRUE(texts().contains(u"–"_s));
}

TEST_F(NetworkRowTest, AValueThatBecomesKnownWhileItIsShownIsNotQuietAnyMore)
{
    theme.apply();
    radio.interface->countryCode.clear();
    row.show();
    row.click();
    const QLabel *country = row.popover().content()->findChildren<QLabel *>().constLast();
    for (const auto *label : row.popover().content()->findChildren<QLabel *>()) {
        country = label->text() == u"–"_s ? label : country;
    }
    ASSERT_EQ(country->text(), u"–"_s);
    EXPECT_EQ(country->palette().color(QPalette::WindowText), theme.colors().mutedText);
    radio.interface->countryCode = u"DE"_s;
    scheduler.advance(3s);
    ASSERT_EQ(country->text(), u"DE"_s);
    EXPECT_EQ(country->palette().color(QPalette::WindowText), theme.colors().text);
}

TEST_F(NetworkRowTest, ARadioThatIsSwitchedOffIsToldInTheRowAndInAPopoverThatIsOpen)
{
    row.click();
    ASSERT_TRUE(row.popover().isOpen());
    radioSwitch.turn(true);
    radio.leave();
    scheduler.advance(3s);
    EXPECT_EQ(row.value(), u"Wi-Fi is switched off."_s);
    EXPECT_TRUE(row.accessibleName().contains(u"Wi-Fi is switched off."_s));
    EXPECT_TRUE(texts().contains(u"Wi-Fi is switched off."_s));
    row.popover().close();
    EXPECT_FALSE(row.hasPopover()) << "there is nothing more to tell";
}

TEST_F(NetworkRowTest, WithoutARadioThereIsNoRow)
{
    EXPECT_FALSE(row.isHidden());
    settings.set(keys::deviceDict, QVariant());
    EXPECT_TRUE(row.isHidden());
}

} // namespace
} // namespace quillon::test
