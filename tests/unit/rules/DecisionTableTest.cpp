// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Places.h"
#include "unit/rules/RuleFixture.h"

#include <QFile>
#include <QMap>
#include <QTextStream>

#include <algorithm>
#include <memory>
#include <tuple>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QStringList kinds{u"login"_s, u"home"_s, u"mesh"_s, u"unknown"_s, u"any"_s};
const QStringList places{u"none"_s, u"home"_s, u"mesh"_s, u"office"_s, u"cafe"_s};
const QString homeBssid = u"02:00:00:00:aa:01"_s;
const QString meshBssid = u"02:00:00:00:bb:01"_s;

enum class Presence
{
    Absent,
    Off,
    On,
};

enum class Asked
{
    Status, ///< what is in force
    Switch, ///< a change of the one interface, whose rule the user switched
    Change, ///< a change of all interfaces
    Event,
};

/// Everything that the decision depends on.
struct Situation
{
    bool isWifi = false;
    QString place;
    QStringList order; ///< the kinds of rules as they were created
    QMap<QString, Presence> rules;
    bool isUp = true;
    bool launchedAtLogin = false;
    bool reachable = true;
    Asked asked = Asked::Event;
};

struct Verdict
{
    int status = 0;
    QString networkRule;
    QString loginRule;
    QStringList done;
    QStringList active; ///< the rules that are marked, in order of kind

    bool operator==(const Verdict &) const = default;
};

void PrintTo(const Verdict &verdict, std::ostream *out)
{
    *out << verdict.status << " '" << verdict.networkRule.toStdString() << "' '"
         << verdict.loginRule.toStdString() << "' " << verdict.done.join(u',').toStdString()
         << " marked " << verdict.active.join(u',').toStdString();
}

/// Evaluates situations. What a rule gives tells which one it was: each has its own manufacturer.
class DecisionTableTest : public RuleFixture
{
protected:
    DecisionTableTest()
    {
        saveNetwork(u"Home"_s, u"Home"_s, homeBssid, false);
        saveNetwork(u"Mesh"_s, u"Mesh"_s, meshBssid, true);
        saveNetwork(u"Office"_s, u"Office"_s, u"02:00:00:00:cc:01"_s, false);
        select(u"bridge0"_s);
        // Nothing changes, whatever is asked for.
        helper.mood = FakeHelper::Mood::Lying;
        for (int slot = 0; slot < kinds.size(); ++slot) {
            m_rules.append(addRule({.name = QString()}));
        }
    }

    Verdict verdictOn(const Situation &situation)
    {
        const QString device = situation.isWifi ? en1 : en0;
        arrangeRules(situation, device);
        arrangeMachine(situation, device);
        const qsizetype asked = helper.changes().size();
        ask(situation, device);
        scheduler.runPending();
        Verdict verdict{hasRule(device).toInt(), ruleInForce(device), loginRuleInForce(device),
            carriedOutSince(asked), {}};
        for (const QString &kind : kinds) {
            const Rule &rule = m_rules.at(situation.order.indexOf(kind));
            if (rule.device() == device && rule.active()) {
                verdict.active << kind;
            }
        }
        return verdict;
    }

private:
    /// Of a program that has carried out nothing yet.
    void ask(const Situation &situation, const QString &device)
    {
        RuleExecution fresh({scheduler, table, changer, timers});
        RuleEvaluation evaluator(
            {settings, notifications, table, current, store, invariants, queries, fresh});
        switch (situation.asked) {
        case Asked::Event:
            giveLease(device);
            NetworkChange(
                {externalAddress, table, wifi, current, reachability, fresh, evaluator, list})
                .networkChanged();
            break;
        case Asked::Status:
            evaluator.checkDeviceForCurrentRuleAndChange(device, RuleChange::None);
            break;
        case Asked::Switch:
            evaluator.checkDeviceForCurrentRuleAndChange(device, RuleChange::NetworkRule);
            break;
        case Asked::Change:
            evaluator.checkDeviceForCurrentRuleAndChange(
                allDevices, situation.launchedAtLogin ? RuleChange::LoginAndNetworkRule
                                                      : RuleChange::NetworkRule);
            break;
        }
    }
    QStringList carriedOutSince(qsizetype asked) const
    {
        QStringList done;
        for (qsizetype index = asked; index < helper.changes().size(); ++index) {
            done << kinds.value(helper.changes().at(index).address.mid(7, 1).toInt());
        }
        return done;
    }

    void arrangeRules(const Situation &situation, const QString &device)
    {
        const ManagedObjectContext::UndoDisabled undoDisabled(context());
        for (int slot = 0; slot < kinds.size(); ++slot) {
            const QString kind = situation.order.at(slot);
            const Presence presence = situation.rules.value(kind, Presence::Absent);
            const Rule &rule = m_rules.at(slot);
            rule.setName(kind);
            rule.setDevice(presence == Presence::Absent ? u"elsewhere"_s : device);
            rule.setEnabled(presence == Presence::On);
            rule.setActive(presence == Presence::Off);
            rule.setIsLogin(kind == u"login"_s);
            rule.setVendor(u"Maker (A0000%1)"_s.arg(kinds.indexOf(kind)));
            rule.setNetwork(network(kind));
            rule.setSsid(kind == u"mesh"_s ? u"Mesh"_s : QString());
            rule.setSsidDefined(kind == u"mesh"_s);
        }
    }

    static QString network(const QString &kind)
    {
        static const QMap<QString, QString> networks{{u"home"_s, homeBssid}, {u"mesh"_s, meshBssid},
            {u"unknown"_s, anUnknownNetwork}, {u"any"_s, anyNetwork}};
        return networks.value(kind);
    }

    void arrangeMachine(const Situation &situation, const QString &device)
    {
        if (situation.place == u"none"_s) {
            radio.interface.reset();
        } else {
            static const QMap<QString, QString> bssids{{u"home"_s, homeBssid},
                {u"mesh"_s, u"02:00:00:00:BB:99"_s}, {u"office"_s, u"02:00:00:00:CC:01"_s},
                {u"cafe"_s, u"02:00:00:00:DD:01"_s}};
            QString ssid = situation.place;
            ssid[0] = ssid[0].toUpper();
            joinWifi(ssid, bssids.value(situation.place));
        }
        wifi.updateWiFiNetwork();
        host.at(device).active = situation.isUp;
        table.updateNetWorkInterfaces();
        reachability.reachable = situation.reachable;
    }

    QList<Rule> m_rules;
};

Verdict expectedVerdict(const QStringList &columns)
{
    const auto text = [&columns](int column) {
        return columns.at(column) == u"-"_s ? QString() : columns.at(column);
    };
    Verdict verdict{columns.at(8).toInt(), text(9), text(10), {}, {}};
    verdict.done = text(11).split(u',', Qt::SkipEmptyParts);
    for (const QString &kind : kinds) {
        if (kind == verdict.networkRule || kind == verdict.loginRule) {
            verdict.active << kind;
        }
    }
    return verdict;
}

Situation situationIn(const QStringList &columns)
{
    Situation situation;
    situation.isWifi = columns.at(0) == u"wifi"_s;
    situation.place = columns.at(1);
    const QStringList rules = columns.at(2).split(u',');
    for (const QString &rule : rules) {
        if (rule != u"-"_s) {
            situation.order << rule.chopped(1);
            situation.rules[rule.chopped(1)] = rule.endsWith(u'+') ? Presence::On : Presence::Off;
        }
    }
    for (const QString &kind : kinds) {
        if (!situation.order.contains(kind)) {
            situation.order << kind;
        }
    }
    situation.isUp = columns.at(3) == u"up"_s;
    situation.launchedAtLogin = columns.at(4) == u"login"_s;
    situation.reachable = columns.at(5) == u"yes"_s;
    situation.asked = columns.at(6) == u"event"_s    ? Asked::Event
                      : columns.at(6) == u"change"_s ? Asked::Change
                                                     : Asked::Status;
    return situation;
}

TEST_F(DecisionTableTest, FollowsTheTable)
{
    QFile file(testData() + u"/rules/decision.txt"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QTextStream stream(&file);
    int cases = 0;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        const QStringList columns = line.simplified().split(u' ');
        if (line.startsWith(u'#') || line.isEmpty()) {
            continue;
        }
        ASSERT_EQ(columns.size(), 12) << line.toStdString();
        const Situation situation = situationIn(columns);
        ASSERT_TRUE(places.contains(situation.place) && situation.order.size() == kinds.size())
            << line.toStdString();
        EXPECT_EQ(verdictOn(situation), expectedVerdict(columns)) << line.toStdString();
        ++cases;
    }
    EXPECT_GE(cases, 35);
}

/// Says what is to come out, by sets and by the smallest rank instead of by groups and places.
Verdict oracle(const Situation &situation)
{
    static const QMap<QString, QStringList> wifiRules{{u"none"_s, {}},
        {u"home"_s, {u"home"_s, u"any"_s}}, {u"mesh"_s, {u"mesh"_s, u"any"_s}},
        {u"office"_s, {u"any"_s}}, {u"cafe"_s, {u"unknown"_s, u"any"_s}}};
    static const QMap<QString, int> ranks{
        {u"home"_s, 0}, {u"mesh"_s, 0}, {u"unknown"_s, 1}, {u"any"_s, 2}};
    const QStringList applying = situation.isWifi ? wifiRules.value(situation.place) : kinds;
    int known = 0;
    std::vector<std::tuple<int, qsizetype, QString>> candidates;
    Verdict verdict;
    for (const QString &kind : applying) {
        const Presence presence = situation.rules.value(kind, Presence::Absent);
        known += presence != Presence::Absent;
        if (presence == Presence::On && kind == u"login"_s) {
            verdict.loginRule = kind;
        } else if (presence == Presence::On) {
            candidates.emplace_back(ranks.value(kind), situation.order.indexOf(kind), kind);
        }
    }
    if (!candidates.empty()) {
        verdict.networkRule = std::get<2>(*std::min_element(candidates.begin(), candidates.end()));
    }
    const bool anyOn = !candidates.empty() || !verdict.loginRule.isEmpty();
    verdict.status = known == 0 ? 0 : anyOn ? 1 : 2;
    const bool asked = situation.asked == Asked::Change || situation.asked == Asked::Switch;
    const bool carriedOut = asked || (situation.asked == Asked::Event && situation.reachable);
    if (situation.asked == Asked::Change && situation.launchedAtLogin) {
        verdict.done << verdict.loginRule;
    }
    if (carriedOut && situation.isUp) {
        verdict.done << verdict.networkRule;
    }
    verdict.done.removeAll(QString());
    for (const QString &kind : kinds) {
        if (kind == verdict.networkRule || kind == verdict.loginRule) {
            verdict.active << kind;
        }
    }
    return verdict;
}

/// One interface at one place, in every combination of everything else.
class DecisionTableEveryCombination
    : public DecisionTableTest,
      public ::testing::WithParamInterface<std::tuple<bool, QString>>
{
};

TEST_P(DecisionTableEveryCombination, IsDecidedAsTheOracleSays)
{
    Situation situation;
    std::tie(situation.isWifi, situation.place) = GetParam();
    int combinations = 0;
    constexpr int ruleSets = 3 * 3 * 3 * 3 * 3;
    for (int set = 0; set < ruleSets; ++set) {
        // The order of creation goes round with the set.
        situation.order = kinds;
        std::rotate(situation.order.begin(), situation.order.begin() + set % kinds.size(),
            situation.order.end());
        if (set % 2 == 1) {
            std::reverse(situation.order.begin(), situation.order.end());
        }
        int digits = set;
        for (const QString &kind : kinds) {
            situation.rules[kind] = static_cast<Presence>(digits % 3);
            digits /= 3;
        }
        for (int bits = 0; bits < 8; ++bits) {
            situation.isUp = (bits & 1) != 0;
            situation.launchedAtLogin = (bits & 2) != 0;
            situation.reachable = (bits & 4) != 0;
            for (const Asked asked : {Asked::Status, Asked::Switch, Asked::Change, Asked::Event}) {
                situation.asked = asked;
                ASSERT_EQ(verdictOn(situation), oracle(situation))
                    << "rule set " << set << ", bits " << bits << ", asked "
                    << static_cast<int>(asked);
                ++combinations;
            }
        }
        context().processPendingChanges();
    }
    EXPECT_EQ(combinations, 243 * 8 * 4);
}

INSTANTIATE_TEST_SUITE_P(Decisions, DecisionTableEveryCombination,
    ::testing::Combine(::testing::Bool(), ::testing::ValuesIn(places)), [](const auto &given) {
        return (std::get<0>(given.param) ? "Wifi_" : "Wired_") +
               std::get<1>(given.param).toStdString();
    });

} // namespace
} // namespace quillon::test
