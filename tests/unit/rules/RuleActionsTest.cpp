// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleActions.h"

#include "base/SettingsKeys.h"
#include "fakes/QtPrinting.h"

#include <QDateTime>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using Kind = RuleAction::Kind;

const QString randomAddress = QStringLiteral("Random Address");
const QString fixedAddress = QStringLiteral("02:00:00:00:00:77");
const RuleAction stop{Kind::StopCountdown, {}, {}};
const RuleAction start{Kind::StartCountdown, {}, {}};

QVariantMap rule(const QString &address, int action = 1, int changeAction = 0)
{
    return {{QStringLiteral("active"), true}, {QStringLiteral("address"), address},
        {QStringLiteral("action"), action}, {QStringLiteral("changeAction"), changeAction},
        {QStringLiteral("vendor"), QStringLiteral("Maker (A1B2C3)")}};
}

QVariantMap deviceRecord(const QVariant &rule, const QString &status = QStringLiteral("active"))
{
    return {{record::status, status}, {record::rule, rule}};
}

QVariantMap with(QVariantMap rule, const char *key, const QVariant &value)
{
    rule[QString::fromLatin1(key)] = value;
    return rule;
}

TEST(RuleActionsTest, WithoutRuleARunningCountdownEnds)
{
    EXPECT_EQ(actionsOfNetworkRule({}), QList{stop});
    EXPECT_EQ(
        actionsOfNetworkRule(deviceRecord(QVariantMap(), QStringLiteral("inactive"))), QList{stop});
}

TEST(RuleActionsTest, ChangeOnceEndsTheCountdownAndGivesARandomAddressInsideTheRulesVendor)
{
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(rule(randomAddress))),
        (QList{stop, {Kind::RandomAddress, {}, QStringLiteral("Maker (A1B2C3)")}}));
}

TEST(RuleActionsTest, EveryEndsTheCountdownAndStartsItAnewWithoutAChange)
{
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(rule(randomAddress, 1, 1))), (QList{stop, start}));
}

TEST(RuleActionsTest, AnyOtherRepeatIsOnce)
{
    for (const int changeAction : {0, 2, -1}) {
        const auto actions =
            actionsOfNetworkRule(deviceRecord(rule(randomAddress, 1, changeAction)));
        EXPECT_EQ(actions.last().kind, Kind::RandomAddress) << changeAction;
    }
}

TEST(RuleActionsTest, AFixedAddressIsGivenOnceHoweverOften)
{
    const QList expected{stop, {Kind::FixedAddress, fixedAddress, {}}};
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(rule(fixedAddress))), expected);
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(rule(fixedAddress, 1, 1))), expected);
}

TEST(RuleActionsTest, DoNothingEndsTheCountdown)
{
    for (const int action : {0, 2, -1}) {
        EXPECT_EQ(actionsOfNetworkRule(deviceRecord(rule(randomAddress, action, 1))), QList{stop})
            << action;
    }
}

TEST(RuleActionsTest, ADeviceThatIsNotActiveKeepsItsCountdown)
{
    for (const char *status : {"inactive", "", "Active"}) {
        EXPECT_TRUE(
            actionsOfNetworkRule(deviceRecord(rule(randomAddress), QString::fromLatin1(status)))
                .isEmpty())
            << status;
    }
}

TEST(RuleActionsTest, ARuleThatIsNotMarkedActiveDoesNothing)
{
    EXPECT_TRUE(
        actionsOfNetworkRule(deviceRecord(with(rule(randomAddress), "active", false))).isEmpty());
    QVariantMap unmarked = rule(randomAddress);
    unmarked.remove(QStringLiteral("active"));
    EXPECT_TRUE(actionsOfNetworkRule(deviceRecord(unmarked)).isEmpty());
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(with(rule(randomAddress), "active", 1))).size(), 2);
}

TEST(RuleActionsTest, AnEmptyVendorIsNoVendorAndAMissingOneLeavesTheChoiceToTheDevice)
{
    EXPECT_EQ(
        actionsOfNetworkRule(deviceRecord(with(rule(randomAddress), "vendor", QString()))).last(),
        (RuleAction{Kind::RandomAddress, {}, QString()}));
    QVariantMap without = rule(randomAddress);
    without.remove(QStringLiteral("vendor"));
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(without)).last(),
        (RuleAction{Kind::RandomAddress, {}, std::nullopt}));
}

TEST(RuleActionsTest, ALoginRuleChangesTheAddressWhateverItsOtherFieldsSay)
{
    QVariantMap login = rule(randomAddress, -1, -1);
    login.remove(QStringLiteral("active"));
    EXPECT_EQ(actionsOfLoginRule({{record::loginRule, login}}),
        (QList<RuleAction>{{Kind::RandomAddress, {}, QStringLiteral("Maker (A1B2C3)")}}));
    EXPECT_EQ(actionsOfLoginRule({{record::loginRule, rule(fixedAddress, 0, 1)}}),
        (QList<RuleAction>{{Kind::FixedAddress, fixedAddress, {}}}));
}

TEST(RuleActionsTest, WithoutLoginRuleNothingHappens)
{
    EXPECT_TRUE(actionsOfLoginRule({}).isEmpty());
    EXPECT_TRUE(actionsOfLoginRule({{record::loginRule, QVariantMap()}}).isEmpty());
    EXPECT_TRUE(actionsOfLoginRule(deviceRecord(rule(randomAddress))).isEmpty());
}

TEST(RuleActionsTest, ValuesOfUnexpectedTypesReadAsNothing)
{
    const QVariantList values{QVariant(), 7, 2.5, QStringLiteral("text"), QByteArray("\xff\0x", 3),
        QDateTime(), QVariantList{1, 2}, QVariantMap{{QString(), 1}}, true};
    for (const QVariant &value : values) {
        EXPECT_TRUE(actionsOfLoginRule({{record::loginRule, value}}).size() <= 1);
        actionsOfNetworkRule({{record::status, value}, {record::rule, value}});
        for (const char *key : {"active", "address", "action", "changeAction", "vendor"}) {
            actionsOfNetworkRule(deviceRecord(with(rule(randomAddress), key, value)));
        }
    }
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(QStringLiteral("text"))), QList{stop});
    EXPECT_EQ(actionsOfNetworkRule(deviceRecord(with(rule(randomAddress), "address", 7))).last(),
        (RuleAction{Kind::FixedAddress, QStringLiteral("7"), {}}));
}

} // namespace
} // namespace quillon::test
