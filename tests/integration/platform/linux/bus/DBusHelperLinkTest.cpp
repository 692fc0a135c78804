// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/DBusHelperLink.h"

#include "contract/Names.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/FakePeer.h"
#include "integration/platform/linux/bus/PrivateBus.h"
#include "platform/linux/GetrandomSource.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QThread>
#include <gtest/gtest.h>

#include <vector>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

QDBusMessage silence(const QDBusMessage &)
{
    return {};
}

QDBusMessage success(const QDBusMessage &call)
{
    return call.createReply();
}

FakePeer::Answer saying(const QVariantList &values)
{
    return [values](const QDBusMessage &call) { return call.createReply(values); };
}

FakePeer::Answer refusing(const char *name)
{
    return [name](const QDBusMessage &call) {
        return call.createErrorReply(QLatin1String(name), u"because"_s);
    };
}

/// How one call ended.
struct Outcome
{
    int replies = 0;
    int failures = 0;
    bool onMainThread = true;
    std::optional<Error> error;
    QString text;
    std::optional<QString> endpoint;
    QByteArray authorization;

    void note() { onMainThread = onMainThread && QThread::currentThread() == qApp->thread(); }
    ErrorReply reply()
    {
        return [this](const std::optional<Error> &own) {
            note();
            ++replies;
            error = own;
        };
    }
    ErrorHandler failed()
    {
        return [this](const Error &transport) {
            note();
            ++failures;
            error = transport;
        };
    }
    std::function<void(const QString &)> version()
    {
        return [this](const QString &answer) {
            note();
            ++replies;
            text = answer;
        };
    }
    std::function<void(const std::optional<QString> &, const QByteArray &)> connected()
    {
        return [this](const std::optional<QString> &answer, const QByteArray &data) {
            note();
            ++replies;
            endpoint = answer;
            authorization = data;
        };
    }
    bool ended() const { return replies + failures > 0; }
};

const QByteArray bytes32(32, '\7');

} // namespace

class DBusHelperLinkTest : public ::testing::Test
{
protected:
    std::shared_ptr<HelperToolConnection> helper()
    {
        auto connection = link.connectToListenerEndpoint(QDBusConnection(peerBus).baseService());
        connection->resume();
        return connection;
    }

    /// Its invalidations are counted in `invalidated`.
    std::shared_ptr<HelperToolConnection> watchedHelper()
    {
        auto connection = helper();
        connection->setInvalidationHandler([this] { ++invalidated; });
        return connection;
    }

    std::shared_ptr<XPCServiceConnection> service()
    {
        QDBusConnection(peerBus).registerService(QLatin1String(contract::serviceName));
        auto connection = link.connectToService(QLatin1String(contract::serviceName));
        connection->resume();
        return connection;
    }

    FakePeer peerWith(FakePeer::Answer answer)
    {
        return {peerBus, contract::helper::path, std::move(answer)};
    }

    // Nothing more comes for a call that has ended.
    void expectEndedOnce(const Outcome &outcome)
    {
        EXPECT_TRUE(eventually([&] { return outcome.ended(); }));
        eventually([] { return false; }, 50ms);
        EXPECT_EQ(outcome.replies + outcome.failures, 1);
        EXPECT_TRUE(outcome.onMainThread);
    }

    Outcome versionFrom(HelperToolConnection &connection)
    {
        Outcome outcome;
        connection.getVersionWithReply(outcome.version(), outcome.failed());
        EXPECT_FALSE(outcome.ended()) << "not before the call returns";
        expectEndedOnce(outcome);
        return outcome;
    }

    Outcome uninstalled()
    {
        Outcome outcome;
        const auto connection = helper();
        connection->uninstallWithAuthorizationAndReply(bytes32, outcome.reply(), outcome.failed());
        expectEndedOnce(outcome);
        return outcome;
    }

    Outcome endpointFromService()
    {
        Outcome outcome;
        const auto connection = service();
        connection->connectWithEndpointAndAuthorizationReply(outcome.connected(), outcome.failed());
        expectEndedOnce(outcome);
        return outcome;
    }

    // The peer has got the question, which is open.
    void askVersion(HelperToolConnection &connection, const FakePeer &peer, Outcome &outcome)
    {
        connection.getVersionWithReply(outcome.version(), outcome.failed());
        ASSERT_TRUE(eventually([&] { return peer.calls.size() == 1; }));
    }

    PrivateBus bus;
    QDBusConnection ourBus = bus.connect();
    QString peerBus = bus.open();
    GetrandomSource random;
    DBusHelperLink link{random, ourBus, ourBus};
    int invalidated = 0;
};

TEST_F(DBusHelperLinkTest, AnAuthorizationIsThirtyTwoFreshBytes)
{
    const auto first = link.createAuthorization();
    const auto second = link.createAuthorization();
    ASSERT_TRUE(first && second);
    EXPECT_EQ(first.value().size(), 32);
    EXPECT_NE(first.value(), second.value());
}

TEST_F(DBusHelperLinkTest, WithoutRandomBytesThereIsNoAuthorization)
{
    GetrandomSource failing([](void *, size_t, unsigned int) -> ssize_t { return 0; });
    const auto authorization = DBusHelperLink(failing, ourBus, ourBus).createAuthorization();
    ASSERT_FALSE(authorization);
    EXPECT_EQ(authorization.error().domain, posixErrorDomain);
}

TEST_F(DBusHelperLinkTest, TheVersionComesInALaterTurn)
{
    FakePeer peer = peerWith(saying({u"2.0"_s}));
    EXPECT_EQ(versionFrom(*helper()).text, u"2.0"_s);
}

TEST_F(DBusHelperLinkTest, AChangeTravelsAsTheContractSays)
{
    FakePeer peer = peerWith(success);
    Outcome outcome;
    const auto connection = helper();
    connection->changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(
        u"wlp2s0"_s, u"02:00:00:00:00:01"_s, true, bytes32, outcome.reply(), outcome.failed());
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.replies, 1);
    EXPECT_FALSE(outcome.error);
    ASSERT_EQ(peer.calls.size(), 1U);
    EXPECT_EQ(peer.calls[0].interface(), QLatin1String(contract::helper::interface));
    EXPECT_EQ(peer.calls[0].member(), u"ChangeAddressOfDevice"_s);
    EXPECT_EQ(peer.calls[0].signature(), u"ssbay"_s);
    EXPECT_EQ(peer.calls[0].arguments(),
        (QVariantList{u"wlp2s0"_s, u"02:00:00:00:00:01"_s, true, bytes32}));
}

TEST_F(DBusHelperLinkTest, AnErrorOfTheContractIsTheOperationsOwn)
{
    for (const contract::ErrorName &name : contract::allErrors) {
        FakePeer peer = peerWith(refusing(name.name));
        const Outcome outcome = uninstalled();
        EXPECT_EQ(outcome.replies, 1) << name.name;
        ASSERT_TRUE(outcome.error);
        EXPECT_EQ(outcome.error->domain, QLatin1String(name.name));
        EXPECT_EQ(outcome.error->code, name.code);
    }
}

TEST_F(DBusHelperLinkTest, AnyOtherErrorIsOneOfTheConnection)
{
    for (const char *name : {"org.freedesktop.DBus.Error.AccessDenied",
             "org.freedesktop.DBus.Error.UnknownMethod", "com.orvandel.Quillon4.Error.Invented"}) {
        FakePeer peer = peerWith(refusing(name));
        const Outcome outcome = uninstalled();
        EXPECT_EQ(outcome.failures, 1) << name;
        EXPECT_EQ(outcome.error->domain, QLatin1String(name));
        EXPECT_EQ(outcome.error->code, 0);
    }
}

TEST_F(DBusHelperLinkTest, AnErrorInsteadOfAVersionIsAFailure)
{
    FakePeer peer = peerWith(refusing(contract::error::tooManyRequests.name));
    const Outcome outcome = versionFrom(*helper());
    EXPECT_EQ(outcome.failures, 1);
    EXPECT_EQ(outcome.error->code, contract::error::tooManyRequests.code);
}

TEST_F(DBusHelperLinkTest, AnswersOfAnotherShapeAreFailures)
{
    for (const QVariantList &answer : {QVariantList{}, QVariantList{1}, QVariantList{QString()},
             QVariantList{u"2.0"_s, u"more"_s}, QVariantList{QString(10'000'000, u'2')}}) {
        FakePeer peer = peerWith(saying(answer));
        const Outcome outcome = versionFrom(*helper());
        EXPECT_EQ(outcome.failures, 1) << answer.size();
    }
    FakePeer peer = peerWith(saying({u"yes"_s}));
    const Outcome outcome = uninstalled();
    EXPECT_EQ(outcome.failures, 1);
}

TEST_F(DBusHelperLinkTest, AHugeErrorTextIsCut)
{
    FakePeer peer = peerWith([](const QDBusMessage &call) {
        return call.createErrorReply(
            QLatin1String(contract::error::changeFailed.name), QString(10'000'000, u'x'));
    });
    const Outcome outcome = uninstalled();
    EXPECT_LE(outcome.error->message.size(), 1000);
}

TEST_F(DBusHelperLinkTest, APeerThatHangsFailsAfterItsTimeAndHoldsNobodyUp)
{
    FakePeer peer = peerWith(silence);
    Outcome outcome;
    const auto connection = helper();
    QElapsedTimer time;
    time.start();
    connection->getVersionWithReply(outcome.version(), outcome.failed());
    EXPECT_EQ(outcome.failures, 0) << "the call itself does not wait";
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.failures, 1);
    EXPECT_GE(time.elapsed(), contract::answerLimit * 9 / 10); // the timer is a coarse one
    EXPECT_LT(time.elapsed(), 24'000) << "the bus gives up after 25 s by itself";
}

TEST_F(DBusHelperLinkTest, APeerThatVanishesEndsItsCallsAndInvalidatesOnce)
{
    FakePeer peer = peerWith(silence);
    Outcome first;
    Outcome second;
    const auto connection = helper();
    bool endedBefore = false;
    connection->setInvalidationHandler([&] {
        ++invalidated;
        endedBefore = first.ended() && second.ended();
    });
    connection->getVersionWithReply(first.version(), first.failed());
    connection->uninstallWithAuthorizationAndReply(bytes32, second.reply(), second.failed());
    ASSERT_TRUE(eventually([&] { return peer.calls.size() == 2; }));
    bus.drop(peerBus);
    expectEndedOnce(first);
    expectEndedOnce(second);
    EXPECT_EQ(first.failures, 1);
    EXPECT_EQ(second.failures, 1);
    EXPECT_TRUE(eventually([&] { return invalidated == 1; }));
    EXPECT_TRUE(endedBefore);

    EXPECT_EQ(versionFrom(*connection).failures, 1);
    EXPECT_EQ(invalidated, 1);
}

TEST_F(DBusHelperLinkTest, ADepartureThatAStrangerTellsOfIsNotBelieved)
{
    FakePeer peer = peerWith(silence);
    Outcome outcome;
    const auto connection = watchedHelper();
    ASSERT_NO_FATAL_FAILURE(askVersion(*connection, peer, outcome));

    // Anybody can send a signal straight to us; only its sender tells that it is not the bus's.
    QDBusConnection stranger = bus.connect();
    const QString endpoint = QDBusConnection(peerBus).baseService();
    for (const QVariantList &arguments :
        {QVariantList{endpoint, endpoint, QString()}, QVariantList{endpoint},
            QVariantList{QStringList{endpoint}, endpoint, endpoint, QString()}}) {
        QDBusMessage forged = QDBusMessage::createTargetedSignal(ourBus.baseService(),
            u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"NameOwnerChanged"_s);
        forged.setArguments(arguments);
        ASSERT_TRUE(stranger.send(forged));
    }
    // The bus has passed the signals on when it answers; what the peer says now comes after them.
    ASSERT_TRUE(stranger.interface()->isServiceRegistered(endpoint));
    ASSERT_TRUE(QDBusConnection(peerBus).send(peer.calls[0].createReply(u"2.0"_s)));
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.text, u"2.0"_s);
    EXPECT_EQ(invalidated, 0);
}

TEST_F(DBusHelperLinkTest, AnAnswerBeforeThePeerLeavesStillCounts)
{
    // As a helper that removes itself: it answers and is gone.
    FakePeer peer = peerWith(success);
    Outcome outcome;
    const auto connection = watchedHelper();
    connection->uninstallWithAuthorizationAndReply(
        bytes32,
        [&](const std::optional<Error> &error) {
            outcome.reply()(error);
            bus.drop(peerBus);
        },
        outcome.failed());
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.replies, 1);
    EXPECT_TRUE(eventually([&] { return invalidated == 1; }));
}

TEST_F(DBusHelperLinkTest, AnEndpointThatIsGoneAlreadyIsInvalidated)
{
    const QString endpoint = QDBusConnection(peerBus).baseService();
    bus.drop(peerBus);
    const auto connection = link.connectToListenerEndpoint(endpoint);
    connection->setInvalidationHandler([this] { ++invalidated; });
    connection->resume();
    EXPECT_TRUE(eventually([&] { return invalidated == 1; }));
}

TEST_F(DBusHelperLinkTest, OnlyAUniqueNameIsAnEndpoint)
{
    FakePeer peer = peerWith(saying({u"2.0"_s}));
    QDBusConnection(peerBus).registerService(u"com.example.Elsewhere"_s);
    for (const QString &endpoint :
        {u"com.example.Elsewhere"_s, QString(), u":"_s, u"not a name"_s, QString(10'000, u':')}) {
        invalidated = 0;
        Outcome outcome;
        const auto connection = link.connectToListenerEndpoint(endpoint);
        connection->setInvalidationHandler([&] { ++invalidated; });
        connection->resume();
        connection->getVersionWithReply(outcome.version(), outcome.failed());
        expectEndedOnce(outcome);
        EXPECT_EQ(outcome.failures, 1) << qPrintable(endpoint.left(30));
        EXPECT_EQ(invalidated, 1);
    }
    EXPECT_TRUE(peer.calls.empty());
}

TEST_F(DBusHelperLinkTest, BeforeItIsResumedAConnectionCarriesNothing)
{
    FakePeer peer = peerWith(saying({u"2.0"_s}));
    Outcome outcome;
    link.connectToListenerEndpoint(QDBusConnection(peerBus).baseService())
        ->getVersionWithReply(outcome.version(), outcome.failed());
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.failures, 1);
    EXPECT_TRUE(peer.calls.empty());
}

TEST_F(DBusHelperLinkTest, ADroppedConnectionStillEndsItsCallsButIsSilent)
{
    FakePeer peer = peerWith(silence);
    Outcome outcome;
    watchedHelper()->getVersionWithReply(outcome.version(), outcome.failed());
    ASSERT_TRUE(eventually([&] { return peer.calls.size() == 1; }));
    bus.drop(peerBus);
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.failures, 1);
    EXPECT_EQ(invalidated, 0);
}

TEST_F(DBusHelperLinkTest, TheBusItselfMayGo)
{
    FakePeer peer = peerWith(silence);
    Outcome outcome;
    const auto connection = watchedHelper();
    ASSERT_NO_FATAL_FAILURE(askVersion(*connection, peer, outcome));
    bus.stop();
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.failures, 1);
    EXPECT_TRUE(eventually([&] { return invalidated == 1; }));

    Outcome later;
    const auto another = link.connectToService(QLatin1String(contract::serviceName));
    another->resume();
    another->installHelperToolWithReply(later.reply(), later.failed());
    EXPECT_FALSE(later.ended());
    expectEndedOnce(later);
    EXPECT_EQ(later.failures, 1);
}

TEST_F(DBusHelperLinkTest, TheServiceGivesEndpointAndAuthorization)
{
    FakePeer peer(peerBus, contract::service::path, saying({u":1.42"_s, bytes32}));
    const Outcome outcome = endpointFromService();
    EXPECT_EQ(outcome.endpoint, u":1.42"_s);
    EXPECT_EQ(outcome.authorization, bytes32);
}

TEST_F(DBusHelperLinkTest, AnEmptyEndpointIsNone)
{
    FakePeer peer(peerBus, contract::service::path, saying({QString(), bytes32}));
    const Outcome outcome = endpointFromService();
    EXPECT_EQ(outcome.replies, 1);
    EXPECT_FALSE(outcome.endpoint);
}

TEST_F(DBusHelperLinkTest, AServiceThatAnswersSomethingElseFails)
{
    for (const QVariantList &answer : {QVariantList{}, QVariantList{bytes32, u":1.42"_s},
             QVariantList{u"com.example.Elsewhere"_s, bytes32},
             QVariantList{u":1.42"_s, QByteArray(31, '\7')},
             QVariantList{u":1.42"_s, QByteArray(10'000'000, '\7')},
             QVariantList{u':' + QString(10'000'000, u'1'), bytes32}}) {
        FakePeer peer(peerBus, contract::service::path, saying(answer));
        const Outcome outcome = endpointFromService();
        EXPECT_EQ(outcome.failures, 1) << answer.size();
    }
}

TEST_F(DBusHelperLinkTest, WithoutAServiceItsCallsFail)
{
    const auto connection = link.connectToService(QLatin1String(contract::serviceName));
    connection->resume();
    Outcome outcome;
    connection->installHelperToolWithReply(outcome.reply(), outcome.failed());
    expectEndedOnce(outcome);
    EXPECT_EQ(outcome.failures, 1);
    EXPECT_EQ(outcome.error->domain, u"org.freedesktop.DBus.Error.ServiceUnknown"_s);
}

TEST_F(DBusHelperLinkTest, InstallAndSetupReachTheService)
{
    FakePeer peer(peerBus, contract::service::path, success);
    Outcome outcome;
    const auto connection = service();
    connection->setupAuthorizationRights();
    connection->installHelperToolWithReply(outcome.reply(), outcome.failed());
    expectEndedOnce(outcome);
    EXPECT_FALSE(outcome.error);
    ASSERT_EQ(peer.calls.size(), 2U);
    EXPECT_EQ(peer.calls[0].member(), u"SetupAuthorizationRights"_s);
    EXPECT_EQ(peer.calls[1].member(), u"InstallHelperTool"_s);
}

} // namespace quillon::test
