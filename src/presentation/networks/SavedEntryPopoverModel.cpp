// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SavedEntryPopoverModel.h"

#include "base/SettingsKeys.h"
#include "networks/SavedAddressEditing.h"
#include "networks/SavedNetworkEditing.h"
#include "platform/Scheduler.h"
#include "presentation/networks/RemovedFavorite.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal anchorSize = 5;

QRectF anchorAt(const QPointF &position)
{
    QRectF anchor(0, 0, anchorSize, anchorSize);
    anchor.moveCenter(position);
    return anchor;
}

} // namespace

SavedEntryPopoverModel::SavedEntryPopoverModel(const Collaborators &collaborators)
    : m_deps(collaborators)
{
    for (const QString &list : {keys::savedNetworks, keys::savedAddresses}) {
        m_observed.push_back(
            m_deps.settings.addObserver(list, [this](const auto &) { closeIfGone(); }));
    }
}

SavedEntryPopoverModel::~SavedEntryPopoverModel()
{
    for (const auto token : m_observed) {
        m_deps.settings.removeObserver(token);
    }
}

void SavedEntryPopoverModel::tokenFieldMenuForRepresentedObject(
    TokenFieldKind field, const SavedEntry &entry, const QPointF &position)
{
    if (!tokenFieldHasMenuForRepresentedObject(field)) {
        return;
    }
    closeBoth();
    const bool isNetwork = field == TokenFieldKind::SavedNetworks;
    if (isNetwork) {
        m_deps.networks.beginEditing(entry);
    } else {
        m_deps.addresses.beginEditing(entry);
    }
    // The token field finishes its own event first.
    m_deps.scheduler.onMain(this, [this, choice = m_choice, isNetwork, position] {
        if (m_choice == choice) {
            open(isNetwork ? Popover::Network : Popover::Address, position);
        }
    });
}

bool SavedEntryPopoverModel::isGone() const
{
    if (const auto &network = m_deps.networks.editingNetworkDict()) {
        return !isSaved(m_deps.settings, keys::savedNetworks, network->bssid.value_or(QString()));
    }
    const auto &address = m_deps.addresses.editingAddressDict();
    return address &&
           !isSaved(m_deps.settings, keys::savedAddresses, address->address.value_or(QString()));
}

void SavedEntryPopoverModel::closeIfGone()
{
    if (!isGone()) {
        return;
    }
    // At once: neither a popover that is on its way nor a typed name must bring it back.
    ++m_choice;
    m_deps.networks.endEditing();
    m_deps.addresses.endEditing();
    m_deps.scheduler.onMain(this, [this, choice = m_choice] {
        if (m_choice == choice) {
            closeBoth();
        }
    });
}

void SavedEntryPopoverModel::closeBoth()
{
    ++m_choice;
    m_deps.networks.endEditing();
    m_deps.addresses.endEditing();
    m_state.update([](State &state) { state = {}; });
}

void SavedEntryPopoverModel::open(Popover popover, const QPointF &position)
{
    m_state.update([&](State &state) {
        state = {};
        state.open = popover;
        state.anchor = anchorAt(position);
        fill(state);
    });
}

void SavedEntryPopoverModel::fill(State &state) const
{
    if (const auto &network = m_deps.networks.editingNetworkDict()) {
        state.name = network->name.value_or(QString());
        state.ssid = network->ssid.value_or(QString());
        state.bssid = network->bssid.value_or(QString());
        fixButtonActions(state);
    } else if (const auto &address = m_deps.addresses.editingAddressDict()) {
        state.name = address->name.value_or(QString());
        state.address = address->address.value_or(QString());
    }
    state.nameEnabled = true;
    state.removeEnabled = true;
}

void SavedEntryPopoverModel::fixButtonActions(State &state) const
{
    const bool bySsid = m_deps.networks.isSsidDefined();
    state.ssidTickButton = {.on = bySsid, .hasAction = !bySsid};
    state.bssidTickButton = {.on = !bySsid, .hasAction = bySsid};
}

void SavedEntryPopoverModel::controlTextDidEndEditing(const QString &typed)
{
    if (m_state->open == Popover::Network) {
        m_deps.networks.changeSavedNetworkName(typed);
    } else if (m_state->open == Popover::Address) {
        m_deps.addresses.changeSavedAddressName(typed);
    }
}

void SavedEntryPopoverModel::removeEntry()
{
    if (m_state->open == Popover::Network) {
        m_deps.removed.remember(m_deps.networks.removeSavedNetwork());
    } else if (m_state->open == Popover::Address) {
        m_deps.removed.remember(m_deps.addresses.removeSavedAddress());
    }
}

void SavedEntryPopoverModel::chooseSsidTickButton()
{
    if (m_state->ssidTickButton.hasAction) {
        m_deps.networks.updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    }
}

void SavedEntryPopoverModel::chooseBssidTickButton()
{
    if (m_state->bssidTickButton.hasAction) {
        m_deps.networks.updateNetworkDefinition(u"bssidbutton"_s);
    }
}

void SavedEntryPopoverModel::showNetworkDefinition()
{
    const auto &network = m_deps.networks.editingNetworkDict();
    if (m_state->open != Popover::Network || !network) {
        return;
    }
    m_state.update([&](State &state) {
        state.bssid = network->bssid.value_or(QString());
        fixButtonActions(state);
    });
}

void SavedEntryPopoverModel::closeNetworkPopover()
{
    if (m_state->open == Popover::Network) {
        closeBoth();
    }
}

void SavedEntryPopoverModel::closeAddressPopover()
{
    if (m_state->open == Popover::Address) {
        closeBoth();
    }
}

} // namespace quillon
