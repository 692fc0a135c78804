// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NetworkMachine.h"
#include "networks/SavedNetworkEditing.h"
#include "store/RecordStore.h"

#include <QTemporaryDir>

#include <memory>

namespace quillon::test {

/// "Home", "Office" and "Cafe" are saved, records are kept, and the popover of "Home" is open.
class NetworkEditing : public NetworkMachine
{
protected:
    NetworkEditing()
    {
        saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"));
        saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Office"));
        saveNetwork(cafeBssid, QStringLiteral("Cafe"), QStringLiteral("Office (2)"));
        editing = std::make_unique<SavedNetworkEditing>(
            SavedNetworkEditing::Collaborators{settings, scheduler, network, records});
        editing->beginEditing(savedNetwork(homeBssid));
        QObject::connect(
            editing.get(), &SavedNetworkEditing::editingFinished, [this] { ++finished; });
        QObject::connect(
            editing.get(), &SavedNetworkEditing::rulesChanged, [this] { ++rulesChanged; });
        settings.clearJournal();
    }

    QString name() const { return savedNetwork(homeBssid).value(savedentry::name).toString(); }

    QTemporaryDir folder;
    RecordStore records{scheduler, folder.path()};
    std::unique_ptr<SavedNetworkEditing> editing;
    int finished = 0;
    int rulesChanged = 0;
};

} // namespace quillon::test
