// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"

#include <QMap>
#include <QStringList>

namespace quillon::test {

/// The files of an account, as a server has them.
struct FakeCloudAccount
{
    struct File
    {
        QByteArray bytes;
        QByteArray revision;

        bool operator==(const File &) const = default;
    };

    void put(const QString &name, const QByteArray &bytes);
    QList<CloudFile> listing() const;

    QMap<QString, File> files;
    bool honorsPreconditions = true;
    bool tellsRevisions = true; ///< of what was just written
    /// Of requests whose sender waits no more: what they will do when they arrive.
    QList<std::function<void()>> late;
    int revisions = 0;
};

/// One computer's way to the account. Nothing happens until a test answers a request, in any order
/// and with any fault.
class FakeCloudStorage : public CloudStorage
{
public:
    enum class Fault
    {
        None,
        Lost,       ///< not carried out: Unreachable
        AnswerLost, ///< carried out: Unreachable
        Cut,        ///< half the bytes were written: Unreachable
        Twice,      ///< carried out once more, some time later
        Stale,      ///< a listing as it was last given to this computer
        Refused,    ///< not carried out: the problem of `refusal`
    };

    explicit FakeCloudStorage(FakeCloudAccount &account)
        : m_account(account)
    {
    }

    void list(Listed listed) override;
    void read(const QString &name, qint64 limit, Read read) override;
    void readIfChanged(
        const QString &name, const QByteArray &revision, qint64 limit, ReadChanged read) override;
    void create(const QString &name, const QByteArray &bytes, Written written) override;
    void replace(const QString &name, const QByteArray &bytes, const QByteArray &revision,
        Written written) override;
    void remove(const QString &name, Removed removed) override;

    /// What waits for an answer: "list", "read NAME", "look NAME" and so on.
    QStringList waiting() const;
    void answer(qsizetype index, Fault fault = Fault::None);
    /// Answers everything, and what is asked for in return.
    void answerAll();
    /// The computer has gone: its requests, all or none, arrive late.
    void abandon(bool arrive);
    /// All that were ever given.
    const QStringList &given() const { return m_given; }
    void forgetGiven() { m_given.clear(); }
    int mostWaiting() const { return m_mostWaiting; }

    CloudError refusal{CloudProblem::Failed, QStringLiteral("refused")};

private:
    struct Request
    {
        QString what;
        std::function<void()> carryOut; ///< without an answer
        std::function<void(Fault)> answer;
    };

    void ask(Request request);
    CloudError error(Fault fault) const;
    CloudResult<Content> content(const QString &name, qint64 limit) const;
    void write(const QString &what, const QString &name, const QByteArray &bytes,
        std::function<bool()> isAllowed, Written written);

    FakeCloudAccount &m_account;
    QList<Request> m_requests;
    QStringList m_given;
    QList<CloudFile> m_lastListing;
    int m_mostWaiting = 0;
};

} // namespace quillon::test
