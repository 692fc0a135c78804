// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/graph/FetchedRecords.h"

#include "base/Log.h"
#include "store/file/RecordFile.h"
#include "store/graph/ManagedObjectContext.h"

#include <QPointer>

#include <algorithm>
#include <list>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype recordsOfPage = 100;
constexpr std::size_t pagesKept = 8;
// To lay more over the file takes longer than looking for what is wanted.
constexpr qsizetype mostOverlaidAtOnce = 100;

Error unknownEntity(const QString &name)
{
    return recordFileError(
        RecordFileError::UnknownName, u"There is no entity named \"%1\"."_s.arg(name));
}

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
    QString entity;
    std::vector<qint64> keys;
    std::list<Page> pages; ///< the last used one first
};

Result<ManagedObjectList> FetchedRecords::State::read(qsizetype page) const
{
    const auto first = static_cast<std::size_t>(page * recordsOfPage);
    const auto end = std::min(keys.size(), first + std::size_t{recordsOfPage});
    return context->objects(entity, {keys.begin() + static_cast<std::ptrdiff_t>(first),
                                        keys.begin() + static_cast<std::ptrdiff_t>(end)});
}

qsizetype FetchedRecords::size() const
{
    return m_state ? static_cast<qsizetype>(m_state->keys.size()) : 0;
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

Result<FetchedRecords> ManagedObjectContext::fetchLazily(const FetchRequest &request)
{
    const Entity *const entity = m_model.entity(request.entity);
    if (!entity) {
        return unknownEntity(request.entity);
    }
    const QList<RowChange> changes = unsavedChanges(request.entity);
    auto keys = m_file->keys(*entity, request, changes);
    if (!keys) {
        return keys.error();
    }
    FetchedRecords records;
    records.m_state = std::make_shared<FetchedRecords::State>(
        FetchedRecords::State{this, request.entity, std::move(keys.value()), {}});
    return records;
}

std::optional<QList<qint64>> ManagedObjectContext::keysAtOnce(
    const FetchRequest &request, qsizetype most)
{
    const Entity *const entity = m_model.entity(request.entity);
    if (!entity || m_unsaved.size() > mostOverlaidAtOnce) {
        return std::nullopt;
    }
    const auto keys = m_file->keysAtOnce(*entity, request, unsavedChanges(request.entity), most);
    return keys ? keys.value() : std::nullopt;
}

QList<RowChange> ManagedObjectContext::unsavedChanges(const QString &entity) const
{
    QList<RowChange> changes;
    for (const ManagedObjectPtr &object : m_unsaved) {
        if (object->m_entity.name() == entity) {
            changes << changeOf(*object);
        }
    }
    return changes;
}

Result<ManagedObjectList> ManagedObjectContext::objects(
    const QString &entityName, const QList<qint64> &keys)
{
    const Entity *const entity = m_model.entity(entityName);
    if (!entity) {
        return unknownEntity(entityName);
    }
    const QSet<qint64> wanted(keys.begin(), keys.end());
    QHash<qint64, ManagedObjectPtr> found;
    for (const ManagedObjectPtr &object : std::as_const(m_unsaved)) {
        if (wanted.contains(object->m_key) && object->m_entity.name() == entityName) {
            found.insert(object->m_key, object);
        }
    }
    QList<qint64> inFile = keys;
    inFile.removeIf([&found](qint64 key) { return found.contains(key); });
    const auto rows = m_file->rows(*entity, inFile);
    if (!rows) {
        return rows.error();
    }
    for (const RecordRow &row : rows.value()) {
        found.insert(row.key, objectOf(*entity, row));
    }
    ManagedObjectList objects;
    for (const qint64 key : keys) {
        const ManagedObjectPtr object = found.value(key);
        objects << (object && !object->isDeleted() ? object : nullptr);
    }
    return objects;
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
