// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Places.h"
#include "contract/Names.h"
#include "integration/helper/Introspection.h"
#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

const QString build = buildFolder();
const QString installedTool = u"/usr/local/libexec/quillon4/Quillon4HelperTool"_s;

/// What one call to the service came to.
struct Call
{
    bool succeeded = false;
    QString text; ///< the answer, or the error
};

/// A program that runs until its object goes.
class Running
{
public:
    Running(const QString &program, const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(program, arguments);
        m_process.waitForStarted();
    }
    ~Running()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool ended() const { return m_process.state() == QProcess::NotRunning; }
    int exitCode() const { return m_process.exitCode(); }
    QString output()
    {
        m_output += QString::fromUtf8(m_process.readAll());
        return m_output;
    }

private:
    QProcess m_process;
    QString m_output;
};

QStringList asUser(const QStringList &command)
{
    return QStringList{u"-u"_s, u"quillon"_s, u"--"_s} + command;
}

std::unique_ptr<Running> calling(const contract::Method &method)
{
    return std::make_unique<Running>(u"runuser"_s,
        asUser({u"dbus-send"_s, u"--session"_s, u"--print-reply"_s, u"--reply-timeout=60000"_s,
            u"--dest="_s + QLatin1String(contract::serviceName),
            QLatin1String(contract::service::path),
            QLatin1String(contract::service::interface) + u'.' + QLatin1String(method.name)}));
}

Call call(const contract::Method &method)
{
    const auto process = calling(method);
    EXPECT_TRUE(eventually([&] { return process->ended(); }));
    return {process->exitCode() == 0, process->output()};
}

// The answer of connectWithEndpointAndAuthorization; neither text nor bytes when it is none.
QRegularExpressionMatch connectionIn(const Call &connected)
{
    static const QRegularExpression answer(
        u"\\n +string \"([^\"]*)\"\\n +array of bytes \\[([0-9a-f\\s]*)\\]\\s*\\z"_s);
    const auto match = answer.match(connected.text);
    EXPECT_TRUE(connected.succeeded && match.hasMatch()) << connected.text.toStdString();
    return match;
}

QString endpointIn(const Call &connected)
{
    return connectionIn(connected).captured(1);
}

QByteArray authorizationIn(const Call &connected)
{
    return QByteArray::fromHex(connectionIn(connected).capturedView(2).toLatin1());
}

bool isError(const Call &result, const contract::ErrorName &error)
{
    return !result.succeeded && result.text.contains(QLatin1String(error.name));
}

void reloadSystemBus()
{
    command(u"gdbus call --system --dest org.freedesktop.DBus --object-path / "
            "--method org.freedesktop.DBus.ReloadConfig"_s);
}

// As on a machine where it never was installed.
void removeHelper()
{
    for (const char *folder : {"/usr/local", "/etc"}) {
        QDirIterator files(QLatin1String(folder),
            {u"*orvandel.Quillon4HelperTool*"_s, u"*orvandel.quillon4*"_s, u"Quillon4HelperTool"_s,
                u"quillon4-helper*"_s},
            QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile::remove(files.next());
        }
    }
    reloadSystemBus();
}

// It works as before, and has other bytes. A program that runs keeps its file.
void makeAnotherBuildOf(const QString &tool)
{
    const QString other = u"/tmp/another-build"_s;
    command(u"cp %1 %2"_s.arg(tool, other));
    QFile file(other);
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write("\n") == 1);
    file.close();
    command(u"mv %1 %2"_s.arg(other, tool));
}

} // namespace

/// The service that the session bus starts for the user, beside the real helper and the real
/// polkit.
class ServiceTest : public ::testing::Test
{
protected:
    // A person in front of the user's service, who does as `answer` says.
    void atThePrompt(const char *answer)
    {
        const QString ready = u"/tmp/agent-ready"_s;
        QFile::remove(ready);
        agent =
            std::make_unique<Running>(testData() + u"/../../tools/sandbox.d/sandbox-polkit-agent"_s,
                QStringList{u"--pid"_s, QString::number(serviceProcess()), u"--log"_s, prompts,
                    u"--ready"_s, ready, QLatin1String(answer)});
        ASSERT_TRUE(eventually([&] { return QFile::exists(ready); }))
            << agent->output().toStdString();
    }

    // Starts the service if it does not run.
    static int serviceProcess()
    {
        EXPECT_TRUE(call(contract::service::setupAuthorizationRights).succeeded);
        const QByteArray answer =
            command(u"runuser -u quillon -- gdbus call --session --dest "
                    "org.freedesktop.DBus --object-path / "
                    "--method org.freedesktop.DBus.GetConnectionUnixProcessID %1"_s.arg(
                        QLatin1String(contract::serviceName)));
        // "(uint32 123,)"
        return QString::fromUtf8(answer).section(u' ', 1).section(u',', 0, 0).toInt();
    }

    QByteArray promptLog() const
    {
        QFile log(prompts);
        return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
    }

    // Hears the broadcasts of the user's session.
    void listen()
    {
        listener = std::make_unique<Running>(
            u"runuser"_s, asUser({u"dbus-monitor"_s, u"--session"_s,
                              u"interface="_s + QLatin1String(contract::distributed::interface)}));
        ASSERT_TRUE(eventually([this] { return listener->output().contains("NameAcquired"_L1); }));
    }

    bool heardHelperUpdated()
    {
        const QString heard = listener->output();
        return heard.contains("string \"HelperUpdated\""_L1) &&
               heard.contains("string \"com.orvandel.Quillon4MASHelper\""_L1);
    }

    // The person grants it, and the session hears of it.
    void expectInstalledAfterOnePrompt()
    {
        atThePrompt("grant");
        listen();
        const Call installed = call(contract::service::installHelperTool);
        EXPECT_TRUE(installed.succeeded) << installed.text.toStdString();
        EXPECT_EQ(promptLog().count('\n'), 1) << promptLog().toStdString();
        EXPECT_TRUE(eventually([this] { return heardHelperUpdated(); }));
    }

    const QString prompts = u"/tmp/prompts.log"_s;
    std::unique_ptr<Running> agent;
    std::unique_ptr<Running> listener;
};

TEST_F(ServiceTest, OffersWhatItsDescriptionSays)
{
    const auto documented = documentedMembersOf(contract::service::interface);
    EXPECT_EQ(documented.size(), 3U);
    const QByteArray offered =
        command(u"runuser -u quillon -- gdbus introspect --session --xml --dest %1 "
                "--object-path %2"_s.arg(
                    QLatin1String(contract::serviceName), QLatin1String(contract::service::path)));
    EXPECT_EQ(membersOf(contract::service::interface, offered), documented);
}

TEST_F(ServiceTest, GivesTheHelpersUniqueNameAndThirtyTwoBytes)
{
    const Call connected = call(contract::service::connectWithEndpointAndAuthorization);
    ASSERT_TRUE(connected.succeeded) << connected.text.toStdString();
    const QByteArray owner =
        command(u"gdbus call --system --dest org.freedesktop.DBus --object-path / --method "
                "org.freedesktop.DBus.GetNameOwner com.orvandel.Quillon4HelperTool"_s);
    EXPECT_FALSE(endpointIn(connected).isEmpty());
    EXPECT_EQ(QString::fromUtf8(owner).trimmed(), u"('%1',)"_s.arg(endpointIn(connected)));
    EXPECT_EQ(authorizationIn(connected).size(), 32);
}

TEST_F(ServiceTest, SetupMakesTheAuthorizationAnew)
{
    const contract::Method &connect = contract::service::connectWithEndpointAndAuthorization;
    const QByteArray first = authorizationIn(call(connect));
    EXPECT_EQ(authorizationIn(call(connect)), first);
    EXPECT_TRUE(call(contract::service::setupAuthorizationRights).succeeded);
    EXPECT_NE(authorizationIn(call(connect)), first);
}

TEST_F(ServiceTest, WithoutAHelperThereIsNoEndpoint)
{
    removeHelper();
    const Call connected = call(contract::service::connectWithEndpointAndAuthorization);
    ASSERT_TRUE(connected.succeeded) << connected.text.toStdString();
    EXPECT_EQ(endpointIn(connected), QString());
    EXPECT_EQ(authorizationIn(connected).size(), 32);
}

TEST_F(ServiceTest, WithoutASystemBusThereIsNoEndpoint)
{
    QFile::rename(u"/run/dbus/system_bus_socket"_s, u"/run/dbus/gone"_s);
    const Call connected = call(contract::service::connectWithEndpointAndAuthorization);
    ASSERT_TRUE(connected.succeeded) << connected.text.toStdString();
    EXPECT_EQ(endpointIn(connected), QString());
}

TEST_F(ServiceTest, AHelperThatIsThereIsNotInstalledAgain)
{
    atThePrompt("grant");
    const Call installed = call(contract::service::installHelperTool);
    EXPECT_TRUE(installed.succeeded) << installed.text.toStdString();
    EXPECT_EQ(promptLog(), QByteArray());
}

TEST_F(ServiceTest, InstallsAfterOnePromptAndAnnouncesIt)
{
    removeHelper();
    expectInstalledAfterOnePrompt();

    const Call connected = call(contract::service::connectWithEndpointAndAuthorization);
    EXPECT_FALSE(endpointIn(connected).isEmpty()) << connected.text.toStdString();
}

TEST_F(ServiceTest, AnotherBuildsHelperCountsAsNoneUntilItIsReplaced)
{
    // The same version, which answers, and other bytes.
    makeAnotherBuildOf(installedTool);
    EXPECT_EQ(endpointIn(call(contract::service::connectWithEndpointAndAuthorization)), QString());
    expectInstalledAfterOnePrompt();
    command(u"cmp %1 %2/helper/Quillon4HelperTool"_s.arg(installedTool, build));
    EXPECT_NE(endpointIn(call(contract::service::connectWithEndpointAndAuthorization)), QString());
    EXPECT_TRUE(call(contract::service::installHelperTool).succeeded);
    EXPECT_EQ(promptLog().count('\n'), 1) << promptLog().toStdString();
}

TEST_F(ServiceTest, ARefusedPromptInstallsNothing)
{
    removeHelper();
    listen();
    for (const char *answer : {"refuse", "dismiss"}) {
        atThePrompt(answer);
        const Call installed = call(contract::service::installHelperTool);
        EXPECT_TRUE(isError(installed, contract::error::notAuthorized))
            << answer << ": " << installed.text.toStdString();
        EXPECT_TRUE(promptLog().contains(answer));
        agent.reset();
    }
    EXPECT_EQ(endpointIn(call(contract::service::connectWithEndpointAndAuthorization)), QString());
    EXPECT_FALSE(heardHelperUpdated());
}

TEST_F(ServiceTest, WithoutAnybodyToAskInstallsNothing)
{
    removeHelper();
    const Call installed = call(contract::service::installHelperTool);
    EXPECT_TRUE(isError(installed, contract::error::notAuthorized)) << installed.text.toStdString();
}

TEST_F(ServiceTest, OneInstallationAtATimeAndTheServiceGoesOnMeanwhile)
{
    removeHelper();
    atThePrompt("hang");
    const auto first = calling(contract::service::installHelperTool);
    ASSERT_TRUE(eventually([this] { return promptLog().contains("hang"); }));

    const Call second = call(contract::service::installHelperTool);
    EXPECT_TRUE(isError(second, contract::error::installFailed)) << second.text.toStdString();
    EXPECT_TRUE(call(contract::service::setupAuthorizationRights).succeeded);
    EXPECT_FALSE(first->ended());

    agent.reset(); // the person's session goes, and the prompt with it
    EXPECT_TRUE(eventually([&] { return first->ended(); }));
    EXPECT_NE(first->exitCode(), 0);
}

TEST_F(ServiceTest, ToldWhyTheToolFailed)
{
    removeHelper();
    // Where the tool wants to put a file there is a folder, with something in it.
    command(u"mkdir -p "
            "/usr/local/share/dbus-1/system-services/"
            "com.orvandel.Quillon4HelperTool.service/in-the-way"_s);
    atThePrompt("grant");
    listen();
    const Call installed = call(contract::service::installHelperTool);
    EXPECT_TRUE(isError(installed, contract::error::installFailed)) << installed.text.toStdString();
    EXPECT_TRUE(installed.text.contains("system-services"_L1)) << installed.text.toStdString();
    EXPECT_FALSE(heardHelperUpdated());
}

/// Installed by CMake under its default prefix, which is where the helper puts itself too.
class ServiceTestInstalledByCMake : public ServiceTest
{
protected:
    void SetUp() override
    {
        removeHelper();
        command(u"cmake --install %1 --component helper"_s.arg(build));
        command(u"sed -i s|^Exec=.*|Exec=/usr/local/libexec/quillon4/quillon-xpc-service| "
                "/home/quillon/.local/share/dbus-1/services/"
                "com.orvandel.Quillon4XPCService.service"_s);
        command(u"runuser -u quillon -- gdbus call --session --dest org.freedesktop.DBus "
                "--object-path / --method org.freedesktop.DBus.ReloadConfig"_s);
    }

    const QString seed = u"/usr/local/libexec/quillon4/seed/Quillon4HelperTool"_s;
};

TEST_F(ServiceTestInstalledByCMake, InstallsFromASeedThatThePromptNames)
{
    EXPECT_EQ(command(u"stat -c %U:%a "_s + seed).trimmed(), "root:755");
    atThePrompt("grant");
    const Call installed = call(contract::service::installHelperTool);
    EXPECT_TRUE(installed.succeeded) << installed.text.toStdString();
    EXPECT_TRUE(promptLog().contains("com.orvandel.quillon4.install-seed"))
        << promptLog().toStdString();
    EXPECT_TRUE(promptLog().contains("for Quillon, from " + seed.toUtf8()))
        << promptLog().toStdString();
    command(u"cmp %1 %2"_s.arg(installedTool, seed));
    EXPECT_NE(endpointIn(call(contract::service::connectWithEndpointAndAuthorization)), QString());
}

TEST_F(ServiceTestInstalledByCMake, ReplacesAnOlderHelperByItsSeed)
{
    atThePrompt("grant");
    ASSERT_TRUE(call(contract::service::installHelperTool).succeeded);
    makeAnotherBuildOf(seed);
    EXPECT_EQ(endpointIn(call(contract::service::connectWithEndpointAndAuthorization)), QString());
    EXPECT_TRUE(call(contract::service::installHelperTool).succeeded);
    EXPECT_EQ(promptLog().count('\n'), 2) << promptLog().toStdString();
    command(u"cmp %1 %2"_s.arg(installedTool, seed));
}

TEST_F(ServiceTestInstalledByCMake, AndItsHelperAreRemovedApart)
{
    command(seed + u" install"_s);
    command(seed + u" uninstall"_s);
    EXPECT_FALSE(QFile::exists(installedTool));
    EXPECT_TRUE(QFile::exists(seed));
}

TEST(ServiceProgram, NeverRunsAsRoot)
{
    Running service(build + u"/service/quillon-xpc-service"_s, {});
    ASSERT_TRUE(eventually([&] { return service.ended(); }));
    EXPECT_EQ(service.exitCode(), 1);
    EXPECT_TRUE(service.output().contains("never runs as root"_L1));
}

} // namespace quillon::test
