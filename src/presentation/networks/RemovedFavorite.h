// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "networks/SavedEntries.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <optional>
#include <vector>

namespace quillon {

class WiFiNetwork;

/// What was taken out of a saved list last, in one window, and how to have it back. It is over when
/// something is saved under its key again, whoever did that. Main thread.
class RemovedFavorite : public QObject
{
    Q_OBJECT

public:
    RemovedFavorite(SettingsStore &settings, WiFiNetwork &wifi);
    ~RemovedFavorite() override;

    /// None when there is nothing to have back.
    const std::optional<RemovedEntry> &entry() const { return m_entry.get(); }
    /// What the user is told of it.
    static QString message();

    /// Just removed; none: it was not there, and what was removed before can still be had back.
    void remember(const std::optional<RemovedEntry> &removed);
    /// Puts it back as it was. The Wi-Fi record follows a network.
    void undo();

Q_SIGNALS:
    /// entry() is not what it was.
    void changed();

private:
    void look();

    SettingsStore &m_settings;
    WiFiNetwork &m_wifi;
    Shown<std::optional<RemovedEntry>> m_entry{[this] { Q_EMIT changed(); }};
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
