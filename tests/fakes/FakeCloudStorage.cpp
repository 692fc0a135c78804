// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeCloudStorage.h"

#include <algorithm>
#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;

void FakeCloudAccount::put(const QString &name, const QByteArray &bytes)
{
    files[name] = {bytes, "r" + QByteArray::number(++revisions)};
}

QList<CloudFile> FakeCloudAccount::listing() const
{
    QList<CloudFile> listing;
    for (auto it = files.begin(); it != files.end(); ++it) {
        listing.append({it.key(), it->bytes.size(), it->revision});
    }
    return listing;
}

void FakeCloudStorage::ask(Request request)
{
    m_given.append(request.what);
    m_requests.append(std::move(request));
    m_mostWaiting = std::max(m_mostWaiting, int(m_requests.size()));
}

CloudError FakeCloudStorage::error(Fault fault) const
{
    return fault == Fault::Refused ? refusal : CloudError{CloudProblem::Unreachable, u"cut"_s};
}

CloudResult<CloudStorage::Content> FakeCloudStorage::content(
    const QString &name, qint64 limit) const
{
    const auto file = m_account.files.find(name);
    if (file == m_account.files.end()) {
        return CloudError{CloudProblem::NotThere, name};
    }
    if (file->bytes.size() > limit) {
        return CloudError{CloudProblem::TooLarge, name};
    }
    return Content{file->bytes, file->revision};
}

void FakeCloudStorage::list(Listed listed)
{
    ask({u"list"_s, [] {},
        [this, listed = std::move(listed)](Fault fault) {
            if (fault == Fault::None || fault == Fault::Twice) {
                m_lastListing = m_account.listing();
            } else if (fault != Fault::Stale) {
                listed(error(fault));
                return;
            }
            listed(m_lastListing);
        }});
}

void FakeCloudStorage::read(const QString &name, qint64 limit, Read read)
{
    ask({u"read "_s + name, [] {},
        [this, name, limit, read = std::move(read)](Fault fault) {
            if (fault == Fault::None || fault == Fault::Twice || fault == Fault::Stale) {
                read(content(name, limit));
            } else {
                read(error(fault));
            }
        }});
}

void FakeCloudStorage::readIfChanged(
    const QString &name, const QByteArray &revision, qint64 limit, ReadChanged read)
{
    ask({u"look "_s + name, [] {},
        [this, name, revision, limit, read = std::move(read)](Fault fault) {
            if (fault != Fault::None && fault != Fault::Twice && fault != Fault::Stale) {
                read(error(fault));
                return;
            }
            const CloudResult<Content> found = content(name, limit);
            const auto *there = std::get_if<Content>(&found);
            if (!there) {
                read(std::get<CloudError>(found));
            } else if (!revision.isEmpty() && there->revision == revision) {
                read(std::optional<Content>());
            } else {
                read(std::optional(*there));
            }
        }});
}

void FakeCloudStorage::write(const QString &what, const QString &name, const QByteArray &bytes,
    std::function<bool()> isAllowed, Written written)
{
    FakeCloudAccount &account = m_account;
    const auto carryOut = [&account, isAllowed, name](const QByteArray &content) {
        const bool allowed = !account.honorsPreconditions || isAllowed();
        if (allowed) {
            account.put(name, content);
        }
        return allowed;
    };
    const auto later = [carryOut, bytes] { carryOut(bytes); };
    const auto answer = [this, name, bytes, carryOut, later, written](Fault fault) {
        if (fault == Fault::AnswerLost) {
            carryOut(bytes);
        } else if (fault == Fault::Cut) {
            carryOut(bytes.first(bytes.size() / 2));
        } else if (fault != Fault::Lost && fault != Fault::Refused) {
            if (fault == Fault::Twice) {
                m_account.late.append(later);
            }
            if (carryOut(bytes)) {
                written(m_account.tellsRevisions ? m_account.files[name].revision : QByteArray());
            } else {
                written(CloudError{CloudProblem::Changed, name});
            }
            return;
        }
        written(error(fault));
    };
    ask({what + u' ' + name, later, answer});
}

void FakeCloudStorage::create(const QString &name, const QByteArray &bytes, Written written)
{
    FakeCloudAccount &account = m_account;
    write(
        u"create"_s, name, bytes, [&account, name] { return !account.files.contains(name); },
        std::move(written));
}

void FakeCloudStorage::replace(
    const QString &name, const QByteArray &bytes, const QByteArray &revision, Written written)
{
    FakeCloudAccount &account = m_account;
    write(
        u"replace"_s, name, bytes,
        [&account, name, revision] {
            return revision.isEmpty() || account.files.value(name).revision == revision;
        },
        std::move(written));
}

void FakeCloudStorage::remove(const QString &name, Removed removed)
{
    FakeCloudAccount &account = m_account;
    const auto carryOut = [&account, name] { account.files.remove(name); };
    ask({u"remove "_s + name, carryOut, [this, carryOut, removed](Fault fault) {
             if (fault != Fault::Lost && fault != Fault::Refused) {
                 carryOut();
             }
             const bool told =
                 fault == Fault::None || fault == Fault::Twice || fault == Fault::Stale;
             removed(told ? std::nullopt : std::optional(error(fault)));
         }});
}

QStringList FakeCloudStorage::waiting() const
{
    QStringList waiting;
    for (const Request &request : m_requests) {
        waiting.append(request.what);
    }
    return waiting;
}

void FakeCloudStorage::answer(qsizetype index, Fault fault)
{
    const Request request = m_requests.takeAt(index);
    request.answer(fault);
}

void FakeCloudStorage::answerAll()
{
    while (!m_requests.isEmpty()) {
        answer(0);
    }
}

void FakeCloudStorage::abandon(bool arrive)
{
    const QList<Request> requests = std::exchange(m_requests, {});
    for (const Request &request : requests) {
        if (arrive) {
            m_account.late.append(request.carryOut);
        }
    }
}

} // namespace quillon::test
