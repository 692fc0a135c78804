// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleStatusModel.h"

#include "unit/rules/RuleMachine.h"

namespace quillon::test {
namespace {

class RuleStatusModelTest : public RuleMachine
{
protected:
    RuleStatusModel::State shownFor(const QVariant &status)
    {
        setRecord(en0, record::hasRule, status);
        model.updateRuleStatusForDevice(en0);
        return model.state();
    }
    RuleStatusModel model{table};
};

TEST_F(RuleStatusModelTest, IsNoneBeforeAnythingIsEvaluated)
{
    EXPECT_EQ(model.state().image, QStringLiteral("NSStatusNone"));
}

TEST_F(RuleStatusModelTest, TellsAnActiveRule)
{
    EXPECT_EQ(shownFor(1), (RuleStatusModel::State{QStringLiteral("NSStatusAvailable"),
                               QStringLiteral("has an Active rule"), false, true, true}));
}

TEST_F(RuleStatusModelTest, TellsRulesOfWhichNoneIsActive)
{
    EXPECT_EQ(
        shownFor(2), (RuleStatusModel::State{QStringLiteral("NSStatusPartiallyAvailable"),
                         QStringLiteral("no rules are currently Active"), true, false, true}));
}

TEST_F(RuleStatusModelTest, TellsEverythingElseAsNoRules)
{
    const RuleStatusModel::State none{QStringLiteral("NSStatusNone"),
        QStringLiteral("no rules have been configured"), true, true, false};
    for (const QVariant &status : {QVariant(0), QVariant(), QVariant(3), QVariant(-1),
             QVariant(QStringLiteral("text")), QVariant(QVariantMap())}) {
        EXPECT_EQ(shownFor(status), none);
    }
    model.updateRuleStatusForDevice(QStringLiteral("en9"));
    EXPECT_EQ(model.state(), none);
}

TEST_F(RuleStatusModelTest, SaysWhenItChanges)
{
    int changes = 0;
    QObject::connect(&model, &RuleStatusModel::changed, [&] { ++changes; });
    shownFor(1);
    shownFor(1);
    EXPECT_EQ(changes, 1);
    shownFor(2);
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace quillon::test
