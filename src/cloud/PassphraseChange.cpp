// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/PassphraseChange.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "cloud/AccountUnlocking.h"
#include "cloud/CloudAccounts.h"
#include "cloud/SignInProblem.h"
#include "platform/CloudMessage.h"
#include "platform/CloudProvider.h"
#include "platform/RandomSource.h"
#include "platform/Scheduler.h"
#include "sync/AccountFile.h"

#include <QPointer>

#include <utility>

namespace quillon {

namespace {

using Problem = CloudPassphrase::Problem;
using About = Problem::About;
using Obstacle = AccountUnlocking::Obstacle;

/// A file that was cut off is written again so often.
constexpr int mostWrites = 3;

Problem signedOut()
{
    return {.text = localized("Sign in to the account first.")};
}

std::optional<Problem> refusalOf(const CloudPassphrase::Wanted &wanted)
{
    if (wanted.current.isEmpty()) {
        return Problem{localized("Enter the current passphrase."), About::Current};
    }
    if (wanted.passphrase.isEmpty()) {
        return Problem{localized("Enter a new passphrase."), About::Passphrase};
    }
    if (AccountUnlocking::isTooShort(wanted.passphrase)) {
        return Problem{signInProblem(Obstacle::TooShort).text, About::Passphrase};
    }
    const QByteArray bytes = AccountUnlocking::bytesOf(wanted.passphrase);
    if (bytes != AccountUnlocking::bytesOf(wanted.repeated)) {
        return Problem{signInProblem(Obstacle::RepeatedOther).text, About::Repeated};
    }
    if (bytes == AccountUnlocking::bytesOf(wanted.current)) {
        return Problem{localized("The new passphrase is the current one."), About::Passphrase};
    }
    return std::nullopt;
}

} // namespace

struct PassphraseChange::Attempt : QObject
{
    ~Attempt() override
    {
        wipe(current);
        wipe(passphrase);
    }

    QByteArray current;
    QByteArray passphrase;
    CloudAccount account;
    std::shared_ptr<const OpenedKey> key;
    std::unique_ptr<CloudStorage> storage;
    /// The key file that is to be replaced: it is written on condition that it is that one.
    bool isMissing = false;
    QByteArray before;
    QByteArray revision;
    QByteArray file; ///< the new one
    std::uint32_t number = 0;
    int writes = 0;
};

PassphraseChange::PassphraseChange(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_secrets(m_deps.secrets)
{
}

PassphraseChange::~PassphraseChange() = default;

template <typename Reply>
auto PassphraseChange::guarded(Reply reply)
{
    return [attempt = QPointer<QObject>(m_attempt.get()), reply = std::move(reply)](
               const auto &result) {
        if (attempt) {
            reply(result);
        }
    };
}

void PassphraseChange::begin(const Wanted &wanted)
{
    if (m_attempt) {
        return;
    }
    m_attempt = std::make_unique<Attempt>();
    if (!advance(Step::Reading)) {
        return;
    }
    m_deps.scheduler.onMain(m_attempt.get(), [this, wanted] {
        const auto account = m_deps.accounts.account();
        if (const auto refusal = account ? refusalOf(wanted) : signedOut()) {
            fail(*refusal);
            return;
        }
        m_attempt->account = *account;
        m_attempt->current = AccountUnlocking::bytesOf(wanted.current);
        m_attempt->passphrase = AccountUnlocking::bytesOf(wanted.passphrase);
        readSecrets();
    });
}

void PassphraseChange::readSecrets()
{
    m_secrets.read(m_attempt->account, guarded([this](const CloudSecrets::Found &found) {
        if (const auto *const failure = std::get_if<SecretStore::Failure>(&found)) {
            fail(Problem{secretMessage(failure->problem)});
        } else if (const auto &kept = std::get<std::optional<CloudSecrets::Kept>>(found)) {
            readKeyFile(*kept);
        } else {
            fail(Problem{
                localized("The password of the account is not in the keyring. Sign in again.")});
        }
    }));
}

// MARK: the current passphrase

void PassphraseChange::readKeyFile(const CloudSecrets::Kept &kept)
{
    m_attempt->key = kept.key;
    m_attempt->storage = m_deps.cloud.storage(m_attempt->account, kept.password);
    m_attempt->storage->read(keyFileName, WrappedKey::longest,
        guarded([this](const CloudResult<CloudStorage::Content> &result) {
            if (const auto *const content = std::get_if<CloudStorage::Content>(&result)) {
                m_attempt->revision = content->revision;
                judge(content->bytes);
            } else if (const auto &error = std::get<CloudError>(result);
                error.problem == CloudProblem::NotThere) {
                m_attempt->isMissing = true;
                judge({});
            } else if (error.problem == CloudProblem::TooLarge) {
                fail(KeyFileProblem::Damaged);
            } else {
                fail(error);
            }
        }));
}

/// The copy that this computer has stands for a file that is missing, damaged, or an earlier one.
void PassphraseChange::judge(const QByteArray &file)
{
    m_attempt->before = file;
    const AccountKey &key = m_attempt->key->key;
    const auto found = WrappedKey::check(file, key);
    const auto kept = WrappedKey::check(m_attempt->key->file, key);
    const auto *const number = std::get_if<std::uint32_t>(&found);
    const auto *const known = std::get_if<std::uint32_t>(&kept);
    if (number == nullptr && std::get<KeyFileProblem>(found) != KeyFileProblem::Damaged) {
        fail(std::get<KeyFileProblem>(found));
    } else if (number != nullptr && (known == nullptr || *number >= *known)) {
        wrapAnew(file, *number + 1);
    } else if (known != nullptr) {
        wrapAnew(m_attempt->key->file, *known + 1);
    } else if (m_attempt->isMissing) {
        fail(Problem{signInProblem(Obstacle::KeyLost).text});
    } else {
        fail(KeyFileProblem::Damaged);
    }
}

void PassphraseChange::wrapAnew(const QByteArray &reference, std::uint32_t number)
{
    if (!advance(Step::Checking)) {
        return;
    }
    m_attempt->number = number;
    using Wrapped = std::variant<QByteArray, KeyFileProblem>;
    const auto answer =
        m_deps.scheduler.replyOnMain<Wrapped>(m_attempt.get(), [this](const Wrapped &wrapped) {
            if (const auto *const problem = std::get_if<KeyFileProblem>(&wrapped)) {
                fail(*problem);
                return;
            }
            m_attempt->file = std::get<QByteArray>(wrapped);
            lookAgain();
        });
    m_deps.scheduler.inBackground([answer, reference, number, current = m_attempt->current,
                                      passphrase = m_attempt->passphrase, key = m_attempt->key,
                                      &random = m_deps.random, cost = m_deps.cost] {
        const auto opened = WrappedKey::unwrap(reference, current);
        if (const auto *const problem = std::get_if<KeyFileProblem>(&opened)) {
            answer(*problem);
            return;
        }
        const auto file = WrappedKey::wrap(key->key, passphrase, random, cost, number);
        answer(file ? Wrapped(*file) : Wrapped(KeyFileProblem::NoMemory));
    });
}

// MARK: the new key file

/// Some time has passed, and not every account keeps the condition under which we write.
void PassphraseChange::lookAgain()
{
    m_attempt->storage->readIfChanged(keyFileName, m_attempt->revision, WrappedKey::longest,
        guarded([this](const CloudResult<std::optional<CloudStorage::Content>> &result) {
            const auto *const error = std::get_if<CloudError>(&result);
            const auto *const content = std::get_if<std::optional<CloudStorage::Content>>(&result);
            if (error != nullptr && error->problem != CloudProblem::NotThere) {
                fail(*error);
            } else if (!isSignedIn()) {
                fail(signedOut());
            } else if (content != nullptr && *content &&
                       (m_attempt->isMissing || (*content)->bytes != m_attempt->before)) {
                fail(Problem{localized("Another computer has just changed the key file. Try again "
                                       "with the passphrase that holds now.")});
            } else {
                m_attempt->isMissing = error != nullptr;
                if (content != nullptr && *content) {
                    m_attempt->revision = (*content)->revision;
                }
                write();
            }
        }));
}

void PassphraseChange::write()
{
    if (!advance(Step::Writing)) {
        return;
    }
    ++m_attempt->writes;
    const auto written = guarded([this](const CloudResult<QByteArray> &result) {
        const auto *const error = std::get_if<CloudError>(&result);
        readBack(error != nullptr ? std::optional(*error) : std::nullopt);
    });
    if (m_attempt->isMissing) {
        m_attempt->storage->create(keyFileName, m_attempt->file, written);
    } else {
        m_attempt->storage->replace(keyFileName, m_attempt->file, m_attempt->revision, written);
    }
}

/// Also after an error: what was asked for may have been done, or half of it.
void PassphraseChange::readBack(const std::optional<CloudError> &error)
{
    m_attempt->storage->read(keyFileName, WrappedKey::longest,
        guarded([this, error](const CloudResult<CloudStorage::Content> &result) {
            if (const auto *const content = std::get_if<CloudStorage::Content>(&result)) {
                judgeWritten(*content, error);
                return;
            }
            const CloudError &problem = std::get<CloudError>(result);
            if (problem.problem == CloudProblem::NotThere) {
                error ? fail(*error) : fail(Problem{signInProblem(Obstacle::KeyLost).text});
                return;
            }
            qCWarning(logSync, "the new key file cannot be read back: %s",
                qUtf8Printable(problem.message));
            fail(Problem{localized("The connection was lost. Either the new passphrase or the "
                                   "current one opens the account now.")});
        }));
}

void PassphraseChange::judgeWritten(
    const CloudStorage::Content &found, const std::optional<CloudError> &error)
{
    if (found.bytes == m_attempt->file) {
        keep();
        return;
    }
    const auto number = WrappedKey::check(found.bytes, m_attempt->key->key);
    const auto *const problem = std::get_if<KeyFileProblem>(&number);
    if (found.bytes == m_attempt->before && error) {
        fail(*error);
    } else if (problem != nullptr && *problem == KeyFileProblem::Damaged &&
               m_attempt->writes < mostWrites) {
        // It was cut off on the way.
        m_attempt->isMissing = false;
        m_attempt->revision = found.revision;
        write();
    } else if (problem != nullptr) {
        fail(*problem);
    } else if (found.bytes != m_attempt->before &&
               std::get<std::uint32_t>(number) >= m_attempt->number) {
        fail(Problem{localized("Another computer has changed the passphrase at the same time. "
                               "That one holds now.")});
    } else {
        fail(CloudError{CloudProblem::Failed, QStringLiteral("the key file is as it was")});
    }
}

void PassphraseChange::keep()
{
    if (!advance(Step::Keeping)) {
        return;
    }
    qCInfo(logSync, "the account has another passphrase");
    if (!isSignedIn()) {
        succeed();
        return;
    }
    // The passphrase is changed, whatever becomes of the copy: whoever syncs next makes it good.
    m_secrets.keepKeyFile(m_attempt->account, m_attempt->key->key, m_attempt->file,
        guarded([this](const std::optional<SecretStore::Failure> &failure) {
            if (failure) {
                qCWarning(logSync, "the new key file cannot be kept: %s",
                    qUtf8Printable(failure->message));
            }
            if (!isSignedIn()) {
                m_secrets.forget(m_attempt->account, m_deps.accounts.account());
            }
            succeed();
        }));
}

bool PassphraseChange::isSignedIn() const
{
    const auto account = m_deps.accounts.account();
    return account && account->identityToken() == m_attempt->account.identityToken();
}

// MARK: the end

void PassphraseChange::succeed()
{
    end();
    Q_EMIT changed();
}

void PassphraseChange::fail(const Problem &problem)
{
    end();
    Q_EMIT failed(problem);
}

void PassphraseChange::fail(const CloudError &error)
{
    qCInfo(logSync, "the passphrase was not changed (%d): %s", int(error.problem),
        qUtf8Printable(error.message));
    fail(Problem{cloudMessage(error.problem, m_attempt->account.kind)});
}

void PassphraseChange::fail(KeyFileProblem problem)
{
    if (problem == KeyFileProblem::WrongPassphrase) {
        fail(Problem{localized("This is not the current passphrase."), About::Current});
    } else {
        fail(Problem{keyFileMessage(problem)});
    }
}

bool PassphraseChange::cancel()
{
    if (m_step == Step::Writing || m_step == Step::Keeping) {
        return false;
    }
    end();
    return true;
}

void PassphraseChange::end()
{
    m_attempt.reset();
    setStep(Step::None);
}

bool PassphraseChange::advance(Step step)
{
    const QPointer<QObject> attempt(m_attempt.get());
    setStep(step);
    return attempt;
}

void PassphraseChange::setStep(Step step)
{
    if (std::exchange(m_step, step) != step) {
        Q_EMIT stepChanged();
    }
}

} // namespace quillon
