// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudSession.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "cloud/CloudAccounts.h"
#include "cloud/SignInProblem.h"
#include "platform/CloudMessage.h"
#include "platform/CloudProvider.h"
#include "platform/PowerSaving.h"
#include "platform/Reachability.h"
#include "sync/AccountFile.h"
#include "sync/KeyFileWatch.h"
#include "sync/RecordMirror.h"

#include <QPointer>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Who writes one file often writes more.
constexpr auto pauseBeforeLook = 2s;
constexpr auto pauseAfterFailure = 30s;
/// The keyring may come up after us.
constexpr auto pauseWithoutKeyring = 5min;

bool isOnThisComputer(const CloudAccount &account)
{
    const QString host = account.server.host();
    return account.kind == CloudAccount::Kind::Folder || host == "localhost"_L1 ||
           host == "::1"_L1 || host.startsWith("127."_L1);
}

QString refusalText(FileProblem problem)
{
    if (problem == FileProblem::Newer) {
        return localized("The account holds changes by a newer version of Quillon. Update it here "
                         "to get them.");
    }
    return localized("A file in the account is damaged, or somebody has changed it. It is left "
                     "alone.");
}

} // namespace

/// All that is there only while the account is synced with.
struct CloudSession::Running
{
    Running(const Collaborators &deps, std::shared_ptr<const OpenedKey> opened,
        std::unique_ptr<CloudStorage> storageOfAccount, SyncSchedule::Run run,
        KeyFileWatch::Renewed renewed)
        : key(std::move(opened))
        , storage(std::move(storageOfAccount))
        , keyFile(*storage, key->key, key->file, std::move(renewed))
        , replica(deps.mirror.storage(), key->key, deps.random)
        , schedule(deps.scheduler, deps.random, std::move(run))
    {
    }

    std::shared_ptr<const OpenedKey> key;
    std::unique_ptr<CloudStorage> storage;
    KeyFileWatch keyFile;
    Replica replica;
    SyncSchedule schedule;
    std::unique_ptr<SyncRound> round;
    std::optional<Scheduler::Token> look;
    bool wasWell = true; ///< the last round
    std::optional<FileProblem> refused;
};

CloudSession::CloudSession(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_secrets(m_deps.secrets)
{
    connect(&m_deps.mirror, &RecordMirror::ready, this, [this] {
        if (m_running) {
            m_running->schedule.start();
        }
    });
    connect(&m_deps.mirror, &RecordMirror::edited, this, [this] {
        if (m_running) {
            m_running->schedule.edited();
        }
    });
}

CloudSession::~CloudSession()
{
    stop();
    for (const SettingsStore::Token token : m_observers) {
        m_deps.settings.removeObserver(token);
    }
    if (m_accountObserver) {
        m_deps.accounts.removeObserver(*m_accountObserver);
    }
}

void CloudSession::begin()
{
    if (std::exchange(m_hasBegun, true)) {
        return;
    }
    for (const QString &key : {keys::iCloudSync, keys::iCloudToken}) {
        m_observers.push_back(
            m_deps.settings.addObserver(key, [this](const auto &) { followSoon(); }));
    }
    m_accountObserver = m_deps.accounts.addObserver([this] { followSoon(); });
    followSoon();
}

void CloudSession::renew()
{
    stop();
    followSoon();
}

void CloudSession::followSoon()
{
    // Several of them change together.
    if (m_hasBegun && !std::exchange(m_isFollowing, true)) {
        m_deps.scheduler.onMain(this, [this] {
            m_isFollowing = false;
            follow();
        });
    }
}

void CloudSession::follow()
{
    const auto account = m_deps.accounts.account();
    const bool isWanted = m_deps.settings.getBool(keys::iCloudSync) && account &&
                          m_deps.settings.get(keys::iCloudToken) == m_deps.accounts.identityToken();
    if (isWanted && m_account == account) {
        return;
    }
    stop();
    if (isWanted) {
        m_account = account;
        readSecrets();
    }
}

void CloudSession::stop()
{
    ++m_opening;
    m_account.reset();
    if (m_retry) {
        m_deps.scheduler.cancel(*std::exchange(m_retry, std::nullopt));
    }
    if (m_running) {
        if (m_running->look) {
            m_deps.scheduler.cancel(*m_running->look);
        }
        m_running->round.reset();
        m_deps.mirror.stop();
        m_running.reset();
    }
    setTrouble({});
}

void CloudSession::retryAfter(std::chrono::milliseconds pause)
{
    m_retry = m_deps.scheduler.onMainAfter(pause, this, [this] {
        m_retry.reset();
        renew();
    });
}

// MARK: from the account to its replica

void CloudSession::readSecrets()
{
    m_secrets.read(
        *m_account, [self = QPointer(this), opening = m_opening](const CloudSecrets::Found &found) {
            if (self && self->m_opening == opening) {
                self->takeSecrets(found);
            }
        });
}

void CloudSession::takeSecrets(const CloudSecrets::Found &found)
{
    if (const auto *const failure = std::get_if<SecretStore::Failure>(&found)) {
        qCWarning(logSync, "the secrets of the account cannot be read: %s",
            qUtf8Printable(failure->message));
        setTrouble(secretMessage(failure->problem));
        // A person who does not want it unlocked is not asked again and again.
        if (failure->problem == SecretStore::Problem::NoKeyring) {
            retryAfter(pauseWithoutKeyring);
        }
    } else if (const auto &kept = std::get<std::optional<CloudSecrets::Kept>>(found)) {
        start(*kept);
    } else {
        qCWarning(logSync, "the secrets of the account are not in the keyring");
        setTrouble(localized("The password of the account is not in the keyring. Sign in again."));
    }
}

void CloudSession::start(const CloudSecrets::Kept &kept)
{
    m_running = std::make_unique<Running>(
        m_deps, kept.key, m_deps.cloud.storage(*m_account, kept.password),
        [this](SyncRound::Look look, const SyncRound::Done &done) { run(look, done); },
        [this](const QByteArray &file) { keepKeyFile(file); });
    // Another key is another account, of which nothing is known.
    const QByteArray account = m_account->identityToken() + kept.key->key.fingerprint();
    if (!m_deps.mirror.start(m_running->replica, account)) {
        stop();
        setTrouble(localized("What is to be synced could not be stored on this computer."));
        retryAfter(pauseAfterFailure);
        return;
    }
    if (!std::exchange(m_isPowerWatched, true)) {
        m_deps.powerSaving.watch([this] {
            if (m_running) {
                m_running->schedule.setSavingBattery(m_deps.powerSaving.isOn());
            }
        });
    }
    m_running->schedule.setSavingBattery(m_deps.powerSaving.isOn());
    m_running->storage->watch([this] { look(); });
    networkChanged();
    qCInfo(logSync, "syncing");
}

// MARK: rounds

void CloudSession::networkChanged()
{
    if (m_running) {
        m_running->schedule.setOnline(
            isOnThisComputer(*m_account) || m_deps.reachability.isReachable());
    }
}

/// Our own writes are told of as well: what they come to is one look more, which writes nothing.
/// After a failure the schedule alone says when to try again.
void CloudSession::look()
{
    if (!m_running || m_running->look || !m_running->wasWell) {
        return;
    }
    m_running->look = m_deps.scheduler.onMainAfter(pauseBeforeLook, this, [this] {
        m_running->look.reset();
        if (m_running->round) {
            look();
        } else {
            m_running->schedule.lookNow();
        }
    });
}

void CloudSession::run(SyncRound::Look look, const SyncRound::Done &done)
{
    m_running->round =
        std::make_unique<SyncRound>(SyncDeps{*m_running->storage, m_deps.mirror.storage(),
            m_running->replica, m_running->key->key, m_deps.random, &m_running->keyFile});
    // A folder is listed for nothing. Its files come in any order, the head before the others.
    const bool isFolder = m_account->kind == CloudAccount::Kind::Folder;
    const auto wanted = isFolder ? SyncRound::Look::Listing : look;
    m_running->round->start(wanted, [this, done](const SyncOutcome &told) {
        const SyncOutcome outcome = told;
        m_running->round.reset();
        ended(outcome);
        done(outcome);
    });
}

void CloudSession::ended(const SyncOutcome &outcome)
{
    m_running->wasWell = outcome.isWell();
    m_deps.mirror.endImport(!outcome.couldNotStore);
    for (const RefusedFile &file : outcome.refused) {
        if (file.problem != FileProblem::NotKept && m_running->refused != FileProblem::Newer) {
            m_running->refused = file.problem;
        }
    }
    if (outcome.isKeyMissing) {
        putKeyBack();
    }
    if (outcome.error) {
        setTrouble(cloudMessage(outcome.error->problem, m_account->kind));
    } else if (outcome.keyProblem) {
        setTrouble(keyFileMessage(*outcome.keyProblem));
    } else if (outcome.couldNotStore) {
        setTrouble(localized("What is to be synced could not be stored on this computer."));
    } else {
        setTrouble(m_running->refused ? refusalText(*m_running->refused) : QString());
    }
}

/// Somebody has removed it. Without it no other computer can sign in.
void CloudSession::putKeyBack()
{
    m_running->storage->create(keyFileName, m_running->keyFile.copy(), [this](const auto &result) {
        const auto *const error = std::get_if<CloudError>(&result);
        if (error && error->problem != CloudProblem::Changed) {
            qCWarning(logSync, "the key file of the account cannot be put back: %s",
                qUtf8Printable(error->message));
        } else {
            m_running->schedule.lookNow();
        }
    });
}

/// Lest the earlier passphrase comes back when somebody removes the key file.
void CloudSession::keepKeyFile(const QByteArray &file)
{
    m_secrets.keepKeyFile(*m_account, m_running->key->key, file,
        [self = QPointer(this), account = *m_account](
            const std::optional<SecretStore::Failure> &failure) {
            if (failure) {
                qCWarning(logSync, "the new key file cannot be kept: %s",
                    qUtf8Printable(failure->message));
            }
            const auto now = self ? self->m_deps.accounts.account() : std::nullopt;
            if (self && (!now || now->identityToken() != account.identityToken())) {
                // Signed out meanwhile; what has arrived since then goes again.
                self->m_secrets.forget(account, now);
            }
        });
}

void CloudSession::setTrouble(const QString &trouble)
{
    if (std::exchange(m_trouble, trouble) != trouble) {
        if (!trouble.isEmpty()) {
            qCWarning(logSync, "%s", qUtf8Printable(trouble));
        }
        Q_EMIT troubleChanged();
    }
}

} // namespace quillon
