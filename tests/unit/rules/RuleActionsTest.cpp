// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleActions.h"

#include "fakes/QtPrinting.h"
#include "rules/Rule.h"
#include "unit/store/RecordStoreFixture.h"

#include <QCoreApplication>
#include <QTranslator>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = RuleAction::Kind;

const QString randomAddress = u"Random Address"_s;
const QString fixedAddress = u"02:00:00:00:00:77"_s;
const RuleAction stop{Kind::StopCountdown, {}, {}};
const RuleAction start{Kind::StartCountdown, {}, {}};

/// A rule in force, of the record store: in the database's own types.
class RuleActionsTest : public RecordStoreTest
{
protected:
    Rule rule(const QString &address, int action = 1, int changeAction = 0)
    {
        const Rule made(context().insertNewObject(model::Rule));
        made.setActive(true);
        made.setAddress(address);
        made.setAction(action);
        made.setChangeAction(changeAction);
        made.setVendor(u"Maker (A1B2C3)"_s);
        return made;
    }
};

TEST_F(RuleActionsTest, WithoutRuleARunningCountdownEnds)
{
    EXPECT_EQ(actionsOfNetworkRule({}, true), QList{stop});
    EXPECT_EQ(actionsOfNetworkRule({}, false), QList{stop});
}

TEST_F(RuleActionsTest, ChangeOnceEndsTheCountdownAndGivesARandomAddressInsideTheRulesVendor)
{
    EXPECT_EQ(actionsOfNetworkRule(rule(randomAddress), true),
        (QList{stop, {Kind::RandomAddress, {}, u"Maker (A1B2C3)"_s}}));
}

TEST_F(RuleActionsTest, EveryEndsTheCountdownAndStartsItAnewWithoutAChange)
{
    EXPECT_EQ(actionsOfNetworkRule(rule(randomAddress, 1, 1), true), (QList{stop, start}));
}

TEST_F(RuleActionsTest, AnyOtherRepeatIsOnce)
{
    for (const int changeAction : {0, 2, -1}) {
        const auto actions = actionsOfNetworkRule(rule(randomAddress, 1, changeAction), true);
        EXPECT_EQ(actions.last().kind, Kind::RandomAddress) << changeAction;
    }
}

TEST_F(RuleActionsTest, AFixedAddressIsGivenOnceHoweverOften)
{
    const QList expected{stop, {Kind::FixedAddress, fixedAddress, {}}};
    EXPECT_EQ(actionsOfNetworkRule(rule(fixedAddress), true), expected);
    EXPECT_EQ(actionsOfNetworkRule(rule(fixedAddress, 1, 1), true), expected);
}

TEST_F(RuleActionsTest, DoNothingEndsTheCountdown)
{
    for (const int action : {0, 2, -1}) {
        EXPECT_EQ(actionsOfNetworkRule(rule(randomAddress, action, 1), true), QList{stop})
            << action;
    }
}

TEST_F(RuleActionsTest, ADeviceWhoseLinkIsDownKeepsItsCountdown)
{
    EXPECT_TRUE(actionsOfNetworkRule(rule(randomAddress), false).isEmpty());
}

TEST_F(RuleActionsTest, ARuleThatIsNotMarkedActiveDoesNothing)
{
    const Rule unmarked = rule(randomAddress);
    unmarked.setActive(false);
    EXPECT_TRUE(actionsOfNetworkRule(unmarked, true).isEmpty());
    const Rule neverMarked(context().insertNewObject(model::Rule));
    neverMarked.setAction(1);
    EXPECT_TRUE(actionsOfNetworkRule(neverMarked, true).isEmpty());
}

TEST_F(RuleActionsTest, AnEmptyVendorIsNoVendorAndAMissingOneLeavesTheChoiceToTheDevice)
{
    const Rule empty = rule(randomAddress);
    empty.setVendor(u""_s);
    EXPECT_EQ(
        actionsOfNetworkRule(empty, true).last(), (RuleAction{Kind::RandomAddress, {}, QString()}));
    const Rule without = rule(randomAddress);
    without.object()->setValue(model::rule::vendor, {});
    EXPECT_EQ(actionsOfNetworkRule(without, true).last(),
        (RuleAction{Kind::RandomAddress, {}, std::nullopt}));
}

TEST_F(RuleActionsTest, ALoginRuleChangesTheAddressWhateverItsOtherFieldsSay)
{
    const Rule login = rule(randomAddress, -1, -1);
    login.setActive(false);
    EXPECT_EQ(actionsOfLoginRule(login),
        (QList<RuleAction>{{Kind::RandomAddress, {}, u"Maker (A1B2C3)"_s}}));
    EXPECT_EQ(actionsOfLoginRule(rule(fixedAddress, 0, 1)),
        (QList<RuleAction>{{Kind::FixedAddress, fixedAddress, {}}}));
}

TEST_F(RuleActionsTest, WithoutLoginRuleNothingHappens)
{
    EXPECT_TRUE(actionsOfLoginRule({}).isEmpty());
}

/// The user's language has a word of its own for a random address.
class RuleActionsInTheUsersLanguage : public RuleActionsTest
{
protected:
    RuleActionsInTheUsersLanguage() { QCoreApplication::installTranslator(&m_translator); }
    ~RuleActionsInTheUsersLanguage() override { QCoreApplication::removeTranslator(&m_translator); }

private:
    class Words : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QByteArrayView(text) == "Random Address" ? u"Zufallsadresse"_s : QString();
        }
        bool isEmpty() const override { return false; }
    } m_translator;
};

TEST_F(RuleActionsInTheUsersLanguage, ARandomAddressIsStoredAndReadInIt)
{
    EXPECT_EQ(randomAddressTitle(), u"Zufallsadresse"_s);
    EXPECT_EQ(
        actionsOfNetworkRule(rule(u"Zufallsadresse"_s), true).last().kind, Kind::RandomAddress);
    EXPECT_EQ(actionsOfNetworkRule(rule(u"Zufallsadresse"_s, 1, 1), true).last(), start);
    EXPECT_EQ(actionsOfLoginRule(rule(u"Zufallsadresse"_s)).last().kind, Kind::RandomAddress);
}

TEST_F(RuleActionsInTheUsersLanguage, ARandomAddressOfAnyOtherLanguageIsOneToo)
{
    for (const QString &title : {randomAddress, u"Zufällige Adresse"_s}) {
        EXPECT_EQ(actionsOfNetworkRule(rule(title), true).last().kind, Kind::RandomAddress);
        EXPECT_EQ(actionsOfLoginRule(rule(title)).last().kind, Kind::RandomAddress);
    }
    for (const QString &other : {fixedAddress, u"Random address"_s, QString()}) {
        EXPECT_EQ(actionsOfNetworkRule(rule(other), true).last(),
            (RuleAction{Kind::FixedAddress, other, {}}))
            << "as it stands there";
    }
}

} // namespace
} // namespace quillon::test
