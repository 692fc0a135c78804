// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "presentation/networks/SavedListsModel.h"

#include <QObject>
#include <QRectF>

#include <vector>

namespace quillon {

class RemovedFavorite;
class SavedAddressEditing;
class SavedNetworkEditing;
class Scheduler;

/// The two popovers that edit one saved network or one saved address. At most one is open; it
/// closes when what it edits is removed, whoever does that. Main thread.
class SavedEntryPopoverModel : public QObject
{
    Q_OBJECT

public:
    enum class Popover
    {
        None,
        Network,
        Address,
    };
    /// One of the pair of tick buttons, which behaves as two radio buttons.
    struct TickButton
    {
        bool on = false;
        bool hasAction = false; ///< without one, choosing it does nothing

        bool operator==(const TickButton &) const = default;
    };
    struct State
    {
        Popover open = Popover::None;
        /// The popover is shown at the lower edge of this rectangle, 5 by 5 around the place where
        /// the token was chosen and in its coordinates.
        QRectF anchor;
        QString name;
        QString ssid;    ///< network only
        QString bssid;   ///< network only
        QString address; ///< address only
        bool nameEnabled = false;
        bool removeEnabled = false;
        TickButton ssidTickButton;  ///< network only
        TickButton bssidTickButton; ///< network only

        bool operator==(const State &) const = default;
    };

    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        SavedNetworkEditing &networks;
        SavedAddressEditing &addresses;
        RemovedFavorite &removed;
    };

    explicit SavedEntryPopoverModel(const Collaborators &collaborators);
    ~SavedEntryPopoverModel() override;

    const State &state() const { return m_state.get(); }

    /// A token was chosen with the pointer at `position`. What was open closes at once; where the
    /// field's tokens have a menu, the token's popover opens in the next turn of the main loop.
    void tokenFieldMenuForRepresentedObject(
        TokenFieldKind field, const SavedEntry &entry, const QPointF &position);
    /// Editing of the open popover's name field ended. To be told before the popover closes.
    void controlTextDidEndEditing(const QString &typed);
    /// The remove button was chosen.
    void removeEntry();
    void chooseSsidTickButton();
    void chooseBssidTickButton();

    /// The edited network changed its mode: shows it.
    void showNetworkDefinition();
    /// However they are closed; what is not open stays as it is.
    void closeNetworkPopover();
    void closeAddressPopover();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    /// What is edited may be removed elsewhere: by another program, by synchronization.
    void closeIfGone();
    bool isGone() const;
    void closeBoth();
    void open(Popover popover, const QPointF &position);
    void fill(State &state) const;
    void fixButtonActions(State &state) const;

    Collaborators m_deps;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    quint64 m_choice = 0; ///< counts chosen tokens; an older one no longer opens anything
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
