// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedAddressesRow.h"

#include "base/NetworkKeys.h"
#include "fakes/FakeWiFiClient.h"
#include "networks/SavedAddresses.h"
#include "networks/WiFiNetwork.h"
#include "presentation/networks/RemovedFavorite.h"
#include "presentation/networks/SavedListsModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/HeartButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/TokenField.h"
#include "unit/ui/WindowFixture.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QScreen>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedAddressesRowTest : public WindowFixture
{
protected:
    SavedAddressesRowTest()
    {
        QObject::connect(&row, &SavedAddressesRow::filled, [this] { ++filled; });
        settings.addObserver(
            keys::savedAddresses, [this](const auto &) { saved.updateQuickAddressesField(); });
    }
    TokenField *tokens()
    {
        return row.popover().content()->findChild<TokenField *>(u"quickAddressesField"_s);
    }
    static void settle()
    {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }
    HeartButton *heart() { return row.popover().content()->findChild<HeartButton *>(); }

    Theme theme;
    SavedAddresses addresses{settings};
    FakeWiFiClient radio;
    WiFiNetwork network{settings, radio, devices};
    RemovedFavorite removed{settings, network};
    SavedListsModel saved{settings, addresses, removed};
    SavedAddressesRow row{{saved, window, presence}, theme};
    int filled = 0;
};

TEST_F(SavedAddressesRowTest, ItsHeartSavesTheCurrentAddressAndForgetsIt)
{
    EXPECT_EQ(row.value(), u"None"_s);
    EXPECT_EQ(heart()->accessibleName(), u"Add Address to Favorites"_s);
    heart()->click();
    EXPECT_EQ(row.value(), u"02:00:00:00:00:01"_s);
    EXPECT_TRUE(heart()->isFavorite());
    ASSERT_EQ(tokens()->entries().size(), 1);
    EXPECT_EQ(tokens()->entries().first().text, u"02:00:00:00:00:01"_s);
    heart()->click();
    EXPECT_TRUE(tokens()->entries().isEmpty());
}

TEST_F(SavedAddressesRowTest, OfHundredsItNamesTheFirst)
{
    const auto save = [this](int count) {
        QVariantMap list;
        for (int number = 0; number < count; ++number) {
            const QString key = u"02:00:00:00:00:%1"_s.arg(number, 2, 16, QChar(u'0'));
            list[key] = QVariantMap{{savedentry::name, u"Room %1"_s.arg(number)}};
        }
        settings.set(keys::savedAddresses, list);
    };
    save(20);
    EXPECT_TRUE(row.value().endsWith(u", Room 19"_s)) << qPrintable(row.value());
    save(200);
    EXPECT_TRUE(row.value().startsWith(u"Room 0, Room 1, "_s));
    EXPECT_TRUE(row.value().endsWith(u", Room 19, …"_s)) << qPrintable(row.value());
    EXPECT_TRUE(row.toolTip().contains(row.value()));
    EXPECT_EQ(tokens()->entries().size(), 200);
}

TEST_F(SavedAddressesRowTest, AChosenAddressIsPutIntoTheFieldAndThePopoverCloses)
{
    settings.set(keys::savedAddresses,
        QVariantMap{{u"02:00:00:00:00:77"_s,
            QVariantMap{{u"address"_s, u"02:00:00:00:00:77"_s}, {u"name"_s, u"Office"_s}}}});
    EXPECT_EQ(row.value(), u"Office"_s);
    row.click();
    EXPECT_TRUE(saved.state().softwarePopoverShown);
    Q_EMIT tokens()->activated(0);
    EXPECT_FALSE(saved.state().softwarePopoverShown);
    EXPECT_EQ(window.state().fieldText, u"02:00:00:00:00:77"_s);
    EXPECT_TRUE(window.state().updateEnabled);
    EXPECT_EQ(filled, 1);
}

TEST_F(SavedAddressesRowTest, WithoutAHelperAClickIsRefusedAndThePopoverSaysWhy)
{
    settings.set(keys::savedAddresses,
        QVariantMap{{u"02:00:00:00:00:77"_s,
            QVariantMap{{u"address"_s, u"02:00:00:00:00:77"_s}, {u"name"_s, u"Office"_s}}}});
    const QString why = u"Install the helper to change the address."_s;
    row.click();
    const auto *hint = row.popover().content()->findChild<InlineLine *>();
    EXPECT_EQ(hint->text(), u"Click to put one into the field, or drag it there."_s);
    window.setHelperInstalled(false);
    EXPECT_EQ(hint->text(), why);
    EXPECT_EQ(hint->kind(), InlineLine::Kind::Notice);
    EXPECT_TRUE(tokens()->token(0)->toolTip().contains(why));
    const QString before = window.state().fieldText;
    qobject_cast<QPushButton *>(tokens()->token(0))->click();
    EXPECT_EQ(window.state().fieldText, before);
    EXPECT_TRUE(saved.state().softwarePopoverShown);
    EXPECT_EQ(filled, 0);
    window.setHelperInstalled(true);
    EXPECT_EQ(hint->kind(), InlineLine::Kind::Muted);
    qobject_cast<QPushButton *>(tokens()->token(0))->click();
    EXPECT_EQ(window.state().fieldText, u"02:00:00:00:00:77"_s);
    EXPECT_EQ(filled, 1);
}

TEST_F(SavedAddressesRowTest, ManyOfThemAreScrolledSoThatThePopoverFitsTheScreen)
{
    QVariantMap list;
    constexpr int many = 200;
    for (int number = 0; number < many; ++number) {
        const QString address = u"02:00:00:00:01:%1"_s.arg(number, 2, 16, QChar(u'0'));
        list[address] = QVariantMap{
            {savedentry::address, address}, {savedentry::name, u"Number %1"_s.arg(number)}};
    }
    settings.set(keys::savedAddresses, list);
    row.show();
    row.click();
    QCoreApplication::processEvents();
    EXPECT_EQ(tokens()->entries().size(), many);
    EXPECT_LT(row.popover().height(), row.screen()->availableGeometry().height());
}

TEST_F(SavedAddressesRowTest, LeadsToWhereSavedItemsAreEdited)
{
    QList<Destination> chosen;
    QObject::connect(&presence, &Presence::destinationChosen,
        [&](Destination destination) { chosen << destination; });
    presence.offer(Destination::SavedItems);
    row.click();
    row.popover().content()->findChild<QPushButton *>(u"editSavedItems"_s)->click();
    EXPECT_EQ(chosen, QList<Destination>{Destination::SavedItems});
    EXPECT_FALSE(saved.state().softwarePopoverShown);
}

TEST_F(SavedAddressesRowTest, ThePopoverClosesWhenADragHasEnded)
{
    row.click();
    Q_EMIT tokens()->dragBegan();
    EXPECT_TRUE(saved.state().softwarePopoverShown) << "it is what is dragged from";
    Q_EMIT tokens()->dragEnded();
    EXPECT_FALSE(saved.state().softwarePopoverShown);
}

TEST_F(SavedAddressesRowTest, ManyFavoritesStayOnTheScreenWithTheirButton)
{
    QVariantMap many;
    for (int index = 0; index < 60; ++index) {
        const QString address = u"02:00:00:00:01:%1"_s.arg(index, 2, 16, QChar(u'0'));
        many[address] = QVariantMap{{u"address"_s, address}, {u"name"_s, address}};
    }
    settings.set(keys::savedAddresses, many);
    row.show();
    row.click();
    settle();
    const QRect screen = row.screen()->availableGeometry();
    const auto *edit = row.popover().content()->findChild<QPushButton *>(u"editSavedItems"_s);
    EXPECT_TRUE(screen.contains(QRect(edit->mapToGlobal(QPoint(0, 0)), edit->size())));
    EXPECT_LT(row.popover().height(), screen.height());
    EXPECT_GE(edit->height(), edit->sizeHint().height());
    settings.set(keys::savedAddresses, QVariantMap{*many.constKeyValueBegin()});
    settle();
    EXPECT_LT(row.popover().height(), 250) << "it is small again";
    row.hide();
}

} // namespace
} // namespace quillon::test
