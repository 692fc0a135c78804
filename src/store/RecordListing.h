// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"
#include "store/RecordSnapshot.h"
#include "store/graph/ManagedObject.h"
#include "store/model/FetchRequest.h"

#include <QCache>
#include <QObject>

#include <atomic>
#include <memory>
#include <optional>

namespace quillon {

class RecordStore;
class Scheduler;
struct ObjectsDidChange;

/// The records that a request asks for, as a list that is shown while it is still being read.
/// SQLite looks for them in the background, on a connection of its own; the list knows the key of
/// each, eight bytes, and reads the records themselves a page at a time as they are looked at. It
/// follows what is changed, saved, merged and undone, and another context: what was found stands
/// until what is found anew differs from it. Main thread.
class RecordListing : public QObject
{
    Q_OBJECT

public:
    RecordListing(RecordStore &records, Scheduler &scheduler);
    ~RecordListing() override;

    /// Ends the search for what was asked for before. Until the first records are found the list
    /// keeps those that it has.
    void show(const FetchRequest &request);
    /// Forgets everything, and follows nothing until the next show().
    void clear();

    qsizetype size() const { return m_keys.size(); }
    /// Null when the record is gone or cannot be read.
    ManagedObjectPtr at(qsizetype row) const;
    qint64 keyAt(qsizetype row) const { return m_keys.value(row); }
    /// Walks the list: -1 when the key is not in it.
    qsizetype rowOf(qint64 key) const { return m_keys.indexOf(key); }
    /// Everything that was asked for is found.
    bool isComplete() const { return m_isComplete; }
    /// How many records of the kind there are, whatever was asked for; none while that is unknown.
    std::optional<qint64> total() const { return m_total; }
    RecordSnapshot snapshot() const;

Q_SIGNALS:
    void aboutToReset();
    void reset();
    void aboutToInsert(qsizetype first, qsizetype last);
    void inserted();
    void aboutToRemove(qsizetype first, qsizetype last);
    void removed();
    /// What the records say may have changed.
    void valuesChanged();
    /// isComplete() or total() is not what it was.
    void progressed();
    void failed(const quillon::Error &error);

private:
    struct Search;

    void search(bool isAnew);
    void showAtOnce();
    void take(const std::shared_ptr<Search> &search, const QList<qint64> &keys);
    void end(const std::shared_ptr<Search> &search, const std::optional<Error> &error,
        const std::optional<qint64> &total);
    void cancel();
    void append(Search &search, const QList<qint64> &keys);
    void replaceAll(const QList<qint64> &keys);
    void takeOver(const QList<qint64> &keys);
    void removeKeys(const QSet<qint64> &keys);
    void follow(const ObjectsDidChange &change);
    void refreshSoon();
    void refresh();

    RecordStore &m_records;
    Scheduler &m_scheduler;
    std::optional<FetchRequest> m_request;
    QList<qint64> m_keys;
    bool m_isComplete = false;
    std::optional<qint64> m_total;
    std::shared_ptr<Search> m_search; ///< the one that runs
    bool m_isStale = false;           ///< something changed since it began
    bool m_isRefreshDue = false;
    bool m_hasUnsaved = false; ///< keys that a save makes others
    mutable QCache<qint64, ManagedObjectPtr> m_cache;
};

} // namespace quillon
