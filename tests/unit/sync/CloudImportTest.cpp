// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/CloudImport.h"

#include "RecordMirrorFixture.h"
#include "base/NotificationNames.h"
#include "fakes/FakeNotifier.h"

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class CloudImportTest : public ::testing::Test
{
protected:
    CloudImportTest()
    {
        for (const QString &name : {notifications::ruleTable, notifications::updateNamesArray}) {
            notifications.addObserver(name, [this, name](const auto &) { order << name; });
        }
        QObject::connect(&imports, &CloudImport::recordsImported, &imports,
            [this] { order << u"rule table loaded"_s; });
        QObject::connect(&imports, &CloudImport::helperStatusWanted, &imports,
            [this] { order << u"helper status"_s; });
        QObject::connect(&records.store, &RecordStore::recordsMerged, &imports,
            [this] { order << u"merged"_s; });
    }

    void post(cloudevent::Type type, bool succeeded, const QVariant &endDate)
    {
        QVariantMap event{{cloudevent::type, int(type)}, {cloudevent::succeeded, succeeded}};
        if (endDate.isValid()) {
            event.insert(cloudevent::endDate, endDate);
        }
        notifications.post(notifications::cloudContainerChanged, nullptr, event);
        records.scheduler.runPending();
    }

    RecordsOfComputer records;
    NotificationCenter notifications;
    FakeNotifier notifier;
    QStringList order;
    CloudImport imports{{records.store, records.scheduler, notifications, notifier}};
    const QVariant end = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000, Qt::UTC);
};

TEST_F(CloudImportTest, MergesAnImportAndThenTellsOfItInOrder)
{
    post(cloudevent::Type::Import, true, end);
    EXPECT_EQ(order, QStringList({u"merged"_s, u"rule table loaded"_s, u"ruleTable"_s,
                         u"updateNamesArray"_s, u"helper status"_s}));
    ASSERT_EQ(notifier.messages().size(), 1);
    EXPECT_EQ(notifier.messages().first().title, u"iCloud"_s);
    EXPECT_EQ(notifier.messages().first().body, u"updates received"_s);
}

TEST_F(CloudImportTest, AnExportASetupAFailedOrAnUnfinishedImportMergesNothingAndTellsNobody)
{
    post(cloudevent::Type::Export, true, end);
    post(cloudevent::Type::Setup, true, end);
    post(cloudevent::Type::Import, false, end);
    post(cloudevent::Type::Import, true, {});
    notifications.post(notifications::cloudContainerChanged);
    records.scheduler.runPending();
    EXPECT_EQ(order, QStringList());
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(CloudImportTest, WhatWasMergedIsNoChangeOfObjects)
{
    const auto rule = records.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    records.save();
    QObject::connect(&records.store, &RecordStore::objectsDidChange, &imports,
        [this] { order << u"objects changed"_s; });
    records.sql("UPDATE Rule SET name = 'Work'");
    post(cloudevent::Type::Import, true, end);
    EXPECT_EQ(rule->value(model::rule::name), u"Work"_s);
    EXPECT_FALSE(order.contains(u"objects changed"_s));
}

} // namespace
} // namespace quillon::test
