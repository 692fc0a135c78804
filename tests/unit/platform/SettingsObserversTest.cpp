// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SettingsObservers.h"

#include "fakes/FakeScheduler.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;

/// Observers that write down what they hear, and may react to it.
class SettingsObserversTest : public ::testing::Test
{
protected:
    using Reaction = std::function<void(int value)>;

    void observe(const char *name, const Reaction &reaction = {}, const char *key = "volume")
    {
        observers->add(QLatin1String(key), [this, name, reaction](const auto &change) {
            heard << u"%1 %2->%3"_s.arg(QLatin1String(name))
                         .arg(change.oldValue.toInt())
                         .arg(change.newValue.toInt());
            if (reaction) {
                reaction(change.newValue.toInt());
            }
        });
    }

    void change(int from, int to, const char *key = "volume")
    {
        observers->report({QLatin1String(key), from, to});
        observers->deliver();
    }

    FakeScheduler scheduler;
    std::optional<SettingsObservers> observers{scheduler};
    QStringList heard;
};

TEST_F(SettingsObserversTest, EachHearsTheChangesInTheirOrderWhenOneReactsWithAnother)
{
    observe("first", [this](int value) {
        if (value == 1) {
            change(1, 2);
        }
    });
    observe("second");
    change(0, 1);
    EXPECT_EQ(
        heard, (QStringList{u"first 0->1"_s, u"second 0->1"_s, u"first 1->2"_s, u"second 1->2"_s}));
}

TEST_F(SettingsObserversTest, AReactionIsToldBeforeTheCallThatCausedItReturns)
{
    observe("first", [this](int) {
        change(5, 6, "pitch");
        heard << u"returned"_s;
    });
    observe("second");
    observe("pitch", {}, "pitch");
    change(0, 1);
    EXPECT_EQ(
        heard, (QStringList{u"first 0->1"_s, u"second 0->1"_s, u"pitch 5->6"_s, u"returned"_s}));
}

TEST_F(SettingsObserversTest, ReactionsToReactionsKeepTheOrderForAll)
{
    const auto countUpTo = [this](int last) {
        return [this, last](int value) {
            if (value < last) {
                change(value, value + 1);
            }
        };
    };
    observe("first", countUpTo(3));
    observe("second");
    observe("third");
    change(0, 1);
    for (const char *name : {"first", "second", "third"}) {
        const QString prefix = QLatin1String(name) + u' ';
        EXPECT_EQ(heard.filter(prefix),
            (QStringList{prefix + "0->1"_L1, prefix + "1->2"_L1, prefix + "2->3"_L1}));
    }
}

TEST_F(SettingsObserversTest, AnObserverMayEndThemAll)
{
    observe("first", [this](int) { observers.reset(); });
    observe("second");
    change(0, 1);
    EXPECT_EQ(heard.value(0), u"first 0->1"_s);
}

} // namespace quillon::test
