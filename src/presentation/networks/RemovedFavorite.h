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

/// What was taken out of the saved lists of late, in one window, and how to have it back: the last
/// one first. It is over for what something is saved under its key again, whoever did that. Main
/// thread.
class RemovedFavorite : public QObject
{
    Q_OBJECT

public:
    RemovedFavorite(SettingsStore &settings, WiFiNetwork &wifi);
    ~RemovedFavorite() override;

    static constexpr qsizetype most = 20; ///< then the oldest is forgotten

    /// The last one. None when there is nothing to have back.
    std::optional<RemovedEntry> entry() const;
    /// What the user is told of it.
    static QString message();

    /// Just removed; none: it was not there, and nothing changes.
    void remember(const std::optional<RemovedEntry> &removed);
    /// Puts the last one back as it was. The Wi-Fi record follows a network.
    void undo();
    /// The same, of the one that was saved under `key` in `list`. False, and nothing happens, when
    /// there is none.
    bool putBack(const QString &list, const QString &key);
    /// Its time is over: nothing can be had back any more.
    void forget();

Q_SIGNALS:
    /// What can be had back is not what it was.
    void changed();
    /// Something was removed just now.
    void remembered();

private:
    using Entries = QList<RemovedEntry>;

    void look();
    void restore(qsizetype index);

    SettingsStore &m_settings;
    WiFiNetwork &m_wifi;
    Shown<Entries> m_entries{[this] { Q_EMIT changed(); }};
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
