// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Connection.h"
#include "history/KnownPlaces.h"
#include "networks/SavedAddressEditing.h"
#include "networks/SavedAddresses.h"
#include "networks/SavedNetworkEditing.h"
#include "presentation/history/HistoryImport.h"
#include "presentation/networks/NewSavedEntryModel.h"
#include "presentation/networks/RemovedFavorite.h"
#include "presentation/networks/SavedEntryPopoverModel.h"
#include "presentation/networks/SavedListsModel.h"
#include "store/RecordStore.h"
#include "ui/networks/SavedItemsView.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/TokenField.h"
#include "unit/networks/NetworkFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

namespace quillon::test {

/// "Home", "Office" and the address "Printer" are saved, and shown with their popovers.
class SavedItemsFixture : public NetworkFixture
{
protected:
    SavedItemsFixture()
    {
        theme.setAnimated(false);
        theme.apply();
        saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"));
        saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Office"));
        saveAddress(address, QStringLiteral("Printer"));
        QObject::connect(&networkEditing, &SavedNetworkEditing::networkDefinitionChanged,
            &popoverModel, &SavedEntryPopoverModel::showNetworkDefinition);
        QObject::connect(&networkEditing, &SavedNetworkEditing::editingFinished, &popoverModel,
            &SavedEntryPopoverModel::closeNetworkPopover);
        QObject::connect(&addressEditing, &SavedAddressEditing::editingFinished, &popoverModel,
            &SavedEntryPopoverModel::closeAddressPopover);
        view.show();
        view.activateWindow();
        settle();
    }
    ~SavedItemsFixture() override { view.hide(); }

    static void settle()
    {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }
    /// The turns of the main loop that are due.
    void turn()
    {
        scheduler.runPending();
        settle();
    }
    static void press(int key, const QString &text = {})
    {
        QWidget *widget = QApplication::focusWidget();
        ASSERT_NE(widget, nullptr);
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(widget, &down);
    }

    TokenField &tokens(const char *name) const
    {
        for (auto *field : view.findChildren<TokenField *>()) {
            if (field->accessibleName() == QLatin1String(name)) {
                return *field;
            }
        }
        ADD_FAILURE() << "no tokens " << name;
        return *view.findChild<TokenField *>();
    }
    TokenField &networks() const { return tokens("Networks"); }
    TokenField &addresses() const { return tokens("Addresses"); }
    static QPushButton &token(const TokenField &field, int index)
    {
        return *qobject_cast<QPushButton *>(field.token(index));
    }
    /// That of one of the two, open or not.
    static Popover &popover(const TokenField &field) { return *field.findChild<Popover *>(); }
    Popover &open(const TokenField &field, int index)
    {
        token(field, index).setFocus();
        token(field, index).click();
        turn();
        EXPECT_TRUE(popover(field).isOpen());
        return popover(field);
    }
    static QLineEdit &name(const Popover &popover) { return *popover.findChild<QLineEdit *>(); }
    static QPushButton &removeButton(const Popover &popover)
    {
        return *popover.findChild<QPushButton *>();
    }

    const QString address = QStringLiteral("a4:83:e7:01:02:03");
    Theme theme;
    SavedAddresses saved{settings};
    RemovedFavorite removed{settings, network};
    SavedNetworkEditing networkEditing{{settings, scheduler, network}};
    SavedAddressEditing addressEditing{settings, scheduler};
    SavedListsModel lists{settings, saved, removed};
    SavedEntryPopoverModel popoverModel{
        {settings, scheduler, networkEditing, addressEditing, removed}};
    NewSavedEntryModel newNetwork{settings, NewSavedEntryModel::Kind::Network};
    NewSavedEntryModel newAddress{settings, NewSavedEntryModel::Kind::Address};
    QTemporaryDir folder;
    RecordStore records{scheduler, folder.path()};
    KnownPlaces places{records, scheduler};
    HistoryImport import{settings, places};
    SavedItemsView view{{lists, popoverModel, newNetwork, newAddress, import}, theme};
};

} // namespace quillon::test
