// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleStatusModel.h"

#include "unit/rules/RuleFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RuleStatusModelTest : public RuleFixture
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
    EXPECT_EQ(model.state().image, u"NSStatusNone"_s);
}

TEST_F(RuleStatusModelTest, TellsAnActiveRule)
{
    EXPECT_EQ(shownFor(1), (RuleStatusModel::State{u"NSStatusAvailable"_s, u"has an Active rule"_s,
                               false, true, true}));
}

TEST_F(RuleStatusModelTest, TellsRulesOfWhichNoneIsActive)
{
    EXPECT_EQ(shownFor(2), (RuleStatusModel::State{u"NSStatusPartiallyAvailable"_s,
                               u"no rules are currently Active"_s, true, false, true}));
}

TEST_F(RuleStatusModelTest, TellsEverythingElseAsNoRules)
{
    const RuleStatusModel::State none{
        u"NSStatusNone"_s, u"no rules have been configured"_s, true, true, false};
    for (const QVariant &status : {QVariant(0), QVariant(), QVariant(3), QVariant(-1),
             QVariant(u"text"_s), QVariant(QVariantMap())}) {
        EXPECT_EQ(shownFor(status), none);
    }
    model.updateRuleStatusForDevice(u"en9"_s);
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
