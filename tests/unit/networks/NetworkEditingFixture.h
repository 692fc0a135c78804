// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NetworkFixture.h"
#include "networks/SavedNetworkEditing.h"

#include <memory>

namespace quillon::test {

/// "Home", "Office" and "Cafe" are saved, and the popover of "Home" is open.
class NetworkEditingFixture : public NetworkFixture
{
protected:
    NetworkEditingFixture()
    {
        saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"));
        saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Office"));
        saveNetwork(cafeBssid, QStringLiteral("Cafe"), QStringLiteral("Office (2)"));
        editing = std::make_unique<SavedNetworkEditing>(
            SavedNetworkEditing::Collaborators{settings, scheduler, network});
        editing->beginEditing(savedNetworkEntry(homeBssid));
        QObject::connect(
            editing.get(), &SavedNetworkEditing::editingFinished, [this] { ++finished; });
        QObject::connect(editing.get(), &SavedNetworkEditing::networkDefinitionSaved,
            [this](const QString &bssid, bool ssidDefined) {
                modes << bssid + (ssidDefined ? QStringLiteral(" ssid") : QStringLiteral(" bssid"));
                EXPECT_EQ(savedNetworkEntry(bssid).isSsidDefined(), ssidDefined);
            });
        settings.clearJournal();
    }

    QString name() const { return savedNetwork(homeBssid).value(savedentry::name).toString(); }

    std::unique_ptr<SavedNetworkEditing> editing;
    int finished = 0;
    QStringList modes; ///< what was said of networks whose mode is stored
};

} // namespace quillon::test
