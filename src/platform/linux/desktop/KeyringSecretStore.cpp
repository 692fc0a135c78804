// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/KeyringSecretStore.h"

#include "platform/Scheduler.h"
#include "platform/linux/bus/BusCall.h"

#include <QDBusError>
#include <QDBusVariant>
#include <QStringList>
#include <qt6keychain/keychain.h>

#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// It may have to be started first.
constexpr auto answerLimit = 25s;

const QString secretService = u"org.freedesktop.secrets"_s;
const QStringList services{
    secretService, u"org.kde.kwalletd6"_s, u"org.kde.kwalletd5"_s, u"org.kde.ksecretd"_s};
/// Under which the entries stand.
const QString owner = u"Quillon"_s;

SecretStore::Failure failure(SecretStore::Problem problem, const QString &message)
{
    return {problem, message};
}

SecretStore::Failure failureOf(const QKeychain::Job &job)
{
    using Problem = SecretStore::Problem;
    switch (job.error()) {
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        return failure(Problem::Refused, job.errorString());
    case QKeychain::NoBackendAvailable:
    case QKeychain::NotImplemented:
        return failure(Problem::NoKeyring, job.errorString());
    case QKeychain::NoError:
    case QKeychain::EntryNotFound:
    case QKeychain::CouldNotDeleteEntry:
    case QKeychain::OtherError:
        break;
    }
    return failure(Problem::Failed, job.errorString());
}

/// Nobody has the name, and nobody can be started for it; or there is no bus.
bool isMissing(const QDBusMessage &message)
{
    const QDBusError::ErrorType type = QDBusError(message).type();
    return type == QDBusError::ServiceUnknown || type == QDBusError::Disconnected ||
           message.errorName() == "org.freedesktop.DBus.Error.NameHasNoOwner"_L1 ||
           message.errorName() == "org.freedesktop.DBus.Error.Spawn.ServiceNotFound"_L1;
}

} // namespace

KeyringSecretStore::KeyringSecretStore(
    const QDBusConnection &bus, Scheduler &scheduler, std::chrono::milliseconds patience)
    : m_bus(bus)
    , m_scheduler(scheduler)
    , m_patience(patience)
{
}

void KeyringSecretStore::withKeyring(
    std::function<void()> begin, std::function<void(const Failure &)> fail)
{
    tryService(0, begin, fail);
}

void KeyringSecretStore::tryService(qsizetype number, const std::function<void()> &begin,
    const std::function<void(const Failure &)> &fail)
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        services.at(number), u"/"_s, u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    callBus(m_bus, &m_context, question, answerLimit, [=, this](const QDBusMessage &answer) {
        if (answer.type() != QDBusMessage::ErrorMessage) {
            begin();
        } else if (!isMissing(answer)) {
            // It is there, whatever it thinks of the question, unless it says nothing at all.
            const bool isSilent = QDBusError(answer).type() == QDBusError::NoReply ||
                                  QDBusError(answer).type() == QDBusError::Timeout;
            isSilent ? fail(failure(Problem::TooLate, answer.errorMessage())) : begin();
        } else if (number + 1 < services.size()) {
            tryService(number + 1, begin, fail);
        } else {
            fail(failure(Problem::NoKeyring, answer.errorMessage()));
        }
    });
}

void KeyringSecretStore::run(QKeychain::Job *job, const QString &name, const Ended &ended)
{
    job->setKey(name);
    // Never into a file of settings, where anybody could read it.
    job->setInsecureFallback(false);
    const auto isOver = std::make_shared<bool>(false);
    const Scheduler::Token limit = m_scheduler.onMainAfter(m_patience, &m_context, [ended, isOver] {
        if (!std::exchange(*isOver, true)) {
            ended(failure(Problem::TooLate, u"the keyring does not answer"_s), nullptr);
        }
    });
    // A job deletes itself, also when nobody waits for it any more.
    QObject::connect(job, &QKeychain::Job::finished, &m_context,
        [this, ended, isOver, limit](QKeychain::Job *finished) {
            if (std::exchange(*isOver, true)) {
                return;
            }
            m_scheduler.cancel(limit);
            const bool isGood = finished->error() == QKeychain::NoError ||
                                finished->error() == QKeychain::EntryNotFound;
            ended(isGood ? std::nullopt : std::optional(failureOf(*finished)), finished);
        });
    job->start();
}

void KeyringSecretStore::store(const QString &name, const QString &secret, Done done)
{
    // The keyring's functions would cut it off there.
    if (name.isEmpty() || secret.contains(QChar(0))) {
        m_scheduler.onMain(&m_context, [done = std::move(done)] {
            done(failure(Problem::Failed, u"no keyring can hold that"_s));
        });
        return;
    }
    withKeyring(
        [this, name, secret, done] {
            auto *const job = new QKeychain::WritePasswordJob(owner);
            job->setTextData(secret);
            run(job, name,
                [done](const std::optional<Failure> &problem, QKeychain::Job *) { done(problem); });
        },
        [done](const Failure &problem) { done(problem); });
}

void KeyringSecretStore::read(const QString &name, Read read)
{
    withKeyring(
        [this, name, read] {
            run(new QKeychain::ReadPasswordJob(owner), name,
                [this, read](const std::optional<Failure> &problem, QKeychain::Job *job) {
                    if (problem) {
                        read(*problem);
                    } else if (job->error() == QKeychain::EntryNotFound) {
                        tellMissingFromLocked(read);
                    } else {
                        read(static_cast<QKeychain::ReadPasswordJob *>(job)->textData());
                    }
                });
        },
        [read](const Failure &problem) { read(problem); });
}

/// What is in a keyring that stayed locked looks to the library as if it were not there.
void KeyringSecretStore::tellMissingFromLocked(const Read &read)
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(secretService, u"/org/freedesktop/secrets/aliases/default"_s,
            u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << u"org.freedesktop.Secret.Collection"_s << u"Locked"_s;
    callBus(m_bus, &m_context, question, answerLimit, [read](const QDBusMessage &answer) {
        const QVariant value = answer.arguments().value(0);
        const bool isLocked = answer.type() == QDBusMessage::ReplyMessage &&
                              value.typeId() == qMetaTypeId<QDBusVariant>() &&
                              value.value<QDBusVariant>().variant().toBool();
        if (isLocked) {
            read(failure(Problem::Refused, u"the keyring stayed locked"_s));
        } else {
            read(std::optional<QString>());
        }
    });
}

void KeyringSecretStore::remove(const QString &name, Done done)
{
    withKeyring(
        [this, name, done] {
            run(new QKeychain::DeletePasswordJob(owner), name,
                [done](const std::optional<Failure> &problem, QKeychain::Job *) { done(problem); });
        },
        [done](const Failure &problem) { done(problem); });
}

} // namespace quillon
