// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Places.h"
#include "contract/Names.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/FakePeer.h"
#include "integration/platform/linux/bus/PrivateBus.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/bus/DBusHelperLink.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

/// The service program on buses of the test's own, with a helper that misbehaves.
class HelperContact : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, session.address());
        environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, system.address());
        program.setProcessEnvironment(environment);
        program.start(buildFolder() + u"/service/quillon-xpc-service"_s, QStringList());
        ASSERT_TRUE(eventually([this] {
            return ours.interface()
                ->isServiceRegistered(QLatin1String(contract::serviceName))
                .value();
        }));
        service = link.connectToService(QLatin1String(contract::serviceName));
        service->resume();
    }

    void TearDown() override
    {
        program.kill();
        program.waitForFinished();
    }

    void helperIs(FakePeer::Answer answer)
    {
        helper.reset(); // one object per path
        helper = std::make_unique<FakePeer>(helperBus, contract::helper::path, std::move(answer));
        QDBusConnection(helperBus).registerService(QLatin1String(contract::helperName));
    }

    // None when the service says that the helper cannot be reached.
    std::optional<QString> endpoint()
    {
        std::optional<QString> found;
        bool answered = false;
        service->connectWithEndpointAndAuthorizationReply(
            [&](const std::optional<QString> &answer, const QByteArray &) {
                answered = true;
                found = answer;
            },
            [](const Error &error) { ADD_FAILURE() << qPrintable(error.message); });
        EXPECT_TRUE(eventually([&] { return answered; }));
        return found;
    }

    std::optional<Error> install()
    {
        std::optional<Error> problem;
        bool answered = false;
        const auto answer = [&](const std::optional<Error> &error) {
            answered = true;
            problem = error;
        };
        service->installHelperToolWithReply(answer, [&](const Error &error) { answer(error); });
        EXPECT_TRUE(eventually([&] { return answered; }));
        return problem;
    }

    PrivateBus session;
    PrivateBus system;
    QProcess program;
    QDBusConnection ours = session.connect();
    QString helperBus = system.open();
    GetrandomSource random;
    DBusHelperLink link{random, ours, ours};
    std::shared_ptr<XPCServiceConnection> service;
    std::unique_ptr<FakePeer> helper;
};

TEST_F(HelperContact, PassesOnTheNameOfWhoAnswered)
{
    const QString name = QDBusConnection(helperBus).baseService();
    helperIs([name](const QDBusMessage &call) { return call.createReply(name); });
    EXPECT_EQ(endpoint(), name);
}

TEST_F(HelperContact, PassesOnNobodyElsesName)
{
    const QString stranger = system.connect().baseService();
    for (const QString &name :
        {stranger, QLatin1String(contract::helperName) + QString(), QString()}) {
        helperIs([name](const QDBusMessage &call) { return call.createReply(name); });
        EXPECT_FALSE(endpoint()) << qPrintable(name);
    }
}

TEST_F(HelperContact, AnAnswerThatIsNoTextIsNone)
{
    helperIs([](const QDBusMessage &call) { return call.createReply(QVariantList{1, 2}); });
    EXPECT_FALSE(endpoint());
    helperIs([](const QDBusMessage &call) { return call.createReply(); });
    EXPECT_FALSE(endpoint());
    helperIs([](const QDBusMessage &call) {
        return call.createErrorReply(u"com.example.No"_s, u"no"_s);
    });
    EXPECT_FALSE(endpoint());
}

TEST_F(HelperContact, AHelperThatHangsIsGivenUpBeforeTheProgramGivesUpTheService)
{
    helperIs([](const QDBusMessage &) { return QDBusMessage(); });
    static_assert(contract::helperStartLimit < contract::answerLimit);
    // Else it is an error of the connection, which fails the test.
    EXPECT_FALSE(endpoint());
}

TEST_F(HelperContact, TheSixtyFifthRequestThatWaitsIsRefusedAndTheOthersAreAnswered)
{
    helperIs([](const QDBusMessage &) { return QDBusMessage(); });
    constexpr int most = 64;
    const QString name = QDBusConnection(helperBus).baseService();
    int answered = 0;
    QStringList refusals;
    for (int i = 0; i < most + 1; ++i) {
        service->connectWithEndpointAndAuthorizationReply(
            [&](const std::optional<QString> &endpoint, const QByteArray &) {
                answered += endpoint == name;
            },
            [&](const Error &error) { refusals << error.domain; });
    }
    EXPECT_TRUE(eventually([&] { return helper->calls.size() == most && !refusals.isEmpty(); }));
    EXPECT_EQ(helper->calls.size(), std::size_t{most});
    EXPECT_EQ(refusals, QStringList(QLatin1String(contract::error::tooManyRequests.name)));

    for (const QDBusMessage &call : helper->calls) {
        QDBusConnection(helperBus).send(call.createReply(name));
    }
    EXPECT_TRUE(eventually([&] { return answered == most; })) << answered;
    helperIs([name](const QDBusMessage &call) { return call.createReply(name); });
    EXPECT_EQ(endpoint(), name) << "there is room again";
}

TEST_F(HelperContact, ANewSystemBusConnectionIsMadeWhenTheOldOneIsGone)
{
    EXPECT_FALSE(endpoint());
    system.stop();
    EXPECT_FALSE(endpoint());
    EXPECT_FALSE(endpoint());
    EXPECT_EQ(program.state(), QProcess::Running);
}

TEST_F(HelperContact, OnlyAHelperOfThisVersionIsLeftAlone)
{
    helperIs([](const QDBusMessage &call) { return call.createReply(u"2.0"_s); });
    EXPECT_FALSE(install());
    // Now somebody must be asked, and nobody is there.
    helperIs([](const QDBusMessage &call) { return call.createReply(u"1.9"_s); });
    const auto problem = install();
    ASSERT_TRUE(problem);
    EXPECT_EQ(problem->code, contract::error::notAuthorized.code) << qPrintable(problem->message);
}

TEST_F(HelperContact, TheServiceEndsWithItsSession)
{
    session.stop();
    EXPECT_TRUE(eventually([this] { return program.state() == QProcess::NotRunning; }));
}

} // namespace quillon::test
