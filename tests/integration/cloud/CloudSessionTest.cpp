// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudSession.h"

#include "base/SettingsKeys.h"
#include "cloud/AccountSignIn.h"
#include "cloud/CloudAccounts.h"
#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakePowerSaving.h"
#include "fakes/FakeReachability.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"
#include "integration/cloud/DavServer.h"
#include "platform/NotificationCenter.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/cloud/QtCloudProvider.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"
#include "sync/AccountFile.h"
#include "sync/CloudAccountWatch.h"
#include "sync/CloudSync.h"
#include "sync/RecordMirror.h"
#include "sync/SettingsMirror.h"
#include "unit/sync/SeededRandom.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

const QString passphrase = u"correct horse"_s;

/// A computer of the person's, put together as the program does it, but for its keyring.
struct Desk
{
    Desk(QtScheduler &itsScheduler, quint64 seed)
        : scheduler(itsScheduler)
        , random(seed)
    {
        mirror.containerOpened();
        session.begin();
        watch.checkiCloudSync();
        observer = settings.addObserver(keys::iCloudSync, [this](const auto &) {
            watch.checkiCloudSync();
            store.refreshPersistentContainer();
        });
        QObject::connect(&signIn, &CloudSignIn::signedIn, &session, [this] { session.renew(); });
    }
    ~Desk() { settings.removeObserver(observer); }

    /// What went wrong, or nothing.
    QString signInTo(const CloudSignIn::Wanted &wanted)
    {
        std::optional<QString> answer;
        QObject context;
        QObject::connect(&signIn, &CloudSignIn::signedIn, &context, [&] { answer = QString(); });
        QObject::connect(&signIn, &CloudSignIn::failed, &context,
            [&](const CloudSignIn::Problem &problem) { answer = problem.text; });
        signIn.begin(wanted);
        EXPECT_TRUE(eventually([&] { return answer.has_value(); }));
        return answer.value_or(u"no answer"_s);
    }
    void switchOn()
    {
        settings.setBool(keys::iCloudSync, true);
        sync.syncFromCurrentState();
        EXPECT_TRUE(eventually([&] { return sync.isRunning() && mirror.isReady(); }));
    }
    void makeRule(const QString &name)
    {
        const auto rule = store.managedObjectContext().insertNewObject(model::Rule);
        rule->setValue(model::rule::name, name);
        ASSERT_FALSE(store.managedObjectContext().save());
    }
    bool hasRule(const QString &name)
    {
        const auto found = store.managedObjectContext().fetch(
            {model::Rule, Predicate::equal(model::rule::name, name), {}});
        return found && !found.value().isEmpty();
    }

    QtScheduler &scheduler;
    QTemporaryDir data;
    FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    FakeNotifier notifier;
    FakeAlertPresenter alerts;
    FakeSecretStore secrets{scheduler};
    FakeReachability reachability;
    FakePowerSaving powerSaving;
    SeededRandom random;
    QtCloudProvider provider{scheduler};
    RecordStore store{scheduler, data.path()};
    CloudAccounts accounts{settings};
    RecordMirror mirror{{store, settings, scheduler, notifications}};
    SettingsMirror settingsMirror{mirror, scheduler};
    CloudSync sync{{settingsMirror, settings, scheduler, notifications, notifier}};
    CloudAccountWatch watch{{sync, accounts, settings, scheduler, alerts}};
    AccountSignIn signIn{{provider, secrets, settings, scheduler, random, accounts, {1, 8}}};
    CloudSession session{{provider, secrets, settings, scheduler, random, reachability, powerSaving,
        accounts, mirror}};
    SettingsStore::Token observer = 0;
};

enum class Place
{
    Folder,
    Lighttpd,
};

/// As programs that synchronize do: another file takes its place. So many seconds from now, because
/// lighttpd tells files of one length apart by the second.
void putFile(const QString &name, const QByteArray &bytes, int seconds)
{
    QSaveFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.flush();
    ASSERT_TRUE(file.setFileTime(
        QDateTime::currentDateTime().addSecs(seconds), QFileDevice::FileModificationTime));
    ASSERT_TRUE(file.commit());
}

/// Two computers and one account.
class CloudSessionPlaces : public ::testing::TestWithParam<Place>
{
protected:
    CloudSessionPlaces()
    {
        if (GetParam() == Place::Lighttpd) {
            server = std::make_unique<DavServer>(DavServer::Program::Lighttpd);
        }
    }
    ~CloudSessionPlaces() override { scheduler.shutDown(); }

    CloudSignIn::Wanted wanted(bool isNew) const
    {
        CloudSignIn::Wanted said;
        if (server) {
            said.address = u"127.0.0.1:4443"_s;
            said.user = DavServer::user();
            said.password = DavServer::password();
        } else {
            said.kind = CloudAccount::Kind::Folder;
            said.folder = folder.path();
        }
        said.passphrase = passphrase;
        said.repeatedPassphrase = isNew ? passphrase : QString();
        return said;
    }
    QDir files() const { return QDir(server ? server->path(u"Quillon"_s) : folder.path()); }
    QString changeFile() const
    {
        const QStringList names = files().entryList({u"*.change"_s}, QDir::Files, QDir::Time);
        return names.isEmpty() ? QString() : files().filePath(names.first());
    }
    /// At a server the other computer looks every few seconds instead of minutes.
    bool arrives(Desk &desk, const std::function<bool()> &condition) const
    {
        constexpr int mostLooks = 24;
        for (int look = 0; server && look < mostLooks; ++look) {
            desk.session.renew();
            if (eventually(condition, 5s)) {
                return true;
            }
        }
        return eventually(condition);
    }

    QtScheduler scheduler;
    QTemporaryDir folder;
    std::unique_ptr<DavServer> server;
    Desk one{scheduler, 1};
    Desk two{scheduler, 2};
};

TEST_P(CloudSessionPlaces, RulesAndSettingsArriveAndNothingIsStoredInTheClear)
{
    ASSERT_EQ(one.signInTo(wanted(true)), QString());
    ASSERT_EQ(two.signInTo(wanted(false)), QString());
    one.switchOn();
    two.switchOn();
    const QString name = u"Quiet Harbor"_s;
    one.makeRule(name);
    one.settings.set(keys::savedAddresses, QVariantMap{{u"02:00:5e:10:00:05"_s, u"The attic"_s}});
    EXPECT_TRUE(arrives(two, [&] { return two.hasRule(name); }));
    EXPECT_TRUE(arrives(two, [&] {
        return two.settings.getDictionary(keys::savedAddresses).values().contains(u"The attic"_s);
    }));
    two.settings.setBool(keys::lowerCaseHEX, true);
    two.makeRule(u"Loud Street"_s);
    EXPECT_TRUE(arrives(one, [&] { return one.hasRule(u"Loud Street"_s); }));
    EXPECT_TRUE(arrives(one, [&] { return one.settings.getBool(keys::lowerCaseHEX); }));
    EXPECT_TRUE(one.alerts.alerts.isEmpty());
    EXPECT_TRUE(one.session.trouble().isEmpty()) << one.session.trouble().toStdString();
    const QStringList stored = files().entryList(QDir::Files | QDir::Hidden);
    EXPECT_TRUE(stored.contains(keyFileName));
    EXPECT_GT(stored.size(), 3);
    for (const QString &each : stored) {
        QFile file(files().filePath(each));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        for (const char *clear : {"Quiet", "Harbor", "attic", "Loud", "lowerCaseHEX", "saved",
                 "Rule", "02:00:5e", "correct horse"}) {
            EXPECT_FALSE(bytes.contains(clear)) << each.toStdString() << ": " << clear;
        }
    }
}

TEST_P(CloudSessionPlaces, AFileThatWasTamperedWithIsRefusedAndToldAndNothingIsLost)
{
    ASSERT_EQ(one.signInTo(wanted(true)), QString());
    ASSERT_EQ(two.signInTo(wanted(false)), QString());
    one.switchOn();
    one.makeRule(u"Quiet Harbor"_s);
    ASSERT_TRUE(eventually([&] { return !changeFile().isEmpty(); }));
    const QString name = changeFile();
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    file.close();
    QByteArray changed = whole;
    changed.back() = char(changed.back() ^ 1);
    putFile(name, changed, 10);
    two.switchOn();
    EXPECT_TRUE(eventually([&] { return !two.session.trouble().isEmpty(); }));
    EXPECT_FALSE(two.hasRule(u"Quiet Harbor"_s));
    EXPECT_TRUE(one.hasRule(u"Quiet Harbor"_s));
    putFile(name, whole, 20);
    EXPECT_TRUE(arrives(two, [&] { return two.hasRule(u"Quiet Harbor"_s); }));
}

TEST_P(CloudSessionPlaces, AWrongPassphraseIsRefused)
{
    ASSERT_EQ(one.signInTo(wanted(true)), QString());
    CloudSignIn::Wanted wrong = wanted(false);
    wrong.passphrase = u"correct house"_s;
    EXPECT_FALSE(two.signInTo(wrong).isEmpty());
    EXPECT_FALSE(two.signIn.account());
    EXPECT_TRUE(two.secrets.secrets.isEmpty());
    EXPECT_EQ(files().entryList(QDir::Files | QDir::Hidden), QStringList{keyFileName});
}

INSTANTIATE_TEST_SUITE_P(Accounts, CloudSessionPlaces,
    ::testing::Values(Place::Folder, Place::Lighttpd),
    [](const auto &each) { return each.param == Place::Folder ? "Folder" : "Lighttpd"; });

} // namespace
} // namespace quillon::test
