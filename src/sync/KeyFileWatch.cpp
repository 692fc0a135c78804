// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/KeyFileWatch.h"

#include "base/Log.h"
#include "sync/AccountFile.h"

#include <QPointer>

#include <utility>

namespace quillon {

KeyFileWatch::KeyFileWatch(
    CloudStorage &account, const AccountKey &key, QByteArray copy, Renewed renewed)
    : m_account(account)
    , m_key(key)
    , m_copy(std::move(copy))
    , m_renewed(std::move(renewed))
{
}

bool KeyFileWatch::hasSeen(const QByteArray &revision) const
{
    return !revision.isEmpty() && revision == m_seen;
}

void KeyFileWatch::look(Looked looked)
{
    m_account.read(keyFileName, WrappedKey::longest,
        [self = QPointer(this), looked = std::move(looked)](
            const CloudResult<CloudStorage::Content> &result) {
            if (!self) {
                return;
            }
            if (const auto *const content = std::get_if<CloudStorage::Content>(&result)) {
                self->judge(*content, looked);
            } else if (const auto &error = std::get<CloudError>(result);
                error.problem == CloudProblem::TooLarge) {
                // Not a beginning of ours, so nothing that we know how to mend.
                looked(std::optional(KeyFileProblem::Damaged));
            } else {
                looked(error);
            }
        });
}

void KeyFileWatch::judge(const CloudStorage::Content &found, const Looked &looked)
{
    const auto number = WrappedKey::check(found.bytes, m_key);
    const auto known = WrappedKey::check(m_copy, m_key);
    const auto *const ours = std::get_if<std::uint32_t>(&known);
    if (const auto *const problem = std::get_if<KeyFileProblem>(&number)) {
        if (*problem == KeyFileProblem::Damaged && ours != nullptr) {
            qCWarning(logSync, "the key file of the account is damaged");
            putBack(found.revision, std::optional(*problem), looked);
        } else {
            looked(std::optional(*problem));
        }
        return;
    }
    if (ours != nullptr && std::get<std::uint32_t>(number) < *ours) {
        // A server that was restored, or somebody who would like the earlier passphrase back.
        qCWarning(logSync, "the key file of the account is an earlier one");
        putBack(found.revision, std::optional<KeyFileProblem>(), looked);
        return;
    }
    m_seen = found.revision;
    if (found.bytes != m_copy) {
        qCInfo(logSync, "the account has another passphrase");
        m_copy = found.bytes;
        m_renewed(m_copy);
    }
    looked(std::optional<KeyFileProblem>());
}

/// On condition that it is still the one that was read: somebody may be writing a better one.
void KeyFileWatch::putBack(
    const QByteArray &revision, const Result &otherwise, const Looked &looked)
{
    m_account.replace(keyFileName, m_copy, revision,
        [self = QPointer(this), otherwise, looked](const CloudResult<QByteArray> &written) {
            if (!self) {
                return;
            }
            if (const auto *const error = std::get_if<CloudError>(&written)) {
                qCWarning(logSync, "it cannot be put back: %s", qUtf8Printable(error->message));
                looked(otherwise);
            } else {
                self->m_seen = std::get<QByteArray>(written);
                looked(std::optional<KeyFileProblem>());
            }
        });
}

} // namespace quillon
