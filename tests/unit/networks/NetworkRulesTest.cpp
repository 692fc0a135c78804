// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkEditing.h"
#include "fakes/LogCapture.h"
#include "store/model/QuillonModel.h"

#include <QUndoStack>

#include <SQLiteCpp/SQLiteCpp.h>

namespace quillon::test {
namespace {

/// The rules of saved networks follow how their network is recognised.
class RulesOfNetworks : public NetworkEditing
{
protected:
    ManagedObjectPtr rule(const QVariant &networkValue, const QVariant &ssidDefined = false)
    {
        ManagedObjectPtr rule = context().insertNewObject(model::Rule);
        rule->setValue(model::rule::network, networkValue);
        rule->setValue(model::rule::ssidDefined, ssidDefined);
        return rule;
    }
    ManagedObjectContext &context() { return records.managedObjectContext(); }
    static QVariant mode(const ManagedObjectPtr &rule)
    {
        return rule->value(model::rule::ssidDefined);
    }
};

TEST_F(RulesOfNetworks, FollowTheirNetworkAndNoOther)
{
    const auto home1 = rule(homeBssid);
    const auto home2 = rule(homeBssid);
    const auto office = rule(officeBssid);
    const auto upper = rule(homeBssid.toUpper());
    const auto any = rule(QStringLiteral("Any Network"));
    const auto login = rule(QString());
    const auto empty = rule({}, {});
    ASSERT_FALSE(context().save());

    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    EXPECT_EQ(mode(home1), QVariant(true));
    EXPECT_EQ(mode(home2), QVariant(true));
    for (const auto &other : {office, upper, any, login}) {
        EXPECT_EQ(mode(other), QVariant(false));
        EXPECT_FALSE(other->hasChanges());
    }
    EXPECT_FALSE(mode(empty).isValid());
    EXPECT_FALSE(empty->hasChanges());

    editing->updateNetworkDefinition(QStringLiteral("bssidbutton"));
    EXPECT_EQ(mode(home1), QVariant(false));
    EXPECT_EQ(mode(home2), QVariant(false));
}

TEST_F(RulesOfNetworks, AreToldOfWithoutWaitingForTheTurnToEnd)
{
    const auto home = rule(homeBssid);
    context().processPendingChanges();
    QStringList heard;
    QObject::connect(&records, &RecordStore::objectsDidChange, [&](const ObjectsDidChange &change) {
        heard << QStringLiteral("changed %1").arg(change.updated.size());
    });
    QObject::connect(editing.get(), &SavedNetworkEditing::rulesChanged,
        [&] { heard << QStringLiteral("rules changed"); });
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    EXPECT_EQ(heard, (QStringList{QStringLiteral("changed 1"), QStringLiteral("rules changed")}));
}

TEST_F(RulesOfNetworks, FollowWithoutAStepOfUndo)
{
    const auto home = rule(homeBssid);
    context().processPendingChanges();
    const int steps = context().undoManager().count();
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    EXPECT_EQ(mode(home), QVariant(true));
    EXPECT_EQ(context().undoManager().count(), steps) << "the mode belongs to the network";
}

TEST_F(RulesOfNetworks, AreChangedAlsoWhenThereIsNone)
{
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    EXPECT_EQ(rulesChanged, 1);
}

TEST_F(RulesOfNetworks, FollowAnyNetworkThatIsNamed)
{
    const auto office = rule(officeBssid);
    editing->endEditing();
    editing->updateSsidDefinedForRulesWithNetwork(true, officeBssid);
    EXPECT_EQ(mode(office), QVariant(true));
    EXPECT_EQ(rulesChanged, 1);
}

TEST_F(RulesOfNetworks, StayWhenTheyCannotBeRead)
{
    const auto home = rule(homeBssid);
    ASSERT_FALSE(context().save());
    {
        SQLite::Database file(folder.filePath(QStringLiteral("Quillon.sqlite")).toStdString(),
            SQLite::OPEN_READWRITE);
        file.exec("DROP TABLE Rule");
    }
    const LogCapture log;
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    const QStringList lines = LogCapture::taken();
    ASSERT_GE(lines.size(), 2);
    EXPECT_EQ(lines.at(lines.size() - 2),
        QStringLiteral("quillon.networks: Unable to execute fetch request."));
    EXPECT_TRUE(lines.last().startsWith(QStringLiteral("quillon.networks: ")));
    EXPECT_TRUE(lines.last().contains(QStringLiteral(", ")));
    EXPECT_EQ(mode(home), QVariant(false));
    EXPECT_EQ(rulesChanged, 0);
    EXPECT_TRUE(savedNetwork(homeBssid).contains(savedentry::ssidDefined))
        << "the network itself has its new mode";
}

} // namespace
} // namespace quillon::test
