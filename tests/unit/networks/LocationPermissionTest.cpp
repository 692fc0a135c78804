// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/LocationPermission.h"

#include "NetworkFixture.h"
#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeLocationAuthorization.h"
#include "fakes/FakeSystemSettings.h"
#include "fakes/LogCapture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Status = LocationAuthorization::Status;
using namespace std::chrono_literals;

class LocationPermissionTest : public NetworkFixture
{
protected:
    LocationPermissionTest()
        : permission(std::make_unique<LocationPermission>(LocationPermission::Collaborators{
              scheduler, authorization, alerts, systemSettings, network}))
    {
        QObject::connect(permission.get(), &LocationPermission::servicesFoundDisabled,
            [this] { ++foundDisabled; });
        alerts.answer = cancel;
    }

    void ask()
    {
        permission->requestNetworkPermissions();
        scheduler.runPending();
    }

    static constexpr int open = 0;
    static constexpr int cancel = 1;
    FakeLocationAuthorization authorization;
    FakeAlertPresenter alerts;
    FakeSystemSettings systemSettings;
    std::unique_ptr<LocationPermission> permission;
    int foundDisabled = 0;
};

TEST_F(LocationPermissionTest, IsAskedForOneSecondAfterTheStart)
{
    permission->requestNetworkPermissions();
    EXPECT_FALSE(authorization.delegate.didChangeAuthorization) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_TRUE(authorization.delegate.didChangeAuthorization);
    scheduler.advance(999ms);
    EXPECT_EQ(authorization.requests, 0);
    scheduler.advance(1ms);
    EXPECT_EQ(authorization.requests, 1);
    EXPECT_EQ(foundDisabled, 0);
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(LocationPermissionTest, IsAskedForFromTheWindowWhenServicesAreOff)
{
    authorization.enabled = false;
    ask();
    EXPECT_EQ(foundDisabled, 1);
    scheduler.advance(1s);
    EXPECT_EQ(authorization.requests, 1);
}

TEST_F(LocationPermissionTest, RefreshesTheNetworkAtEveryAnswer)
{
    ask();
    int reads = radio.reads;
    for (const Status status :
        {Status::NotDetermined, Status::Restricted, Status::Denied, Status::Authorized}) {
        authorization.answer(status);
        EXPECT_EQ(radio.reads, ++reads);
    }
}

TEST_F(LocationPermissionTest, ShowsTheNetworkOnceItIsGiven)
{
    const WiFiInterface visible = *radio.interface;
    radio.leave();
    ask();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::SSID), QString());
    radio.join(visible);
    authorization.answer(Status::Authorized);
    EXPECT_EQ(current(wifirecord::SSID), u"Home"_s);
    scheduler.advance(5s);
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(LocationPermissionTest, ExplainsARefusalOneSecondLater)
{
    ask();
    authorization.answer(Status::Denied);
    scheduler.advance(999ms);
    EXPECT_TRUE(alerts.alerts.isEmpty());
    scheduler.advance(1ms);
    const Alert expected = {
        u"Quillon requires Location Services to determine your current network details"_s,
        u"You need to give Quillon access in System Settings > Privacy & Security > "
        "Privacy > Location Services"_s,
        {u"Open"_s, u"Cancel"_s},
    };
    EXPECT_EQ(alerts.alerts, QList<Alert>{expected});
}

TEST_F(LocationPermissionTest, ExplainsOnlyARefusal)
{
    ask();
    for (const Status status : {Status::NotDetermined, Status::Restricted, Status::Authorized}) {
        authorization.answer(status);
    }
    scheduler.advance(5s);
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(LocationPermissionTest, ExplainsTheFailureThatMeansARefusal)
{
    ask();
    const int reads = radio.reads;
    authorization.fail(1);
    scheduler.advance(1s);
    EXPECT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(radio.reads, reads) << "a failure is no change of the authorization";
}

TEST_F(LocationPermissionTest, IgnoresOtherFailures)
{
    ask();
    for (const int code : {-1, 0, 2, 3, 16}) {
        authorization.fail(code);
    }
    scheduler.advance(5s);
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(LocationPermissionTest, DeniedTwiceInARowShowsOneAlert)
{
    ask();
    authorization.answer(Status::Denied);
    scheduler.advance(500ms);
    authorization.answer(Status::Denied);
    authorization.fail(LocationAuthorization::denied);
    scheduler.advance(5s);
    EXPECT_EQ(alerts.alerts.size(), 1);
}

TEST_F(LocationPermissionTest, DeniedWhileTheAlertIsOpenShowsNoSecondOne)
{
    ask();
    alerts.whileShown = [this] {
        authorization.answer(Status::Denied);
        scheduler.advance(5s);
    };
    authorization.answer(Status::Denied);
    scheduler.advance(1s);
    scheduler.advance(10s);
    EXPECT_EQ(alerts.alerts.size(), 1);
}

TEST_F(LocationPermissionTest, DeniedAgainAfterTheAlertShowsAnother)
{
    ask();
    authorization.answer(Status::Denied);
    scheduler.advance(1s);
    authorization.answer(Status::Denied);
    scheduler.advance(1s);
    EXPECT_EQ(alerts.alerts.size(), 2);
}

TEST_F(LocationPermissionTest, OpensTheSystemSettingsWhenTheUserWantsThat)
{
    ask();
    alerts.answer = open;
    int openedWhileShown = -1;
    alerts.whileShown = [&] { openedWhileShown = systemSettings.locationServicesOpened; };
    authorization.answer(Status::Denied);
    scheduler.advance(1s);
    EXPECT_EQ(openedWhileShown, 0);
    EXPECT_EQ(systemSettings.locationServicesOpened, 1);
}

TEST_F(LocationPermissionTest, CancelledOpensNothing)
{
    ask();
    authorization.answer(Status::Denied);
    scheduler.advance(1s);
    EXPECT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(systemSettings.locationServicesOpened, 0);
}

TEST_F(LocationPermissionTest, MayGoBeforeItAsks)
{
    permission->requestNetworkPermissions();
    permission.reset();
    scheduler.advance(5s);
    EXPECT_EQ(authorization.requests, 0);
}

TEST_F(LocationPermissionTest, MayGoBeforeItsAlertComes)
{
    ask();
    authorization.answer(Status::Denied);
    const int reads = radio.reads;
    permission.reset();
    scheduler.advance(5s);
    authorization.answer(Status::Denied);
    authorization.fail(1);
    scheduler.advance(5s);
    EXPECT_TRUE(alerts.alerts.isEmpty());
    EXPECT_EQ(radio.reads, reads);
    EXPECT_EQ(authorization.requests, 0);
}

TEST_F(LocationPermissionTest, MayGoWhileItsAlertIsOpen)
{
    ask();
    alerts.answer = open;
    alerts.whileShown = [this] { permission.reset(); };
    authorization.answer(Status::Denied);
    scheduler.advance(1s);
    EXPECT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(systemSettings.locationServicesOpened, 0);
}

class NoSystemSettings : public SystemSettings
{
public:
    bool openLocationServices() override { return false; }
};

TEST_F(LocationPermissionTest, LogsThatThereIsNoSettingsProgram)
{
    const LogCapture log;
    NoSystemSettings none;
    LocationPermission lost({scheduler, authorization, alerts, none, network});
    lost.openSystemSettings();
    EXPECT_EQ(LogCapture::taken(),
        QStringList{u"quillon.networks: No settings program found for location services"_s});
}

} // namespace
} // namespace quillon::test
