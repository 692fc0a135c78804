// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QuillonAppDelegate.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "fakes/FakePlatform.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

const QString loginHelper = QStringLiteral("com.orvandel.Quillon4Helper");

class LaunchSequenceTest : public ::testing::Test
{
protected:
    void note(const char *step) { journal.append(QString::fromLatin1(step)); }

    template <typename Signal>
    void noteWhen(Signal signal, const char *step)
    {
        QObject::connect(&delegate->launch(), signal, [this, step] { note(step); });
    }

    /// Makes the delegate and notes every step that can be seen from outside.
    void create()
    {
        QuillonAppDelegate::initialize(
            machine.settings, {{keys::displayNotifications, true}, {keys::showInMenu, true}});
        delegate.emplace(machine.platform());
        noteWhen(&LaunchSequence::mainWindowPrepared, "window prepared");
        noteWhen(&LaunchSequence::vendorDatabaseDue, "vendor database");
        noteWhen(&LaunchSequence::recordStoreDue, "record store");
        noteWhen(&LaunchSequence::loginItemDue, "login item");
        noteWhen(&LaunchSequence::countdownLabelDue, "countdown label");
        noteWhen(&LaunchSequence::hotKeysDue, "hot keys");
        noteWhen(&LaunchSequence::vendorCountDue, "vendor count");
        noteWhen(&LaunchSequence::quickAddressesDue, "quick addresses");
        noteWhen(&LaunchSequence::vendorFieldDue, "vendor field");
        noteWhen(&LaunchSequence::cloudCheckDue, "cloud check");
        noteWhen(&LaunchSequence::locationPermissionDue, "location permission");
        noteWhen(&LaunchSequence::externalAddressDue, "external address");
        noteWhen(&LaunchSequence::firstRuleCheckDue, "first rule check");
        Presence &presence = delegate->presence();
        QObject::connect(&presence, &Presence::windowOpened, [this] { note("window opened"); });
        QObject::connect(
            &presence, &Presence::windowHidden, [this] { note("application hidden"); });
        QObject::connect(
            &presence, &Presence::dockIconHiddenChanged, [this] { note("Dock icon"); });
        QObject::connect(
            &presence, &Presence::statusItemShownChanged, [this] { note("status item"); });
        QObject::connect(&delegate->mainWindow(), &MainWindowModel::infoButtonsReset,
            [this] { note("info buttons reset"); });
        machine.host.clearJournal();
    }

    void launch()
    {
        create();
        delegate->launch().awakeFromNib();
        delegate->launch().applicationWillFinishLaunching();
        delegate->launch().applicationDidFinishLaunching();
    }

    FakePlatform machine;
    std::optional<QuillonAppDelegate> delegate;
    QStringList journal;
};

TEST_F(LaunchSequenceTest, TheStepsComeInTheirOrder)
{
    launch();
    EXPECT_THAT(journal,
        ElementsAre(QStringLiteral("window prepared"), QStringLiteral("application hidden"),
            QStringLiteral("vendor database"), QStringLiteral("record store"),
            QStringLiteral("Dock icon"), QStringLiteral("status item"), QStringLiteral("Dock icon"),
            QStringLiteral("window opened"), QStringLiteral("countdown label"),
            QStringLiteral("hot keys"), QStringLiteral("vendor count"),
            QStringLiteral("quick addresses"), QStringLiteral("info buttons reset"),
            QStringLiteral("vendor field"), QStringLiteral("cloud check"),
            QStringLiteral("location permission"), QStringLiteral("external address")));
}

TEST_F(LaunchSequenceTest, EachStepFindsWhatTheStepsBeforeItDidAndNothingMore)
{
    machine.settings.setBool(keys::loginStart, true);
    create();
    LaunchSequence &launch = delegate->launch();
    int checked = 0;
    const auto at = [&](auto signal, auto check) {
        QObject::connect(&launch, signal, [&checked, check] {
            check();
            ++checked;
        });
    };
    at(&LaunchSequence::vendorDatabaseDue,
        [&] { EXPECT_TRUE(machine.helper.journal().isEmpty()); });
    at(&LaunchSequence::recordStoreDue, [&] {
        EXPECT_TRUE(machine.helper.journal().contains(QStringLiteral("authorize")));
        EXPECT_FALSE(machine.settings.get(keys::externalIPAddress).isValid());
    });
    at(&LaunchSequence::loginItemDue, [&] {
        EXPECT_TRUE(delegate->presence().isStatusItemShown());
        EXPECT_EQ(machine.userNotifications.authorizationRequests, 0);
    });
    QObject::connect(&delegate->presence(), &Presence::statusItemShownChanged, [&] {
        EXPECT_TRUE(machine.settings.get(keys::externalIPAddress).isValid());
        ++checked;
    });
    at(&LaunchSequence::countdownLabelDue,
        [&] { EXPECT_EQ(machine.userNotifications.authorizationRequests, 1); });
    at(&LaunchSequence::quickAddressesDue,
        [&] { EXPECT_FALSE(machine.host.journal().contains(QStringLiteral("ports"))); });
    at(&LaunchSequence::vendorFieldDue, [&] {
        EXPECT_TRUE(machine.host.journal().contains(QStringLiteral("ports")));
        EXPECT_FALSE(machine.networkChanges.isStarted());
    });
    at(&LaunchSequence::cloudCheckDue, [&] {
        EXPECT_TRUE(delegate->mainWindow().state().selectionVisible);
        EXPECT_TRUE(machine.networkChanges.isStarted());
    });
    launch.awakeFromNib();
    launch.applicationWillFinishLaunching();
    launch.applicationDidFinishLaunching();
    EXPECT_EQ(checked, 8);
}

TEST_F(LaunchSequenceTest, DefaultsAreRegisteredBeforeTheFirstComponentAndFlushed)
{
    QuillonAppDelegate::initialize(machine.settings, {{keys::showInMenu, true}});
    EXPECT_TRUE(machine.settings.getBool(keys::showInMenu));
    EXPECT_TRUE(machine.settings.stored().isEmpty()) << "defaults are never stored";
    EXPECT_EQ(machine.settings.synchronizeCount(), 1);
}

TEST_F(LaunchSequenceTest, WithoutPackagedDefaultsReadsFallBackToNothingAndTheLaunchGoesOn)
{
    QuillonAppDelegate::initialize(machine.settings, {});
    delegate.emplace(machine.platform());
    delegate->launch().awakeFromNib();
    delegate->launch().applicationWillFinishLaunching();
    delegate->launch().applicationDidFinishLaunching();
    machine.scheduler.advance(1s);

    EXPECT_FALSE(delegate->presence().isStatusItemShown());
    EXPECT_EQ(machine.userNotifications.authorizationRequests, 0);
    EXPECT_EQ(delegate->mainWindow().state().selectedDevice, QStringLiteral("enp1s0"));
}

TEST_F(LaunchSequenceTest, BeforeTheHelperAnsweredNothingCanBeChanged)
{
    launch();
    const MainWindowModel::State &window = delegate->mainWindow().state();
    EXPECT_FALSE(window.randomiseEnabled);
    EXPECT_FALSE(window.restoreEnabled);
    EXPECT_FALSE(window.updateEnabled);
    EXPECT_FALSE(window.fieldEnabled);
    EXPECT_FALSE(window.readMeVisible);
}

TEST_F(LaunchSequenceTest, TheHelperIsAuthorisedBeforeItsVersionIsAsked)
{
    launch();
    machine.scheduler.runPending();
    const QStringList asked = machine.helper.journal();
    EXPECT_EQ(asked.indexOf(QStringLiteral("authorize")), 0);
    EXPECT_LT(asked.indexOf(QStringLiteral("rights")), asked.indexOf(QStringLiteral("endpoint")));
    EXPECT_TRUE(asked.contains(QStringLiteral("version")));
}

TEST_F(LaunchSequenceTest, TheDevicesAreReadAndTheAddressFieldIsFilled)
{
    launch();
    machine.scheduler.runPending();
    const MainWindowModel::State &window = delegate->mainWindow().state();
    EXPECT_EQ(window.devices, (QStringList{QStringLiteral("enp1s0"), QStringLiteral("enp2s0")}));
    EXPECT_EQ(window.fieldText, QStringLiteral("3C:22:FB:00:00:01"));
}

TEST_F(LaunchSequenceTest, TheFirstRuleCheckComesOneSecondAfterStartup)
{
    launch();
    machine.scheduler.advance(999ms);
    EXPECT_FALSE(journal.contains(QStringLiteral("first rule check")));
    machine.scheduler.advance(1ms);
    EXPECT_TRUE(journal.contains(QStringLiteral("first rule check")));
}

TEST_F(LaunchSequenceTest, StartedByTheUserTheWindowOpensBeforeStartup)
{
    launch();
    EXPECT_LT(journal.indexOf(QStringLiteral("window opened")),
        journal.indexOf(QStringLiteral("hot keys")));
    EXPECT_FALSE(delegate->launch().startedFromLogin());
}

TEST_F(LaunchSequenceTest, StartedAtLoginAndHiddenNoWindowOpensButDevicesAreReadAndRulesChecked)
{
    machine.runningApplications.running.insert(loginHelper);
    machine.settings.setBool(keys::hideOnLaunch, true);
    launch();
    machine.scheduler.advance(1s);

    EXPECT_FALSE(journal.contains(QStringLiteral("window opened")));
    EXPECT_TRUE(machine.host.journal().contains(QStringLiteral("ports")));
    EXPECT_EQ(journal.count(QStringLiteral("first rule check")), 1);
}

TEST_F(LaunchSequenceTest, StartedAtLoginWithoutHidingTheWindowOpens)
{
    machine.runningApplications.running.insert(loginHelper);
    launch();
    EXPECT_TRUE(journal.contains(QStringLiteral("window opened")));
    EXPECT_TRUE(delegate->launch().startedFromLogin());
}

TEST_F(LaunchSequenceTest, StartedByTheUserHidingDoesNotApply)
{
    machine.settings.setBool(keys::hideOnLaunch, true);
    launch();
    EXPECT_TRUE(journal.contains(QStringLiteral("window opened")));
}

TEST_F(LaunchSequenceTest, TheLoginStartIsKnownUntilTheFirstRuleCheckHasRun)
{
    machine.runningApplications.running.insert(loginHelper);
    launch();
    bool knownAtTheCheck = false;
    QObject::connect(&delegate->launch(), &LaunchSequence::firstRuleCheckDue,
        [&] { knownAtTheCheck = delegate->launch().startedFromLogin(); });
    machine.scheduler.advance(1s);

    EXPECT_TRUE(knownAtTheCheck);
    EXPECT_FALSE(delegate->launch().startedFromLogin());
}

TEST_F(LaunchSequenceTest, TheLoginItemIsPreparedOnlyWhenTheProgramStartsAtLogin)
{
    machine.settings.setBool(keys::loginStart, true);
    launch();
    EXPECT_EQ(journal.indexOf(QStringLiteral("login item")),
        journal.indexOf(QStringLiteral("window opened")) - 1);
}

TEST_F(LaunchSequenceTest, AnUnsetExternalAddressIsStoredAsUnknownAndASetOneIsKept)
{
    launch();
    EXPECT_EQ(machine.settings.getString(keys::externalIPAddress), QStringLiteral("Unknown..."));

    FakePlatform other;
    other.settings.set(keys::externalIPAddress, QStringLiteral("198.51.100.7"));
    QuillonAppDelegate second(other.platform());
    second.launch().applicationDidFinishLaunching();
    EXPECT_EQ(other.settings.getString(keys::externalIPAddress), QStringLiteral("198.51.100.7"));
}

TEST_F(LaunchSequenceTest, QuittingForgetsTheExternalAddressDurably)
{
    launch();
    machine.settings.set(keys::externalIPAddress, QStringLiteral("198.51.100.7"));
    machine.settings.clearJournal();
    delegate->launch().applicationWillTerminate();
    EXPECT_EQ(machine.settings.getString(keys::externalIPAddress), QStringLiteral("Unknown..."));
    EXPECT_EQ(machine.settings.journal().last(), QStringLiteral("flush"));
}

TEST_F(LaunchSequenceTest, ASecondStartOpensTheWindow)
{
    launch();
    journal.clear();
    EXPECT_TRUE(delegate->launch().applicationShouldHandleReopen());
    EXPECT_THAT(journal, ElementsAre(QStringLiteral("window opened")));
}

TEST_F(LaunchSequenceTest, ALoginItemStillRunningIsToldToQuit)
{
    launch();
    EXPECT_TRUE(machine.distributed.posted.contains(
        {notifications::terminateLoginHelper, notifications::applicationObject}));
}

TEST_F(LaunchSequenceTest, AfterTheProgramsEndNothingObservesAnyMore)
{
    launch();
    machine.scheduler.advance(1s);
    delegate.reset();
    EXPECT_FALSE(machine.distributed.hasObservers());
    EXPECT_FALSE(machine.settings.hasObservers());
    EXPECT_FALSE(machine.notifications.hasObservers());
    machine.settings.setBool(keys::lowerCaseHEX, true);
    machine.notifications.post(notifications::networkChanged);
    machine.scheduler.runPending();
}

} // namespace
} // namespace quillon::test
