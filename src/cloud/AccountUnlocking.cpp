// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/AccountUnlocking.h"

#include "platform/RandomSource.h"
#include "platform/Scheduler.h"
#include "sync/AccountFile.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

AccountUnlocking::Obstacle obstacleOf(KeyFileProblem problem)
{
    switch (problem) {
    case KeyFileProblem::WrongPassphrase:
        return AccountUnlocking::Obstacle::WrongPassphrase;
    case KeyFileProblem::Newer:
        return AccountUnlocking::Obstacle::Newer;
    case KeyFileProblem::NoMemory:
        return AccountUnlocking::Obstacle::NoMemory;
    case KeyFileProblem::Damaged:
    case KeyFileProblem::OtherKey: // there is none yet to compare it with
        break;
    }
    return AccountUnlocking::Obstacle::Damaged;
}

} // namespace

QByteArray AccountUnlocking::bytesOf(const QString &passphrase)
{
    return passphrase.normalized(QString::NormalizationForm_C).toUtf8();
}

bool AccountUnlocking::isTooShort(const QString &passphrase)
{
    return passphrase.normalized(QString::NormalizationForm_C).size() < shortestPassphrase;
}

AccountUnlocking::AccountUnlocking(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

template <typename Reply>
auto AccountUnlocking::guarded(Reply reply)
{
    return [self = QPointer(this), reply = std::move(reply)](const auto &result) {
        if (self) {
            reply(result);
        }
    };
}

void AccountUnlocking::open(const QString &passphrase, const QString &repeatedPassphrase, Done done)
{
    m_passphrase = bytesOf(passphrase);
    m_repeated = bytesOf(repeatedPassphrase);
    m_done = std::move(done);
    m_deps.storage.read(keyFileName, WrappedKey::longest,
        guarded([this](const CloudResult<CloudStorage::Content> &result) {
            const auto *const error = std::get_if<CloudError>(&result);
            if (!error) {
                unwrap(std::get<CloudStorage::Content>(result).bytes);
            } else if (error->problem == CloudProblem::NotThere) {
                lookForFiles();
            } else if (error->problem == CloudProblem::TooLarge) {
                finish(Obstacle::Damaged);
            } else {
                finish(*error);
            }
        }));
}

void AccountUnlocking::unwrap(const QByteArray &file)
{
    using Unwrapped = std::shared_ptr<std::variant<AccountKey, KeyFileProblem>>;
    const auto answer =
        m_deps.scheduler.replyOnMain<Unwrapped>(this, [this, file](const Unwrapped &unwrapped) {
            if (const auto *const problem = std::get_if<KeyFileProblem>(unwrapped.get())) {
                finish(obstacleOf(*problem));
                return;
            }
            auto &key = std::get<AccountKey>(*unwrapped);
            finish(Opened{std::make_shared<const OpenedKey>(OpenedKey{std::move(key), file})});
        });
    m_deps.scheduler.inBackground([answer, file, passphrase = m_passphrase] {
        answer(std::make_shared<std::variant<AccountKey, KeyFileProblem>>(
            WrappedKey::unwrap(file, passphrase)));
    });
}

/// What other computers wrote under a key that is lost could not be read under a new one.
void AccountUnlocking::lookForFiles()
{
    m_deps.storage.list(guarded([this](const CloudResult<QList<CloudFile>> &result) {
        if (const auto *const error = std::get_if<CloudError>(&result)) {
            finish(*error);
            return;
        }
        const bool hasFiles = std::ranges::any_of(std::get<QList<CloudFile>>(result),
            [](const CloudFile &file) { return AccountFile::fromName(file.name).has_value(); });
        if (hasFiles) {
            finish(Obstacle::KeyLost);
        } else if (isTooShort(QString::fromUtf8(m_passphrase))) {
            finish(Obstacle::TooShort);
        } else if (m_repeated.isEmpty()) {
            finish(Obstacle::NotRepeated);
        } else if (m_repeated != m_passphrase) {
            finish(Obstacle::RepeatedOther);
        } else {
            makeKey();
        }
    }));
}

void AccountUnlocking::makeKey()
{
    using Made = std::shared_ptr<const OpenedKey>;
    const auto answer = m_deps.scheduler.replyOnMain<Made>(this, [this](const Made &made) {
        if (made) {
            finish(Opened{made, true});
        } else {
            finish(Obstacle::NoMemory);
        }
    });
    m_deps.scheduler.inBackground(
        [answer, passphrase = m_passphrase, &random = m_deps.random, cost = m_deps.cost] {
            auto key = AccountKey::random(random);
            const auto file = key ? WrappedKey::wrap(*key, passphrase, random, cost) : std::nullopt;
            answer(file ? std::make_shared<const OpenedKey>(OpenedKey{std::move(*key), *file})
                        : nullptr);
        });
}

void AccountUnlocking::finish(const Result &result)
{
    const Done done = std::exchange(m_done, {});
    wipe(m_passphrase);
    wipe(m_repeated);
    done(result); // may destroy us
}

void AccountUnlocking::put(const QByteArray &file, Put done)
{
    m_deps.storage.create(keyFileName, file,
        guarded([this, file, done = std::move(done)](const CloudResult<QByteArray> &result) {
            const auto *const error = std::get_if<CloudError>(&result);
            if (error && error->problem != CloudProblem::Changed) {
                done(*error);
            } else {
                readBack(file, done);
            }
        }));
}

/// Not every account notices that two make a file.
void AccountUnlocking::readBack(const QByteArray &file, const Put &done)
{
    m_deps.storage.read(keyFileName, WrappedKey::longest,
        guarded([file, done](const CloudResult<CloudStorage::Content> &result) {
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                done(*error);
            } else {
                done(std::get<CloudStorage::Content>(result).bytes == file);
            }
        }));
}

} // namespace quillon
