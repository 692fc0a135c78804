// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/SavedEntry.h"
#include "store/RecordListing.h"

#include <QList>
#include <QObject>
#include <QSet>

#include <atomic>
#include <memory>
#include <optional>

namespace quillon {

class RecordStore;
class Scheduler;

/// Finds the addresses and networks that the history knows and the saved lists do not, the latest
/// first. All of the reading is in the background; the main thread only gets the result. One search
/// at a time; main thread.
class KnownPlaces : public QObject
{
    Q_OBJECT

public:
    /// What one search finds at most, of both kinds together: each list is a setting, which
    /// everybody reads whole.
    static constexpr qsizetype most = 200;

    struct Found
    {
        QList<SavedEntry> addresses; ///< each once, whatever the case of its letters
        QList<SavedEntry> networks;  ///< each BSSID once, with the name that it had last
        bool hasMore = false;        ///< something was left out, as there is more than `most`

        bool operator==(const Found &) const = default;
    };

    KnownPlaces(RecordStore &records, Scheduler &scheduler);
    /// Cancels.
    ~KnownPlaces() override;

    bool isSearching() const { return m_search != nullptr; }
    /// Looks for what is under none of these keys, letters of either case being the same. A second
    /// call does nothing while a search is under way.
    void search(const QStringList &savedAddresses, const QStringList &savedNetworks);

Q_SIGNALS:
    void found(const quillon::KnownPlaces::Found &found);
    void failed();

private:
    struct Search
    {
        QSet<QString> addresses; ///< known already, in lower case
        QSet<QString> networks;
        std::atomic_bool isCancelled = false;
    };

    /// None when the records cannot be read.
    static std::optional<Found> look(const RecordSnapshot &records, Search &search);
    void readOn();
    void end(const std::shared_ptr<Search> &search, const std::optional<Found> &result);

    Scheduler &m_scheduler;
    RecordListing m_listing;
    std::shared_ptr<Search> m_search; ///< the one that is under way
};

} // namespace quillon
