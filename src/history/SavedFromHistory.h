// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Connection.h"

#include <QList>

namespace quillon {

class SettingsStore;

/// What the saved lists get from records of the history. A list is read once and, when something
/// was added to it, written once and flushed. What is saved already keeps its name. Main thread.
class SavedFromHistory
{
public:
    explicit SavedFromHistory(SettingsStore &settings);

    /// Under the address as the record holds it, in whichever letters; it is its own name.
    void addAddresses(const QList<Connection> &records);
    /// Under the BSSID in lower case, by the name of the network. Of records without a BSSID one is
    /// saved, under the empty text.
    void addNetworks(const QList<Connection> &records);

    /// Whether adding would save something new of one of these; a record without a BSSID is no
    /// reason to save a network.
    bool hasNewAddress(const QList<Connection> &records) const;
    bool hasNewNetwork(const QList<Connection> &records) const;

private:
    SettingsStore &m_settings;
};

} // namespace quillon
