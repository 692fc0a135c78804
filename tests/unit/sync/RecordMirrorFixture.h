// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SyncExamples.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "platform/NotificationCenter.h"
#include "store/RecordStore.h"
#include "sync/AccountKey.h"
#include "sync/RecordMirror.h"
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

/// A computer of a person who mirrors records.
struct MirroringComputer : RecordsOfComputer
{
    MirroringComputer(const AccountKey &key, quint64 seed, bool isOn = true)
        : random(seed)
        , replica(mirror.storage(), key, random)
    {
        settings.setBool(keys::iCloudSync, isOn);
    }

    /// The program comes up, with everything that follows.
    void launch()
    {
        mirror.containerOpened();
        ASSERT_TRUE(mirror.start(replica, "account"));
        settle();
    }
    void switchSync(bool isOn)
    {
        settings.setBool(keys::iCloudSync, isOn);
        store.refreshPersistentContainer();
        settle();
    }
    void settle() { scheduler.advance(std::chrono::minutes(2)); }
    void saveAndSettle()
    {
        save();
        settle();
    }
    /// Writes what is unsent, and gives it to the others.
    void send(const QList<MirroringComputer *> &others)
    {
        ASSERT_TRUE(replica.sealPending());
        const auto files = mirror.storage().outgoing();
        for (auto it = files.begin(); it != files.end(); ++it) {
            ASSERT_TRUE(replica.sent(it.key()));
            for (MirroringComputer *other : others) {
                ASSERT_EQ(other->replica.receiveChange(it.key(), *it), std::nullopt);
            }
        }
        for (MirroringComputer *other : others) {
            other->mirror.endImport(true);
            other->settle();
        }
    }
    QStringList names()
    {
        QStringList all;
        const auto rules = context().fetch({model::Rule, {}, {}});
        for (const auto &found : rules ? rules.value() : ManagedObjectList()) {
            all << found->value(model::rule::name).toString();
        }
        all.sort();
        return all;
    }
    qint64 historyCount() { return number("SELECT count(*) FROM Connection"); }

    FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    RecordMirror mirror{{store, settings, scheduler, notifications}};
    SeededRandom random;
    Replica replica;
};

/// Two computers of a person, and what they share.
class MirroringComputersFixture : public ::testing::Test
{
protected:
    void launchBoth()
    {
        a.launch();
        b.launch();
    }
    /// The same record on both computers.
    void shareRule(const QString &name)
    {
        using namespace Qt::StringLiterals;
        a.insert(model::Rule, {{u"name"_s, name}, {u"device"_s, u"wlan0"_s}, {u"network"_s, name},
                                  {u"timerMins"_s, 5}});
        a.saveAndSettle();
        a.send({&b});
    }

    SeededRandom random{7};
    const AccountKey key = AccountKey::random(random).value();
    MirroringComputer a{key, 11};
    MirroringComputer b{key, 12};
};

} // namespace quillon::test
