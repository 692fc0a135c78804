// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordListing.h"

#include "base/Log.h"
#include "platform/Scheduler.h"
#include "store/RecordStore.h"
#include "store/file/RecordReader.h"
#include "store/model/QuillonModel.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr qsizetype recordsOfPage = 100;
constexpr qsizetype recordsKept = 800;
// Each moves what is behind it: of more pieces the list is told as a whole.
constexpr qsizetype mostPieces = 16;
constexpr qsizetype largestPiece = 100;

} // namespace

struct RecordListing::Search
{
    bool isAnew = true; ///< else it looks what became of the list
    bool hasFound = false;
    bool isOutdated = false; ///< what it finds may have been deleted since it began
    QList<qint64> ahead;     ///< shown already, and not yet found by it
    std::atomic_bool isCancelled = false;
};

RecordListing::RecordListing(RecordStore &records, Scheduler &scheduler)
    : m_records(records)
    , m_scheduler(scheduler)
    , m_cache(recordsKept)
{
    connect(&records, &RecordStore::objectsDidChange, this, &RecordListing::follow);
    connect(&records, &RecordStore::recordsMerged, this, &RecordListing::refreshSoon);
    connect(&records, &RecordStore::saved, this, [this] {
        if (m_hasUnsaved) {
            refreshSoon();
        }
    });
    connect(&records, &RecordStore::managedObjectContextReplaced, this, [this] {
        m_cache.clear();
        if (m_request) {
            show(*m_request);
        }
    });
}

RecordListing::~RecordListing()
{
    cancel();
}

void RecordListing::show(const FetchRequest &request)
{
    m_request = request;
    m_isStale = false;
    if (std::exchange(m_isComplete, false)) {
        Q_EMIT progressed();
    }
    search(true);
    showAtOnce();
}

void RecordListing::clear()
{
    cancel();
    m_request.reset();
    m_isComplete = false;
    m_total.reset();
    m_cache.clear();
    if (!m_keys.isEmpty()) {
        replaceAll({});
    }
}

ManagedObjectPtr RecordListing::at(qsizetype row) const
{
    if (row < 0 || row >= m_keys.size() || !m_request) {
        return nullptr;
    }
    const ManagedObjectPtr *known = m_cache.object(m_keys[row]);
    if (known == nullptr) {
        const QList<qint64> page = m_keys.mid(row - row % recordsOfPage, recordsOfPage);
        const auto objects = m_records.managedObjectContext().objects(m_request->entity, page);
        if (!objects) {
            qCWarning(
                logRecords, "Records cannot be read: %s", qUtf8Printable(objects.error().message));
            return nullptr;
        }
        for (qsizetype index = 0; index < page.size(); ++index) {
            m_cache.insert(page[index], new ManagedObjectPtr(objects.value()[index]));
        }
        known = m_cache.object(m_keys[row]);
    }
    return known != nullptr && *known && !(*known)->isDeleted() ? *known : nullptr;
}

RecordSnapshot RecordListing::snapshot() const
{
    const QString entity = m_request ? m_request->entity : QString();
    QHash<qint64, QVariantList> unsaved;
    for (const RowChange &change : m_records.managedObjectContext().unsavedChanges(entity)) {
        if (change.kind != RowChange::Kind::Delete) {
            unsaved.insert(change.row.key, change.row.values);
        }
    }
    const Entity *const known = quillonModel().entity(entity);
    return {m_records.path(), known ? *known : Entity(entity, {}), m_keys, unsaved};
}

// MARK: searching

void RecordListing::search(bool isAnew)
{
    cancel();
    const Entity *const entity = quillonModel().entity(m_request->entity);
    if (entity == nullptr) {
        return;
    }
    const QList<RowChange> changes =
        m_records.managedObjectContext().unsavedChanges(m_request->entity);
    m_hasUnsaved = std::ranges::any_of(
        changes, [](const RowChange &change) { return change.kind == RowChange::Kind::Insert; });
    m_search = std::make_shared<Search>();
    m_search->isAnew = isAnew;
    const auto found = m_scheduler.replyOnMain<std::shared_ptr<Search>, QList<qint64>>(
        this, [this](const auto &search, const QList<qint64> &keys) { take(search, keys); });
    const auto ended = m_scheduler.replyOnMain<std::shared_ptr<Search>, std::optional<Error>,
        std::optional<qint64>>(this, [this](const auto &search, const auto &error,
                                         const auto &total) { end(search, error, total); });
    m_scheduler.inBackground([&scheduler = m_scheduler, path = m_records.path(), entity = *entity,
                                 request = *m_request, changes, search = m_search, found, ended] {
        const auto reader = RecordReader::open(path);
        if (!reader) {
            ended(search, reader.error(), std::nullopt);
            return;
        }
        QList<qint64> all;
        const auto error = reader.value()->keys(entity, request, changes,
            {search->isCancelled, [&scheduler] { return scheduler.monotonic(); }},
            [&](const QList<qint64> &keys) {
                if (search->isAnew) {
                    found(search, keys);
                } else {
                    all << keys;
                }
            });
        if (error || search->isCancelled) {
            ended(search, error, std::nullopt);
            return;
        }
        if (!search->isAnew) {
            found(search, all);
        }
        const auto total = reader.value()->count(entity, changes);
        ended(search, std::nullopt, total ? std::optional(total.value()) : std::nullopt);
    });
}

/// Most of what is asked for has a page that is found faster than the way into the background
/// takes. The search under way finds it again, and then the rest.
void RecordListing::showAtOnce()
{
    const auto page =
        m_records.managedObjectContext().keysAtOnce(*m_request, RecordReader::firstKeys);
    if (m_search && page && !page->isEmpty()) {
        m_search->hasFound = true;
        m_search->ahead = *page;
        replaceAll(*page);
    }
}

void RecordListing::cancel()
{
    if (m_search) {
        m_search->isCancelled = true;
        m_search.reset();
    }
}

void RecordListing::take(const std::shared_ptr<Search> &search, const QList<qint64> &keys)
{
    if (search != m_search) {
        return;
    }
    if (!search->isAnew) {
        if (!search->isOutdated) {
            takeOver(keys);
        }
    } else if (!std::exchange(search->hasFound, true)) {
        replaceAll(keys);
    } else {
        append(*search, keys);
    }
}

void RecordListing::append(Search &search, const QList<qint64> &keys)
{
    const qsizetype known = std::min(search.ahead.size(), keys.size());
    if (search.ahead.first(known) != keys.first(known)) {
        // Somebody wrote between the two looks.
        search.ahead.clear();
        replaceAll(keys);
        return;
    }
    search.ahead.remove(0, known);
    if (known < keys.size()) {
        Q_EMIT aboutToInsert(m_keys.size(), m_keys.size() + keys.size() - known - 1);
        m_keys << keys.sliced(known);
        Q_EMIT inserted();
    }
}

void RecordListing::end(const std::shared_ptr<Search> &search, const std::optional<Error> &error,
    const std::optional<qint64> &total)
{
    if (search != m_search) {
        return;
    }
    m_search.reset();
    if (error) {
        Q_EMIT failed(*error);
    }
    if (search->isAnew && !search->hasFound) {
        replaceAll({});
    }
    m_isComplete = true;
    m_total = total ? total : m_total;
    Q_EMIT progressed();
    if (std::exchange(m_isStale, false) || !search->ahead.isEmpty()) {
        refreshSoon();
    }
}

void RecordListing::replaceAll(const QList<qint64> &keys)
{
    Q_EMIT aboutToReset();
    m_keys = keys;
    Q_EMIT reset();
}

// MARK: changes

void RecordListing::follow(const ObjectsDidChange &change)
{
    const auto isOurs = [this](const ManagedObjectPtr &object) {
        return object->entity().name() == m_request->entity;
    };
    if (!m_request || (std::ranges::none_of(change.inserted, isOurs) &&
                          std::ranges::none_of(change.updated, isOurs) &&
                          std::ranges::none_of(change.deleted, isOurs))) {
        return;
    }
    QSet<qint64> gone;
    for (const ManagedObjectPtr &object : change.deleted) {
        if (isOurs(object)) {
            gone << object->key();
        }
    }
    if (!gone.isEmpty()) {
        removeKeys(gone);
    }
    refreshSoon();
}

void RecordListing::refreshSoon()
{
    if (m_request && !std::exchange(m_isRefreshDue, true)) {
        m_scheduler.onMain(this, [this] {
            m_isRefreshDue = false;
            refresh();
        });
    }
    Q_EMIT valuesChanged();
}

void RecordListing::refresh()
{
    if (!m_request) {
        return;
    }
    if (m_search) {
        m_isStale = true;
        return;
    }
    search(false);
}

void RecordListing::takeOver(const QList<qint64> &keys)
{
    const auto [ours, theirs] = std::ranges::mismatch(m_keys, keys);
    const qsizetype same = ours - m_keys.begin();
    const qsizetype most = std::min(m_keys.size(), keys.size()) - same;
    qsizetype sameAtEnd = 0;
    while (sameAtEnd < most &&
           m_keys[m_keys.size() - 1 - sameAtEnd] == keys[keys.size() - 1 - sameAtEnd]) {
        ++sameAtEnd;
    }
    const qsizetype fewer = m_keys.size() - same - sameAtEnd;
    const qsizetype more = keys.size() - same - sameAtEnd;
    if (fewer > 0 && more > 0 && std::max(fewer, more) > largestPiece) {
        replaceAll(keys);
        return;
    }
    if (fewer > 0) {
        Q_EMIT aboutToRemove(same, same + fewer - 1);
        m_keys.remove(same, fewer);
        Q_EMIT removed();
    }
    if (more > 0) {
        Q_EMIT aboutToInsert(same, same + more - 1);
        m_keys = keys;
        Q_EMIT inserted();
    }
}

void RecordListing::removeKeys(const QSet<qint64> &keys)
{
    struct Piece
    {
        qsizetype first;
        qsizetype count;
    };
    QList<Piece> pieces;
    qsizetype found = 0;
    for (qsizetype row = 0; row < m_keys.size(); ++row) {
        if (!keys.contains(m_keys[row])) {
            continue;
        }
        ++found;
        if (!pieces.isEmpty() && pieces.last().first + pieces.last().count == row) {
            ++pieces.last().count;
        } else {
            pieces << Piece{row, 1};
        }
    }
    m_total = m_total ? std::optional(*m_total - found) : std::nullopt;
    if (m_search) {
        m_search->isOutdated = true;
    }
    if (pieces.size() > mostPieces) {
        QList<qint64> rest = m_keys;
        rest.removeIf([&keys](qint64 key) { return keys.contains(key); });
        replaceAll(rest);
        return;
    }
    for (auto piece = pieces.crbegin(); piece != pieces.crend(); ++piece) {
        Q_EMIT aboutToRemove(piece->first, piece->first + piece->count - 1);
        m_keys.remove(piece->first, piece->count);
        Q_EMIT removed();
    }
}

} // namespace quillon
