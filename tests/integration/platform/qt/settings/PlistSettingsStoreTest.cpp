// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsFileTest.h"
#include "base/SettingsKeys.h"
#include "unit/platform/qt/settings/AnotherLibrary.h"
#include "unit/platform/qt/settings/EveryKindOfValue.h"

#include <sys/stat.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

using PlistSettingsStoreTest = test::SettingsFileTest;

ino_t fileNumber(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

QByteArray asBinary(const QVariantMap &values)
{
    return test::madeByAnotherLibrary(values, plist_to_bin);
}

TEST_F(PlistSettingsStoreTest, EveryKindOfValueOutlivesTheProgram)
{
    openStore();
    const QVariantMap values = test::everyKindOfValue();
    for (const QString &key : values.keys()) {
        store->set(key, values.value(key));
    }
    reopenStore();
    for (const QString &key : values.keys()) {
        EXPECT_TRUE(isSamePropertyList(store->get(key), values.value(key))) << key.toStdString();
    }
    EXPECT_TRUE(problems.empty());
}

TEST_F(PlistSettingsStoreTest, TheFileIsAnXmlPropertyListOfTheUserAlone)
{
    openStore();
    store->setBool(keys::hideDock, true);
    ASSERT_TRUE(store->flush());
    EXPECT_TRUE(read(path).startsWith("<?xml"));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther),
        QFile::Permissions());
    EXPECT_TRUE(others().isEmpty());
}

TEST_F(PlistSettingsStoreTest, TheRightsThatTheUserGaveTheFileStay)
{
    openStore();
    store->setBool(keys::hideDock, true);
    ASSERT_TRUE(store->flush());
    const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(path, rights));
    store->setBool(keys::hideDock, false);
    ASSERT_TRUE(store->flush());
    EXPECT_TRUE(QFile::permissions(path) & QFile::ReadGroup);
}

TEST_F(PlistSettingsStoreTest, DefaultsAreNeverWritten)
{
    openStore();
    store->registerDefaults({{keys::showInMenu, true}});
    store->setBool(keys::hideDock, true);
    ASSERT_TRUE(store->flush());
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
}

TEST_F(PlistSettingsStoreTest, WithoutAnythingToStoreThereIsNoFile)
{
    openStore();
    store->registerDefaults({{keys::showInMenu, true}});
    EXPECT_TRUE(store->flush());
    store.reset();
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(PlistSettingsStoreTest, ItsFolderIsMadeWhenMissing)
{
    path = folder.filePath(u"new/folder/settings.plist"_s);
    openStore();
    store->setBool(keys::hideDock, true);
    EXPECT_TRUE(store->flush());
    EXPECT_TRUE(content().value(keys::hideDock).toBool());
}

TEST_F(PlistSettingsStoreTest, SeveralChangesMakeOneWriteAMomentLaterAndNothingRunsWhenIdle)
{
    openStore();
    store->setBool(keys::hideDock, true);
    store->setBool(keys::loginStart, true);
    scheduler.advance(49ms);
    EXPECT_FALSE(QFile::exists(path));
    scheduler.advance(1ms);
    EXPECT_EQ(content().size(), 2);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(PlistSettingsStoreTest, SeveralCallsOfSynchronizeMakeOneWriteAMomentLater)
{
    replacedByAnother({{keys::defaultTimerMinutes, 0}});
    openStore();
    const ino_t number = fileNumber(path);
    for (int minutes = 1; minutes <= 5; ++minutes) {
        store->set(keys::defaultTimerMinutes, minutes);
        store->synchronize();
        EXPECT_EQ(fileNumber(path), number);
        scheduler.advance(9ms);
    }
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(0LL));
    scheduler.advance(5ms);
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(5LL));
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(PlistSettingsStoreTest, SynchronizeTakesOverWhatAnotherProgramWrote)
{
    openStore();
    store->set(keys::defaultTimerMinutes, 5);
    replacedByAnother({{keys::hideDock, true}});
    store->synchronize();
    EXPECT_FALSE(store->getBool(keys::hideDock));
    scheduler.advance(50ms);
    EXPECT_TRUE(store->getBool(keys::hideDock));
    const QVariantMap both{{keys::hideDock, true}, {keys::defaultTimerMinutes, 5LL}};
    EXPECT_EQ(content(), both);
}

TEST_F(PlistSettingsStoreTest, AnEqualValueIsNotWrittenAgain)
{
    openStore();
    store->set(keys::defaultTimerMinutes, 5);
    ASSERT_TRUE(store->flush());
    scheduler.advance(1s);
    const ino_t number = fileNumber(path);
    store->set(keys::defaultTimerMinutes, 5LL);
    EXPECT_FALSE(scheduler.hasTimers());
    ASSERT_TRUE(store->flush());
    EXPECT_EQ(fileNumber(path), number);
}

TEST_F(PlistSettingsStoreTest, TheLastChangesAreWrittenWhenItIsDestroyed)
{
    openStore();
    store->setBool(keys::hideDock, true);
    store.reset();
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
    scheduler.advance(1s);
}

TEST_F(PlistSettingsStoreTest, CharactersThatTheFileCannotCarryReadAlikeBeforeAndAfter)
{
    openStore();
    const QString name = QString::fromLatin1("caf\x07", 4);
    store->set(keys::currentWiFiDict, QVariantMap{{u"ssid"_s, name}});
    const QVariant before = store->get(keys::currentWiFiDict);
    reopenStore();
    EXPECT_EQ(store->get(keys::currentWiFiDict), before);
    EXPECT_EQ(before.toMap().value(u"ssid"_s).toString(), u"caf"_s + QChar::ReplacementCharacter);
}

TEST_F(PlistSettingsStoreTest, KeysThatNobodyKnowsAreKept)
{
    replacedByAnother({{u"somebody else's"_s, QVariantList{1, QVariantMap()}}});
    openStore();
    store->setBool(keys::hideDock, true);
    store.reset();
    EXPECT_EQ(content().value(u"somebody else's"_s), QVariant(QVariantList{1LL, QVariantMap()}));
}

TEST_F(PlistSettingsStoreTest, ABinaryPropertyListIsADamagedFile)
{
    const QByteArray binary = asBinary({{keys::defaultTimerMinutes, 7}});
    ASSERT_TRUE(binary.startsWith("bplist00"));
    ASSERT_TRUE(write(path, binary));
    openStore();
    store->registerDefaults({{keys::defaultTimerMinutes, 30}});
    ASSERT_TRUE(problemIs(SettingsProblem::Kind::Damaged));
    EXPECT_EQ(problems.front().error.domain, propertyListErrorDomain);
    EXPECT_EQ(read(problems.front().keptPath), binary);
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 30);
    store->setBool(keys::hideDock, true);
    store.reset();
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
}

TEST_F(PlistSettingsStoreTest, ABinaryPropertyListInTheFilesPlaceLosesNothing)
{
    replacedByAnother({{keys::hideDock, true}});
    openStore();
    const QByteArray binary = asBinary({{keys::hideDock, false}});
    ASSERT_TRUE(write(path, binary));
    ASSERT_TRUE(store->flush());
    scheduler.runPending();
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
    ASSERT_TRUE(problemIs(SettingsProblem::Kind::Damaged));
    EXPECT_EQ(read(problems.front().keptPath), binary);
}

TEST_F(PlistSettingsStoreTest, ChangesOfDifferentKeysHereAndElsewhereBothStand)
{
    replacedByAnother({{keys::hideDock, true}, {keys::externalIPAddress, u"old"_s}});
    openStore();
    store->set(keys::defaultTimerMinutes, 5);
    replacedByAnother({{keys::hideDock, false}});
    ASSERT_TRUE(store->flush());
    const QVariantMap both{{keys::hideDock, false}, {keys::defaultTimerMinutes, 5LL}};
    EXPECT_EQ(content(), both);
    EXPECT_FALSE(store->get(keys::externalIPAddress).isValid());
}

TEST_F(PlistSettingsStoreTest, OfTheSameKeyTheUnsavedWriteHereWinsAndTheSavedOneYields)
{
    openStore();
    store->set(keys::defaultTimerMinutes, 5);
    replacedByAnother({{keys::defaultTimerMinutes, 9}});
    ASSERT_TRUE(store->flush());
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(5LL));
    replacedByAnother({{keys::defaultTimerMinutes, 9}});
    ASSERT_TRUE(store->flush());
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 9);
}

TEST_F(PlistSettingsStoreTest, ARemovalHereAlsoWinsUntilItIsSaved)
{
    replacedByAnother({{keys::editingRuleNetwork, u"a"_s}});
    openStore();
    store->set(keys::editingRuleNetwork, QVariant());
    replacedByAnother({{keys::editingRuleNetwork, u"b"_s}});
    ASSERT_TRUE(store->flush());
    EXPECT_FALSE(content().contains(keys::editingRuleNetwork));
}

TEST_F(PlistSettingsStoreTest, AFileWrittenInPlaceByAnotherProgramIsTakenOver)
{
    replacedByAnother({{keys::defaultTimerMinutes, 1}});
    openStore();
    ASSERT_TRUE(write(path, xmlPropertyList({{keys::defaultTimerMinutes, 2}})));
    EXPECT_TRUE(storeSoonHas(keys::defaultTimerMinutes, 2LL));
    ASSERT_TRUE(write(path, xmlPropertyList({{keys::defaultTimerMinutes, 3}})));
    EXPECT_TRUE(storeSoonHas(keys::defaultTimerMinutes, 3LL));
}

TEST_F(PlistSettingsStoreTest, AFileReplacedAgainAndAgainIsTakenOverEveryTime)
{
    openStore();
    for (qlonglong round = 1; round <= 5; ++round) {
        replacedByAnother({{keys::defaultTimerMinutes, round}});
        EXPECT_TRUE(storeSoonHas(keys::defaultTimerMinutes, round)) << round;
    }
}

TEST_F(PlistSettingsStoreTest, AFileThatWasReplacedIsStillWatched)
{
    openStore();
    replacedByAnother({{keys::defaultTimerMinutes, 1}});
    ASSERT_TRUE(storeSoonHas(keys::defaultTimerMinutes, 1LL));
    ASSERT_TRUE(write(path, xmlPropertyList({{keys::defaultTimerMinutes, 2}})));
    EXPECT_TRUE(storeSoonHas(keys::defaultTimerMinutes, 2LL));
}

TEST_F(PlistSettingsStoreTest, AFileInTheMiddleOfBeingWrittenIsWaitedFor)
{
    replacedByAnother({{keys::defaultTimerMinutes, 1}, {keys::hideDock, true}});
    openStore();
    const QByteArray whole =
        xmlPropertyList({{keys::defaultTimerMinutes, 2}, {keys::hideDock, true}});
    ASSERT_TRUE(write(path, whole.left(whole.size() / 2)));
    ASSERT_TRUE(test::holdsSoon(
        [this] { return scheduler.hasTimers(); }, [this] { scheduler.runPending(); }));
    EXPECT_TRUE(store->getBool(keys::hideDock));
    ASSERT_TRUE(write(path, whole));
    scheduler.advance(1s);
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 2);
    EXPECT_TRUE(problems.empty());
    EXPECT_TRUE(others().isEmpty());
}

TEST_F(PlistSettingsStoreTest, AFileThatStaysDamagedIsSetAsideAndTheValuesAreWrittenAgain)
{
    replacedByAnother({{keys::hideDock, true}});
    openStore();
    ASSERT_TRUE(write(path, "scribble"));
    ASSERT_TRUE(test::holdsSoon(
        [this] { return scheduler.hasTimers(); }, [this] { scheduler.runPending(); }));
    scheduler.advance(1s);
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
    ASSERT_TRUE(problemIs(SettingsProblem::Kind::Damaged));
    EXPECT_EQ(read(problems.front().keptPath), "scribble");
}

TEST_F(PlistSettingsStoreTest, AFileThatDisappearsIsWrittenAgain)
{
    replacedByAnother({{keys::hideDock, true}});
    openStore();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(test::holdsSoon(
        [this] { return scheduler.hasTimers(); }, [this] { scheduler.runPending(); }));
    EXPECT_TRUE(store->getBool(keys::hideDock));
    scheduler.advance(1s);
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
    EXPECT_TRUE(problems.empty());
}

TEST_F(PlistSettingsStoreTest, AFileWhoseFolderDisappearedIsWrittenAgainAndStillWatched)
{
    const QString above = folder.filePath(u"above"_s);
    path = above + u"/own/com.orvandel.Quillon4.plist"_s;
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    replacedByAnother({{keys::hideDock, true}});
    openStore();
    for (qlonglong round = 1; round <= 2; ++round) {
        ASSERT_TRUE(QDir(above).removeRecursively());
        ASSERT_TRUE(test::holdsSoon(
            [this] { return scheduler.hasTimers(); }, [this] { scheduler.runPending(); }));
        scheduler.advance(1s);
        ASSERT_TRUE(content().value(keys::hideDock).toBool());
        // The first tells that the folder is there again, the second that it is watched.
        for (const qlonglong minutes : {round * 10, round * 10 + 1}) {
            replacedByAnother({{keys::hideDock, true}, {keys::defaultTimerMinutes, minutes}});
            ASSERT_TRUE(storeSoonHas(keys::defaultTimerMinutes, minutes)) << minutes;
        }
    }
    EXPECT_TRUE(problems.empty());
}

TEST_F(PlistSettingsStoreTest, ALinkToTheFileStaysALink)
{
    const QString target = folder.filePath(u"elsewhere.plist"_s);
    ASSERT_TRUE(write(target, xmlPropertyList({{keys::defaultTimerMinutes, 1}})));
    ASSERT_TRUE(QFile::link(target, path));
    openStore();
    store->set(keys::defaultTimerMinutes, 2);
    ASSERT_TRUE(store->flush());
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(readPropertyListFile(target).value().value(keys::defaultTimerMinutes), QVariant(2LL));
}

TEST_F(PlistSettingsStoreTest, AnObserverMayDestroyIt)
{
    openStore();
    store->addObserver(keys::hideDock, [this](const auto &) { store.reset(); });
    store->setBool(keys::hideDock, true);
    EXPECT_EQ(store, nullptr);
    EXPECT_TRUE(content().value(keys::hideDock).toBool());
}

} // namespace
} // namespace quillon
