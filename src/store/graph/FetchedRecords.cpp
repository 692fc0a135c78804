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
    std::vector<qint64> keys;
    QHash<qint64, ManagedObjectPtr> unsaved; ///< by key; what is not here is read from the file
    std::list<Page> pages;                   ///< the last used one first
};

Result<ManagedObjectList> FetchedRecords::State::read(qsizetype page) const
{
    const auto first = static_cast<std::size_t>(page * recordsOfPage);
    const auto end = std::min(keys.size(), first + std::size_t{recordsOfPage});
    QHash<qint64, ManagedObjectPtr> found;
    QList<qint64> inFile;
    for (auto index = first; index < end; ++index) {
        if (const auto object = unsaved.value(keys[index])) {
            found.insert(keys[index], object);
        } else {
            inFile << keys[index];
        }
    }
    const auto rows = context->m_file->rows(entity, inFile);
    if (!rows) {
        return rows.error();
    }
    for (const RecordRow &row : rows.value()) {
        found.insert(row.key, context->objectOf(entity, row));
    }
    ManagedObjectList records;
    for (auto index = first; index < end; ++index) {
        records << found.value(keys[index]);
    }
    return records;
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
        return recordFileError(RecordFileError::UnknownName,
            u"There is no entity named \"%1\"."_s.arg(request.entity));
    }
    QList<RowChange> changes;
    QHash<qint64, ManagedObjectPtr> unsaved;
    for (const ManagedObjectPtr &object : std::as_const(m_unsaved)) {
        if (object->m_entity.name() == request.entity) {
            changes << changeOf(*object);
            unsaved.insert(object->m_key, object);
        }
    }
    auto keys = m_file->keys(*entity, request, changes);
    if (!keys) {
        return keys.error();
    }
    FetchedRecords records;
    records.m_state = std::make_shared<FetchedRecords::State>(
        FetchedRecords::State{this, *entity, std::move(keys.value()), unsaved, {}});
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
