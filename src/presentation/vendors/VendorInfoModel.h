// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/SettingsStore.h"

#include <QObject>

namespace quillon {

/// Who made the selected interface, by its current address: the vendor button and its popover. Main
/// thread.
class VendorInfoModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        bool buttonVisible = false; ///< hidden while no vendor is known
        bool popoverShown = false;
        // In the user's language where they are words of ours.
        QString name;
        QString address; ///< may hold line breaks
        QString identifier;
        QString registry;

        bool operator==(const State &) const = default;
    };

    explicit VendorInfoModel(SettingsStore &settings);
    ~VendorInfoModel() override;

    const State &state() const { return m_state.get(); }

    /// Hidden, the button takes its popover along.
    void showVendorButton(bool shown);
    /// The button was chosen: opens the popover or closes it.
    void toggleVendorPopover();
    /// However it is closed.
    void popoverWillClose();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void showVendor();

    SettingsStore &m_settings;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    SettingsStore::Token m_observed;
};

} // namespace quillon
