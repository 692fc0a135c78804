// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SyncExamples.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "store/RecordStore.h"
#include "sync/AccountKey.h"
#include "sync/RecordMirrorStorage.h"
#include "sync/Replica.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <SQLiteCpp/Database.h>

namespace quillon::test {

/// One computer's records, in a file of its own.
struct RecordsOfComputer
{
    ManagedObjectContext &context() { return store.managedObjectContext(); }
    ManagedObjectPtr insert(const QString &entity, const QVariantMap &values)
    {
        auto object = context().insertNewObject(entity);
        for (auto it = values.begin(); it != values.end(); ++it) {
            object->setValue(it.key(), *it);
        }
        return object;
    }
    ManagedObjectPtr rule(const QString &name) const
    {
        return const_cast<RecordsOfComputer *>(this)->find(
            model::Rule, Predicate::equal(model::rule::name, name));
    }
    ManagedObjectPtr find(const QString &entity, const Predicate &predicate)
    {
        const auto found = context().fetch({entity, predicate, {}});
        return found && !found.value().isEmpty() ? found.value().first() : nullptr;
    }
    void save()
    {
        const auto error = context().save();
        ASSERT_FALSE(error) << error->message.toStdString();
    }
    qint64 number(const std::string &query)
    {
        return context().database()->execAndGet(query).getInt64();
    }
    void sql(const std::string &script) { context().database()->exec(script); }

    QTemporaryDir folder;
    FakeScheduler scheduler;
    RecordStore store{scheduler, folder.path()};
};

} // namespace quillon::test
