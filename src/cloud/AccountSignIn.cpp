// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/AccountSignIn.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "cloud/CloudAccounts.h"
#include "cloud/SignInProblem.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <QDir>
#include <QPointer>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// At a server, below the person's files.
const QString folderAtServer = u"Quillon"_s;

} // namespace

AccountSignIn::AccountSignIn(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_secrets(m_deps.secrets)
    , m_token(m_deps.accounts.addObserver([this] { Q_EMIT accountChanged(); }))
{
}

AccountSignIn::~AccountSignIn()
{
    m_deps.accounts.removeObserver(m_token);
}

std::optional<CloudAccount> AccountSignIn::account() const
{
    return m_deps.accounts.account();
}

void AccountSignIn::begin(const Wanted &wanted)
{
    cancel();
    m_wanted = wanted;
    const bool isFolder = wanted.kind == CloudAccount::Kind::Folder;
    if (!advance(isFolder ? Step::Trying : Step::Looking)) {
        return;
    }
    m_deps.scheduler.onMain(this, [this, isFolder, attempt = m_attempt] {
        if (attempt != m_attempt) {
            return;
        }
        if (const auto missing = missingOf(m_wanted)) {
            fail(*missing);
        } else if (isFolder) {
            m_account = {.folder = QDir::cleanPath(m_wanted.folder)};
            tryAccount();
        } else {
            findAddress();
        }
    });
}

void AccountSignIn::findAddress()
{
    m_search = m_deps.cloud.findWebDavAddress(
        {m_wanted.address, m_wanted.user, m_wanted.password, m_wanted.fingerprint},
        [this](const CloudResult<QUrl> &found) {
            if (const auto *const error = std::get_if<CloudError>(&found)) {
                fail(*error);
                return;
            }
            m_account = {CloudAccount::Kind::WebDav, std::get<QUrl>(found), m_wanted.user,
                folderAtServer, m_wanted.fingerprint};
            if (advance(Step::Trying)) {
                tryAccount();
            }
        });
}

void AccountSignIn::tryAccount()
{
    m_storage = m_deps.cloud.storage(m_account, m_wanted.password);
    m_probe = std::make_unique<AccountProbe>(*m_storage, m_deps.random);
    m_probe->start([this](const CloudResult<AccountAbilities> &result) {
        if (const auto *const error = std::get_if<CloudError>(&result)) {
            fail(*error);
            return;
        }
        m_abilities = std::get<AccountAbilities>(result);
        if (advance(Step::Unlocking)) {
            unlock();
        }
    });
}

void AccountSignIn::unlock()
{
    m_unlocking = std::make_unique<AccountUnlocking>(
        AccountUnlocking::Collaborators{*m_storage, m_deps.scheduler, m_deps.random, m_deps.cost});
    m_unlocking->open(m_wanted.passphrase, m_wanted.repeatedPassphrase,
        [this](const AccountUnlocking::Result &result) {
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                fail(*error);
            } else if (const auto *const why = std::get_if<AccountUnlocking::Obstacle>(&result)) {
                fail(signInProblem(*why));
            } else if (advance(Step::Keeping)) {
                keep(std::get<AccountUnlocking::Opened>(result));
            }
        });
}

/// Before the key file of a new account is written: without a keyring there would be an account
/// that nobody is signed in to.
void AccountSignIn::keep(const AccountUnlocking::Opened &opened)
{
    m_hasKept = true;
    m_deps.accounts.addLeft(m_account);
    const QString password =
        m_account.kind == CloudAccount::Kind::Folder ? QString() : m_wanted.password;
    m_secrets.keep(m_account, {password, opened.key},
        [self = QPointer(this), account = m_account, opened, attempt = m_attempt](
            const std::optional<SecretStore::Failure> &failure) {
            if (!self) {
                return;
            }
            if (attempt != self->m_attempt) {
                // Given up meanwhile; what has arrived since then goes again.
                self->forget(account);
            } else if (failure) {
                qCWarning(logSync, "the secrets of the account cannot be kept: %s",
                    qUtf8Printable(failure->message));
                self->fail(signInProblem(failure->problem));
            } else if (opened.isNew) {
                self->putKey(opened);
            } else {
                self->succeed();
            }
        });
}

void AccountSignIn::putKey(const AccountUnlocking::Opened &opened)
{
    m_unlocking->put(opened.key->file, [this](const CloudResult<bool> &result) {
        if (const auto *const error = std::get_if<CloudError>(&result)) {
            fail(*error);
        } else if (std::get<bool>(result)) {
            succeed();
        } else if (advance(Step::Unlocking)) {
            // Another computer made the account meanwhile: its key is the one.
            unlock();
        }
    });
}

void AccountSignIn::succeed()
{
    const CloudAccount account = m_account;
    const QString sentence = m_abilities.sentence();
    const auto before = m_deps.accounts.account();
    m_hasKept = false;
    drop();
    m_deps.accounts.set(account);
    m_deps.accounts.removeLeft(account);
    if (before && before->identityToken() != account.identityToken()) {
        forget(*before);
    }
    qCInfo(logSync, "signed in");
    setStep(Step::None);
    Q_EMIT signedIn(sentence);
}

// MARK: what did not succeed

void AccountSignIn::fail(const CloudError &error)
{
    qCInfo(logSync, "signing in did not succeed (%d): %s", int(error.problem),
        qUtf8Printable(error.message));
    fail(signInProblem(error, m_wanted.kind));
}

void AccountSignIn::fail(const Problem &problem)
{
    drop();
    setStep(Step::None);
    Q_EMIT failed(problem);
}

void AccountSignIn::cancel()
{
    drop();
    setStep(Step::None);
}

void AccountSignIn::drop()
{
    ++m_attempt;
    m_unlocking.reset();
    m_probe.reset();
    m_search.reset();
    m_storage.reset();
    if (std::exchange(m_hasKept, false)) {
        forget(m_account);
    }
    m_wanted = {};
    m_account = {};
}

/// The secrets of the account that the person is signed in to stay.
void AccountSignIn::forget(const CloudAccount &account)
{
    m_deps.accounts.addLeft(account);
    m_secrets.forget(
        account, m_deps.accounts.account(), [self = QPointer(this), account](bool areGone) {
            // A new attempt may be putting them there again.
            const bool isWanted = self && self->m_hasKept && self->m_account == account;
            if (self && areGone && !isWanted) {
                self->m_deps.accounts.removeLeft(account);
            }
        });
}

void AccountSignIn::clearUp()
{
    const auto signedIn = m_deps.accounts.account();
    for (const CloudAccount &account : m_deps.accounts.left()) {
        if (signedIn && signedIn->identityToken() == account.identityToken()) {
            m_deps.accounts.removeLeft(account);
        } else {
            forget(account);
        }
    }
}

void AccountSignIn::signOut()
{
    cancel();
    const auto account = m_deps.accounts.account();
    if (!account) {
        return;
    }
    m_deps.settings.setBool(keys::iCloudSync, false);
    m_deps.accounts.addLeft(*account);
    m_deps.accounts.forget();
    forget(*account);
}

bool AccountSignIn::advance(Step step)
{
    const quint64 attempt = m_attempt;
    setStep(step);
    return attempt == m_attempt;
}

void AccountSignIn::setStep(Step step)
{
    if (std::exchange(m_step, step) != step) {
        Q_EMIT stepChanged();
    }
}

} // namespace quillon
