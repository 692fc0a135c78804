// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsFileTest.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeSettingsStore.h"
#include "platform/qt/QtScheduler.h"

#include <QPoint>

#include <atomic>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

/// The fake store and the one on a real file, asked the same.
struct InMemory
{
    test::FakeScheduler scheduler;
    test::FakeSettingsStore store{scheduler};

    void changeFromOutside(const QString &key, const QVariant &value)
    {
        store.changeFromOutside(key, value);
    }
    void offMainThread(const std::function<void()> &task) { scheduler.asBackground(task); }
    bool soon(const std::function<bool()> &condition)
    {
        scheduler.runPending();
        return condition();
    }
    /// What the next start would find.
    QVariantMap stored() const { return store.stored(); }
};

struct OnFile
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"settings.plist"_s);
    QtScheduler scheduler;
    PlistSettingsStore store{path, scheduler, {}};

    void changeFromOutside(const QString &key, const QVariant &value)
    {
        ASSERT_TRUE(store.flush());
        const Result<QVariantMap> before = readPropertyListFile(path);
        QVariantMap values = before ? before.value() : QVariantMap();
        values.remove(key);
        if (value.isValid()) {
            values.insert(key, value);
        }
        ASSERT_FALSE(replaceFileContent(path, xmlPropertyList(values)).has_value());
    }
    void offMainThread(const std::function<void()> &task) { std::thread(task).join(); }
    bool soon(const std::function<bool()> &condition) { return test::holdsSoon(condition); }
    QVariantMap stored() const
    {
        const Result<QVariantMap> values = readPropertyListFile(path);
        return values ? values.value() : QVariantMap();
    }
};

template <typename Kind>
class SettingsStoreConformance : public ::testing::Test
{
protected:
    void observe(const QString &key)
    {
        store.addObserver(key, [this](const SettingsStore::Change &change) {
            EXPECT_TRUE(kind.scheduler.isMainThread());
            changes.push_back(change);
        });
    }
    void expectChange(std::size_t index, const QVariant &oldValue, const QVariant &newValue)
    {
        ASSERT_LT(index, changes.size());
        EXPECT_TRUE(isSamePropertyList(changes.at(index).oldValue, oldValue)) << index;
        EXPECT_TRUE(isSamePropertyList(changes.at(index).newValue, newValue)) << index;
    }

    std::vector<SettingsStore::Change> changes;
    Kind kind;
    SettingsStore &store = kind.store;
};

using Kinds = ::testing::Types<InMemory, OnFile>;
TYPED_TEST_SUITE(SettingsStoreConformance, Kinds);

TYPED_TEST(SettingsStoreConformance, AnUnsetKeyIsAbsent)
{
    EXPECT_FALSE(this->store.get(keys::loginStart).isValid());
    EXPECT_FALSE(this->store.getBool(keys::loginStart));
    EXPECT_EQ(this->store.getInteger(keys::defaultTimerMinutes), 0);
    EXPECT_EQ(this->store.getString(keys::externalIPAddress), QString());
    EXPECT_TRUE(this->store.getDictionary(keys::deviceDict).isEmpty());
}

TYPED_TEST(SettingsStoreConformance, AValueOfAnotherTypeReadsAsFalseZeroOrEmpty)
{
    this->store.set(keys::externalIPAddress, u"1"_s);
    EXPECT_FALSE(this->store.getBool(keys::externalIPAddress));
    EXPECT_EQ(this->store.getInteger(keys::externalIPAddress), 0);
    this->store.set(keys::vendorCountValue, 5);
    EXPECT_EQ(this->store.getString(keys::vendorCountValue), QString());
    EXPECT_TRUE(this->store.getDictionary(keys::vendorCountValue).isEmpty());
    EXPECT_TRUE(this->store.getBool(keys::vendorCountValue));
}

TYPED_TEST(SettingsStoreConformance, ReadsFallBackToTheDefaults)
{
    this->store.registerDefaults({{keys::showInMenu, true}, {keys::defaultTimerMinutes, 30}});
    EXPECT_TRUE(this->store.getBool(keys::showInMenu));
    this->store.setBool(keys::showInMenu, false);
    EXPECT_FALSE(this->store.getBool(keys::showInMenu));
    this->store.set(keys::showInMenu, QVariant());
    EXPECT_TRUE(this->store.getBool(keys::showInMenu));
    this->store.registerDefaults({{keys::showInMenu, true}});
    EXPECT_EQ(this->store.getInteger(keys::defaultTimerMinutes), 0)
        << "the second registration replaces the first";
}

TYPED_TEST(SettingsStoreConformance, AWriteReplacesTheWholeTable)
{
    const QVariantMap wired{{u"interface"_s, u"Ethernet"_s}};
    this->store.set(keys::deviceDict, QVariantMap{{u"en0"_s, wired}, {u"en1"_s, wired}});
    this->store.set(keys::deviceDict, QVariantMap{{u"en2"_s, wired}});
    EXPECT_EQ(this->store.getDictionary(keys::deviceDict).keys(), QStringList({u"en2"_s}));
}

TYPED_TEST(SettingsStoreConformance, OfTwoWritersThatReadBeforeEitherWritesOneUpdateIsLost)
{
    QVariantMap one = this->store.getDictionary(keys::deviceDict);
    QVariantMap other = this->store.getDictionary(keys::deviceDict);
    one.insert(u"en0"_s, QVariantMap());
    other.insert(u"en1"_s, QVariantMap());
    this->store.set(keys::deviceDict, one);
    this->store.set(keys::deviceDict, other);
    EXPECT_EQ(this->store.getDictionary(keys::deviceDict).keys(), QStringList({u"en1"_s}));
}

TYPED_TEST(SettingsStoreConformance, AChangedCopyDoesNotChangeTheStore)
{
    this->store.set(keys::deviceDict, QVariantMap{{u"en0"_s, 1}});
    QVariantMap copy = this->store.getDictionary(keys::deviceDict);
    copy.clear();
    EXPECT_EQ(this->store.getDictionary(keys::deviceDict).size(), 1);
}

TYPED_TEST(SettingsStoreConformance, WhatIsNoPropertyListIsRefused)
{
    this->observe(keys::deviceDict);
    this->store.set(keys::deviceDict, QVariantMap{{u"en0"_s, QPoint(1, 2)}});
    EXPECT_FALSE(this->store.get(keys::deviceDict).isValid());
    EXPECT_TRUE(this->changes.empty());
}

TYPED_TEST(SettingsStoreConformance, AnObserverHearsOldAndNewBeforeSetReturns)
{
    this->store.registerDefaults({{keys::lowerCaseHEX, false}});
    this->observe(keys::lowerCaseHEX);
    this->store.setBool(keys::hideDock, true);
    this->store.setBool(keys::lowerCaseHEX, true);
    ASSERT_EQ(this->changes.size(), 1U);
    EXPECT_EQ(this->changes.front().key, keys::lowerCaseHEX);
    this->expectChange(0, false, true);
    this->store.set(keys::lowerCaseHEX, QVariant());
    this->expectChange(1, true, false);
}

TYPED_TEST(SettingsStoreConformance, AnAbsentValueIsOldOrNewAsAnInvalidOne)
{
    this->observe(keys::editingRuleNetwork);
    this->store.set(keys::editingRuleNetwork, u"aa:bb"_s);
    this->store.set(keys::editingRuleNetwork, QVariant());
    this->expectChange(0, QVariant(), u"aa:bb"_s);
    this->expectChange(1, u"aa:bb"_s, QVariant());
}

TYPED_TEST(SettingsStoreConformance, AnEqualValueIsNoChange)
{
    this->store.set(keys::deviceDict, QVariantMap{{u"count"_s, 3LL}});
    this->observe(keys::deviceDict);
    this->store.set(keys::deviceDict, QVariantMap{{u"count"_s, 3}});
    EXPECT_TRUE(this->changes.empty());
    this->store.set(keys::deviceDict, QVariantMap{{u"count"_s, 3.0}});
    EXPECT_EQ(this->changes.size(), 1U) << "another type is another value";
}

TYPED_TEST(SettingsStoreConformance, AValueEqualToItsDefaultIsNoChangeButIsKept)
{
    this->store.registerDefaults({{keys::showInMenu, true}});
    this->observe(keys::showInMenu);
    this->store.setBool(keys::showInMenu, true);
    EXPECT_TRUE(this->changes.empty());
    this->store.registerDefaults({{keys::showInMenu, false}});
    EXPECT_TRUE(this->store.getBool(keys::showInMenu));
    EXPECT_TRUE(this->changes.empty());
}

TYPED_TEST(SettingsStoreConformance, ANewDefaultIsAChangeWhereNothingIsStored)
{
    this->observe(keys::showInMenu);
    this->store.registerDefaults({{keys::showInMenu, true}});
    this->expectChange(0, QVariant(), true);
}

TYPED_TEST(SettingsStoreConformance, AChangeOfAnotherThreadIsHeardLaterOnTheMainThreadInOrder)
{
    this->observe(keys::vendorCountValue);
    std::atomic<bool> done = false;
    this->kind.scheduler.inBackground([&] {
        this->store.set(keys::vendorCountValue, 1);
        this->store.set(keys::vendorCountValue, 2);
        done = true;
    });
    ASSERT_TRUE(this->kind.soon([&] { return done && this->changes.size() == 2; }));
    this->expectChange(0, QVariant(), 1LL);
    this->expectChange(1, 1LL, 2LL);
}

TYPED_TEST(SettingsStoreConformance, AChangeByAnotherProgramIsHeardLikeOneMadeHere)
{
    this->store.registerDefaults({{keys::lowerCaseHEX, false}});
    this->store.setBool(keys::hideDock, true);
    this->observe(keys::lowerCaseHEX);
    this->kind.changeFromOutside(keys::lowerCaseHEX, true);
    EXPECT_TRUE(this->changes.empty());
    ASSERT_TRUE(this->kind.soon([&] { return this->changes.size() == 1; }));
    this->expectChange(0, false, true);
    EXPECT_TRUE(this->store.getBool(keys::lowerCaseHEX));
    EXPECT_TRUE(this->store.getBool(keys::hideDock));
}

TYPED_TEST(SettingsStoreConformance, AKeyRemovedByAnotherProgramFallsBackToItsDefault)
{
    this->store.registerDefaults({{keys::defaultTimerMinutes, 30}});
    this->store.set(keys::defaultTimerMinutes, 5);
    this->observe(keys::defaultTimerMinutes);
    this->kind.changeFromOutside(keys::defaultTimerMinutes, QVariant());
    ASSERT_TRUE(this->kind.soon([&] { return this->changes.size() == 1; }));
    this->expectChange(0, 5LL, 30LL);
}

TYPED_TEST(SettingsStoreConformance, AnObserverMaySetOtherKeysAndItsOwn)
{
    this->observe(keys::hideDock);
    this->store.addObserver(keys::showInMenu, [this](const auto &change) {
        if (!change.newValue.toBool()) {
            this->store.setBool(keys::hideDock, false);
            this->store.setBool(keys::showInMenu, true);
        }
    });
    this->store.setBool(keys::hideDock, true);
    this->store.setBool(keys::showInMenu, false);
    this->expectChange(1, true, false);
    EXPECT_TRUE(this->store.getBool(keys::showInMenu));
}

TYPED_TEST(SettingsStoreConformance, WhatIsSynchronizedIsStoredSoonAndWhatIsFlushedIsStored)
{
    this->store.registerDefaults({{keys::showInMenu, true}});
    this->store.set(keys::defaultTimerMinutes, 5);
    this->store.synchronize();
    const QVariantMap first{{keys::defaultTimerMinutes, 5LL}};
    EXPECT_TRUE(this->kind.soon([&] { return this->kind.stored() == first; }));
    this->store.set(keys::defaultTimerMinutes, 6);
    EXPECT_TRUE(this->store.flush());
    const QVariantMap second{{keys::defaultTimerMinutes, 6LL}};
    EXPECT_EQ(this->kind.stored(), second);
}

TYPED_TEST(SettingsStoreConformance, AnObserverMaySynchronizeAndFlush)
{
    bool flushed = false;
    this->store.addObserver(keys::hideDock, [&](const auto &) {
        this->store.synchronize();
        flushed = this->store.flush();
    });
    this->store.setBool(keys::hideDock, true);
    EXPECT_TRUE(flushed);
}

TYPED_TEST(SettingsStoreConformance, AnObserverMayRemoveItselfAndOthersAndAddNewOnes)
{
    int removedHeard = 0;
    int addedHeard = 0;
    SettingsStore::Token self = 0;
    SettingsStore::Token other = 0;
    self = this->store.addObserver(keys::hideDock, [&](const auto &) {
        this->store.removeObserver(self);
        this->store.removeObserver(other);
        this->store.addObserver(keys::hideDock, [&](const auto &) { ++addedHeard; });
    });
    other = this->store.addObserver(keys::hideDock, [&](const auto &) { ++removedHeard; });
    this->store.setBool(keys::hideDock, true);
    EXPECT_EQ(addedHeard, 0) << "an observer hears of no change made before it was added";
    this->store.setBool(keys::hideDock, false);
    EXPECT_EQ(removedHeard, 0);
    EXPECT_EQ(addedHeard, 1);
}

TYPED_TEST(SettingsStoreConformance, AChangeOfAnotherThreadIsNotForObserversAddedAfterIt)
{
    this->kind.offMainThread([&] { this->store.set(keys::vendorCountValue, 1); });
    this->observe(keys::vendorCountValue);
    bool turned = false;
    this->kind.scheduler.onMain([&] { turned = true; });
    ASSERT_TRUE(this->kind.soon([&] { return turned; }));
    EXPECT_TRUE(this->changes.empty());
}

TYPED_TEST(SettingsStoreConformance, AnEarlierChangeOfAnotherThreadIsHeardBeforeOneOfTheMainThread)
{
    this->observe(keys::vendorCountValue);
    this->kind.offMainThread([&] { this->store.set(keys::vendorCountValue, 1); });
    this->store.set(keys::vendorCountValue, 2);
    ASSERT_EQ(this->changes.size(), 2U);
    this->expectChange(0, QVariant(), 1LL);
    this->expectChange(1, 1LL, 2LL);
}

TYPED_TEST(SettingsStoreConformance, ARemovedObserverHearsNothing)
{
    int heard = 0;
    const auto token = this->store.addObserver(keys::hideDock, [&](const auto &) { ++heard; });
    this->store.removeObserver(token);
    this->store.removeObserver(token);
    this->store.setBool(keys::hideDock, true);
    EXPECT_EQ(heard, 0);
}

TYPED_TEST(SettingsStoreConformance, ManyThreadsMayReadAndWriteAtOnce)
{
    this->observe(keys::vendorCountValue);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([this, thread] {
            const QString own = u"thread %1"_s.arg(thread);
            for (int round = 1; round <= 100; ++round) {
                this->store.set(own, round);
                EXPECT_EQ(this->store.getInteger(own), round);
                this->store.synchronize();
                if (round % 50 == 0) {
                    EXPECT_TRUE(this->store.flush());
                }
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    for (int thread = 0; thread < 4; ++thread) {
        EXPECT_EQ(this->store.getInteger(u"thread %1"_s.arg(thread)), 100);
    }
}

} // namespace
} // namespace quillon
