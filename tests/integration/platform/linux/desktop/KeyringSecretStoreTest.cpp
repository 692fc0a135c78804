// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/KeyringSecretStore.h"

#include "fakes/QtPrinting.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/qt/QtScheduler.h"

#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using Failure = SecretStore::Failure;
using Problem = SecretStore::Problem;
using Secret = std::variant<std::optional<QString>, Failure>;

/// A real keyring in the session of a sandbox.
class KeyringSecretStoreTest : public ::testing::Test
{
protected:
    ~KeyringSecretStoreTest() override
    {
        stopKeyring();
        scheduler.shutDown();
    }

    void startKeyring(bool isUnlocked = true)
    {
        QStringList options{u"--foreground"_s, u"--components=secrets"_s, u"--replace"_s};
        if (isUnlocked) {
            options << u"--unlock"_s;
        }
        daemon.setStandardErrorFile(QProcess::nullDevice());
        daemon.start(u"gnome-keyring-daemon"_s, options);
        daemon.write("the log-in password");
        daemon.closeWriteChannel();
        EXPECT_TRUE(eventually([this] {
            return bus.interface()->isServiceRegistered(u"org.freedesktop.secrets"_s).value();
        }));
    }
    void stopKeyring()
    {
        if (daemon.state() != QProcess::NotRunning) {
            daemon.terminate();
            daemon.waitForFinished();
        }
    }

    template <typename Answer, typename Ask>
    static Answer answerTo(const Ask &ask)
    {
        const auto answer = std::make_shared<std::optional<Answer>>();
        ask([answer](const Answer &given) {
            EXPECT_FALSE(answer->has_value()) << "a second answer";
            answer->emplace(given);
        });
        EXPECT_FALSE(answer->has_value()) << "it was answered before the call returned";
        EXPECT_TRUE(eventually([&] { return answer->has_value(); })) << "it is not answered";
        return answer->value();
    }
    std::optional<Problem> store(const QString &name, const QString &secret)
    {
        const auto failure = answerTo<std::optional<Failure>>(
            [&](auto done) { keyring->store(name, secret, done); });
        return failure ? std::optional(failure->problem) : std::nullopt;
    }
    std::optional<Problem> remove(const QString &name)
    {
        const auto failure =
            answerTo<std::optional<Failure>>([&](auto done) { keyring->remove(name, done); });
        return failure ? std::optional(failure->problem) : std::nullopt;
    }
    Secret read(const QString &name)
    {
        return answerTo<Secret>([&](auto done) { keyring->read(name, done); });
    }
    QString secret(const QString &name)
    {
        const Secret given = read(name);
        if (const auto *const failure = std::get_if<Failure>(&given)) {
            return u"failure: "_s + failure->message;
        }
        return std::get<std::optional<QString>>(given).value_or(u"(none)"_s);
    }
    static std::optional<Problem> problemIn(const Secret &given)
    {
        const auto *const failure = std::get_if<Failure>(&given);
        return failure ? std::optional(failure->problem) : std::nullopt;
    }

    QDBusConnection bus = QDBusConnection::sessionBus();
    QProcess daemon;
    QtScheduler scheduler;
    std::unique_ptr<KeyringSecretStore> keyring =
        std::make_unique<KeyringSecretStore>(bus, scheduler);
};

TEST_F(KeyringSecretStoreTest, ASecretIsKeptReplacedAndForgotten)
{
    startKeyring();
    EXPECT_EQ(secret(u"märy at https://a.org"_s), u"(none)"_s);
    EXPECT_EQ(store(u"märy at https://a.org"_s, u"pass wörd:\n\"1\" 🗝"_s), std::nullopt);
    EXPECT_EQ(store(u"other"_s, u"another"_s), std::nullopt);
    EXPECT_EQ(secret(u"märy at https://a.org"_s), u"pass wörd:\n\"1\" 🗝"_s);
    EXPECT_EQ(store(u"märy at https://a.org"_s, u"new"_s), std::nullopt);
    EXPECT_EQ(secret(u"märy at https://a.org"_s), u"new"_s);
    EXPECT_EQ(remove(u"märy at https://a.org"_s), std::nullopt);
    EXPECT_EQ(remove(u"märy at https://a.org"_s), std::nullopt) << "it is gone already";
    EXPECT_EQ(secret(u"märy at https://a.org"_s), u"(none)"_s);
    EXPECT_EQ(secret(u"other"_s), u"another"_s);
}

TEST_F(KeyringSecretStoreTest, ASecretIsNowhereInTheClear)
{
    startKeyring();
    ASSERT_EQ(store(u"account"_s, u"a-secret-like-no-other"_s), std::nullopt);
    QProcess search;
    search.start(u"grep"_s, {u"-rl"_s, u"a-secret-like-no-other"_s, QDir::homePath()});
    ASSERT_TRUE(search.waitForFinished());
    EXPECT_EQ(search.readAllStandardOutput(), "");
    EXPECT_EQ(search.exitCode(), 1) << search.readAllStandardError().toStdString();
}

TEST_F(KeyringSecretStoreTest, AKeyringThatStaysLockedIsNoMissingSecret)
{
    startKeyring();
    ASSERT_EQ(store(u"account"_s, u"secret"_s), std::nullopt);
    stopKeyring();
    startKeyring(false);
    keyring = std::make_unique<KeyringSecretStore>(bus, scheduler, 5s);
    const std::optional<Problem> problem = problemIn(read(u"account"_s));
    EXPECT_TRUE(problem == Problem::Refused || problem == Problem::TooLate)
        << (problem ? static_cast<int>(*problem) : -1);
}

TEST_F(KeyringSecretStoreTest, WithoutAKeyringThereIsAnErrorAndNothingIsKept)
{
    // A bus on which nobody is started.
    const QTemporaryDir folder;
    QFile settings(folder.filePath(u"bus.conf"_s));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("<busconfig><listen>unix:path=" + QFile::encodeName(folder.filePath(u"bus"_s)) +
                   "</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
                   "<allow eavesdrop=\"true\"/>"
                   "<allow own=\"*\"/><allow user=\"*\"/></policy></busconfig>");
    settings.close();
    QProcess empty;
    empty.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--config-file"_s, settings.fileName()});
    ASSERT_TRUE(eventually([&] { return QFile::exists(folder.filePath(u"bus"_s)); }));
    keyring = std::make_unique<KeyringSecretStore>(
        QDBusConnection::connectToBus(u"unix:path="_s + folder.filePath(u"bus"_s), u"empty"_s),
        scheduler);
    EXPECT_EQ(store(u"account"_s, u"secret"_s), Problem::NoKeyring);
    EXPECT_EQ(problemIn(read(u"account"_s)), Problem::NoKeyring);
    EXPECT_EQ(remove(u"account"_s), Problem::NoKeyring);
    keyring = std::make_unique<KeyringSecretStore>(QDBusConnection(u"none"_s), scheduler);
    QDBusConnection::disconnectFromBus(u"empty"_s);
    EXPECT_EQ(store(u"account"_s, u"secret"_s), Problem::NoKeyring) << "without a bus";
    empty.kill();
    empty.waitForFinished();
}

TEST_F(KeyringSecretStoreTest, WhatCannotBeKeptWholeIsNotKept)
{
    startKeyring();
    EXPECT_EQ(store(u"account"_s, u"a"_s + QChar(0) + u"b"_s), Problem::Failed);
    EXPECT_EQ(store(u""_s, u"secret"_s), Problem::Failed);
    EXPECT_EQ(secret(u"account"_s), u"(none)"_s);
}

TEST_F(KeyringSecretStoreTest, NothingIsAnsweredWhenItHasGone)
{
    startKeyring();
    int answers = 0;
    keyring->read(u"account"_s, [&](const Secret &) { ++answers; });
    keyring->store(u"account"_s, u"secret"_s, [&](const auto &) { ++answers; });
    keyring = std::make_unique<KeyringSecretStore>(bus, scheduler);
    read(u"account"_s);
    EXPECT_EQ(answers, 0);
}

TEST_F(KeyringSecretStoreTest, AnAnswerMayDestroyIt)
{
    startKeyring();
    int answers = 0;
    keyring->read(u"account"_s, [&](const Secret &) {
        ++answers;
        keyring.reset();
    });
    EXPECT_TRUE(eventually([&] { return answers == 1; }));
}

} // namespace
} // namespace quillon::test
