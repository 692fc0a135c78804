// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/graph/FetchedRecords.h"

#include "base/Log.h"
#include "store/file/RecordFile.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/ValueComparison.h"

#include <QPointer>
#include <QSet>

#include <algorithm>
#include <list>

namespace quillon {

namespace {

constexpr qsizetype recordsOfPage = 100;
constexpr std::size_t pagesKept = 8;

} // namespace

struct FetchedRecords::State
{
    struct Page
    {
        qsizetype number;
        ManagedObjectList records;
    };

    Result<ManagedObjectList> read(qsizetype page) const;

    QPointer<ManagedObjectContext> context;
    Entity entity;
    /// The key of a row; or, below zero, the place in `unsaved`, counted from -1 downwards.
    std::vector<qint64> entries;
    ManagedObjectList unsaved;
    std::list<Page> pages; ///< the last used one first
};

Result<ManagedObjectList> FetchedRecords::State::read(qsizetype page) const
{
    const auto first = static_cast<std::size_t>(page * recordsOfPage);
    const auto end = std::min(entries.size(), first + std::size_t{recordsOfPage});
    QList<qint64> keys;
    for (auto index = first; index < end; ++index) {
        if (entries[index] >= 0) {
            keys << entries[index];
        }
    }
    const auto rows = context->m_file.rows(entity, keys);
    if (!rows) {
        return rows.error();
    }
    QHash<qint64, ManagedObjectPtr> byKey;
    for (const RecordRow &row : rows.value()) {
        byKey.insert(row.key, context->objectOf(entity, row));
    }
    ManagedObjectList records;
    for (auto index = first; index < end; ++index) {
        const qint64 entry = entries[index];
        records << (entry < 0 ? unsaved[-1 - entry] : byKey.value(entry));
    }
    return records;
}

qsizetype FetchedRecords::size() const
{
    return m_state ? static_cast<qsizetype>(m_state->entries.size()) : 0;
}

ManagedObjectPtr FetchedRecords::at(qsizetype index) const
{
    if (index < 0 || index >= size() || !m_state->context) {
        return nullptr;
    }
    auto &pages = m_state->pages;
    const qsizetype number = index / recordsOfPage;
    const auto kept = std::find_if(
        pages.begin(), pages.end(), [number](const auto &page) { return page.number == number; });
    if (kept != pages.end()) {
        pages.splice(pages.begin(), pages, kept);
    } else {
        const auto records = m_state->read(number);
        if (!records) {
            qCWarning(
                logRecords, "Records cannot be read: %s", qUtf8Printable(records.error().message));
            return nullptr;
        }
        pages.push_front({number, records.value()});
        pages.resize(std::min(pages.size(), pagesKept));
    }
    const ManagedObjectPtr record = pages.front().records[index % recordsOfPage];
    return record && !record->isDeleted() ? record : nullptr;
}

// MARK: the fetches of ManagedObjectContext

namespace {

/// Where a record stands in an order.
struct Place
{
    ManagedObjectPtr object; ///< null for a row of the file
    QVariantList values;     ///< of the attributes of the order
    bool isUnsaved = false;
    qint64 creation = 0;
};

bool isBefore(const Place &left, const Place &right, const QList<SortDescriptor> &order)
{
    for (qsizetype index = 0; index < order.size(); ++index) {
        const int compared = compareValues(left.values[index], right.values[index]);
        if (compared != 0) {
            return (compared < 0) == order[index].ascending;
        }
    }
    return std::tuple(left.isUnsaved, left.creation) < std::tuple(right.isUnsaved, right.creation);
}

/// A row of the file as isBefore() wants it; reads it only where the order needs it.
Result<Place> placeOfRow(
    const RecordFile &file, const Entity &entity, const FetchRequest &request, qint64 key)
{
    Place place{nullptr, {}, false, key};
    if (!request.order.isEmpty()) {
        const auto rows = file.rows(entity, {key});
        if (!rows) {
            return rows.error();
        }
        for (const SortDescriptor &by : request.order) {
            place.values << (rows.value().isEmpty()
                                 ? QVariant()
                                 : rows.value().first().values[entity.indexOf(by.attribute)]);
        }
    }
    return place;
}

/// Puts -1, -2, ... into `keys`, which are in order, where `places`, in order too, belong.
std::optional<Error> mergePlaces(const RecordFile &file, const Entity &entity,
    const FetchRequest &request, const std::vector<Place> &places, std::vector<qint64> &keys)
{
    std::optional<Error> failure;
    std::vector<qint64> merged;
    merged.reserve(keys.size() + places.size());
    auto rest = keys.cbegin();
    for (const Place &place : places) {
        const auto next = std::partition_point(rest, keys.cend(), [&](qint64 key) {
            const auto other = placeOfRow(file, entity, request, key);
            failure = other ? failure : other.error();
            return other && isBefore(other.value(), place, request.order);
        });
        merged.insert(merged.end(), rest, next);
        merged.push_back(-1 - (&place - places.data()));
        rest = next;
    }
    merged.insert(merged.end(), rest, keys.cend());
    keys = std::move(merged);
    return failure;
}

} // namespace

std::optional<Error> ManagedObjectContext::layUnsavedOver(const Entity &entity,
    const FetchRequest &request, std::vector<qint64> &entries, ManagedObjectList &shown)
{
    QSet<qint64> hidden;
    std::vector<Place> places;
    for (const ManagedObjectPtr &object : unsaved(&entity)) {
        const auto value = [&object](const QString &name) { return object->value(name); };
        hidden.insert(object->m_key);
        if (object->m_isDeleted || (request.predicate && !request.predicate->evaluate(value))) {
            continue;
        }
        const bool hasKey = object->m_key != 0;
        Place place{object, {}, !hasKey, hasKey ? object->m_key : object->m_sequence};
        for (const SortDescriptor &by : request.order) {
            place.values << object->value(by.attribute);
        }
        places.push_back(place);
    }
    if (hidden.isEmpty()) {
        return std::nullopt;
    }
    std::erase_if(entries, [&hidden](qint64 key) { return hidden.contains(key); });
    std::sort(places.begin(), places.end(), [&request](const Place &left, const Place &right) {
        return isBefore(left, right, request.order);
    });
    for (const Place &place : places) {
        shown << place.object;
    }
    return mergePlaces(m_file, entity, request, places, entries);
}

Result<FetchedRecords> ManagedObjectContext::fetchLazily(const FetchRequest &request)
{
    const Entity *const entity = m_model.entity(request.entity);
    if (!entity) {
        return recordFileError(RecordFileError::UnknownName,
            QStringLiteral("There is no entity named \"%1\".").arg(request.entity));
    }
    auto keys = m_file.keys(*entity, request);
    if (!keys) {
        return keys.error();
    }
    FetchedRecords records;
    records.m_state = std::make_shared<FetchedRecords::State>(
        FetchedRecords::State{this, *entity, std::move(keys.value()), {}, {}});
    auto &state = *records.m_state;
    if (const auto error = layUnsavedOver(*entity, request, state.entries, state.unsaved)) {
        return *error;
    }
    return records;
}

Result<ManagedObjectList> ManagedObjectContext::fetch(const FetchRequest &request)
{
    const auto lazily = fetchLazily(request);
    if (!lazily) {
        return lazily.error();
    }
    ManagedObjectList all;
    for (qsizetype page = 0; page * recordsOfPage < lazily.value().size(); ++page) {
        const auto records = lazily.value().m_state->read(page);
        if (!records) {
            return records.error();
        }
        for (const ManagedObjectPtr &record : records.value()) {
            // Another program may have deleted it between the two looks.
            if (record && !record->isDeleted()) {
                all << record;
            }
        }
    }
    return all;
}

} // namespace quillon
