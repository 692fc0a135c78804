// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/NetworkRules.h"

#include "RuleFixture.h"
#include "fakes/LogCapture.h"
#include "store/model/QuillonModel.h"

#include <QUndoStack>

#include <SQLiteCpp/SQLiteCpp.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class NetworkRulesTest : public RuleFixture
{
protected:
    ManagedObjectPtr rule(const QVariant &network, const QVariant &ssidDefined = false)
    {
        ManagedObjectPtr rule = context().insertNewObject(model::Rule);
        rule->setValue(model::rule::network, network);
        rule->setValue(model::rule::ssidDefined, ssidDefined);
        return rule;
    }
    void recognize(bool bySsid)
    {
        networkRules.updateSsidDefinedForRulesWithNetwork(bySsid, homeBssid);
    }
    static QVariant mode(const ManagedObjectPtr &rule)
    {
        return rule->value(model::rule::ssidDefined);
    }

    const QString homeBssid = u"a4:2b:b0:11:22:33"_s;
    const QString officeBssid = u"b8:27:eb:44:55:66"_s;
    NetworkRules networkRules{store, evaluation};
};

TEST_F(NetworkRulesTest, FollowTheirNetworkAndNoOther)
{
    const auto home1 = rule(homeBssid);
    const auto home2 = rule(homeBssid);
    const auto office = rule(officeBssid);
    const auto upper = rule(homeBssid.toUpper());
    const auto any = rule(u"Any Network"_s);
    const auto login = rule(QString());
    const auto empty = rule({}, {});
    ASSERT_FALSE(context().save());

    recognize(true);
    EXPECT_EQ(mode(home1), QVariant(true));
    EXPECT_EQ(mode(home2), QVariant(true));
    for (const auto &other : {office, upper, any, login}) {
        EXPECT_EQ(mode(other), QVariant(false));
        EXPECT_FALSE(other->hasChanges());
    }
    EXPECT_FALSE(mode(empty).isValid());
    EXPECT_FALSE(empty->hasChanges());

    recognize(false);
    EXPECT_EQ(mode(home1), QVariant(false));
    EXPECT_EQ(mode(home2), QVariant(false));
}

TEST_F(NetworkRulesTest, AreEvaluatedWithTheirNewModeWithoutAChangeOfAnAddress)
{
    const auto home = rule(homeBssid);
    context().processPendingChanges();
    QStringList heard;
    QObject::connect(&store, &RecordStore::objectsDidChange, [&](const ObjectsDidChange &change) {
        heard << u"changed %1"_s.arg(change.updated.size());
    });
    QObject::connect(&evaluation, &RuleEvaluation::ruleStatusEvaluated,
        [&](const QString &device) { heard << u"evaluated "_s + device; });
    recognize(true);
    EXPECT_EQ(heard, (QStringList{u"changed 1"_s, u"evaluated en0"_s}));
    scheduler.runPending();
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(NetworkRulesTest, FollowWithoutAStepOfUndo)
{
    const auto home = rule(homeBssid);
    context().processPendingChanges();
    const int steps = context().undoManager().count();
    recognize(true);
    EXPECT_EQ(mode(home), QVariant(true));
    EXPECT_EQ(context().undoManager().count(), steps) << "the mode belongs to the network";
}

TEST_F(NetworkRulesTest, AreEvaluatedAlsoWhenNoneIsOfTheNetwork)
{
    recognize(true);
    EXPECT_EQ(overviews.size(), table.names().size());
}

TEST_F(NetworkRulesTest, StayWhenTheyCannotBeRead)
{
    const auto home = rule(homeBssid);
    ASSERT_FALSE(context().save());
    {
        SQLite::Database file(
            folder.filePath(u"Quillon.sqlite"_s).toStdString(), SQLite::OPEN_READWRITE);
        file.exec("DROP TABLE Rule");
    }
    const LogCapture log;
    recognize(true);
    const QStringList lines = LogCapture::taken();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.first(), u"quillon.networks: Unable to execute fetch request."_s);
    EXPECT_TRUE(lines.last().startsWith(u"quillon.networks: "_s));
    EXPECT_TRUE(lines.last().contains(u", "_s));
    EXPECT_EQ(mode(home), QVariant(false));
    EXPECT_TRUE(overviews.isEmpty());
}

} // namespace
} // namespace quillon::test
