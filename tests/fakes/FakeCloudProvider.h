// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeCloudStorage.h"
#include "platform/CloudProvider.h"
#include "platform/Scheduler.h"

#include <QPointer>
#include <QStringList>

#include <utility>

namespace quillon::test {

/// One account, to be reached in every way. Its storages answer by themselves, in a later turn,
/// each request with `problem` when there is one.
class FakeCloudProvider : public CloudProvider
{
    FakeCloudAccount m_own;

public:
    /// `shared` is an account that other computers reach, too, and outlives it.
    explicit FakeCloudProvider(Scheduler &scheduler, FakeCloudAccount *shared = nullptr)
        : account(shared != nullptr ? *shared : m_own)
        , m_scheduler(scheduler)
    {
    }

    using Fault = FakeCloudStorage::Fault;

    class Storage : public QObject, public CloudStorage
    {
    public:
        explicit Storage(FakeCloudProvider &provider)
            : m_provider(provider)
        {
            ++provider.storages;
        }
        ~Storage() override { --m_provider.storages; }

        void list(Listed listed) override
        {
            m_way.list(std::move(listed));
            answerLater(QStringLiteral("list"));
        }
        void read(const QString &name, qint64 limit, Read read) override
        {
            m_way.read(name, limit, std::move(read));
            answerLater(QStringLiteral("read ") + name);
        }
        void readIfChanged(const QString &name, const QByteArray &revision, qint64 limit,
            ReadChanged read) override
        {
            m_way.readIfChanged(name, revision, limit, std::move(read));
            answerLater(QStringLiteral("look ") + name);
        }
        void create(const QString &name, const QByteArray &bytes, Written written) override
        {
            m_way.create(name, bytes, std::move(written));
            answerLater(QStringLiteral("create ") + name);
        }
        void replace(const QString &name, const QByteArray &bytes, const QByteArray &revision,
            Written written) override
        {
            m_way.replace(name, bytes, revision, std::move(written));
            answerLater(QStringLiteral("replace ") + name);
        }
        void remove(const QString &name, Removed removed) override
        {
            m_way.remove(name, std::move(removed));
            answerLater(QStringLiteral("remove ") + name);
        }
        void watch(std::function<void()> changed) override
        {
            m_provider.changed = std::move(changed);
        }

    private:
        void answerLater(const QString &what)
        {
            m_provider.asked << what;
            m_provider.m_scheduler.onMain(this, [this, what] {
                if (m_provider.beforeAnswer) {
                    m_provider.beforeAnswer(what);
                }
                const auto problem = m_provider.problem;
                if (problem) {
                    m_way.refusal = {*problem, QStringLiteral("fake"), m_provider.fingerprint};
                }
                const auto fault = m_provider.fault ? m_provider.fault(what) : Fault::None;
                m_way.answer(0, problem ? Fault::Refused : fault);
            });
        }

        FakeCloudProvider &m_provider;
        FakeCloudStorage m_way{m_provider.account};
    };

    std::unique_ptr<CloudStorage> storage(
        const CloudAccount &where, const QString &password) override
    {
        lastAccount = where;
        lastPassword = password;
        return std::make_unique<Storage>(*this);
    }
    std::unique_ptr<Request> findWebDavAddress(const WebDavSignIn &signIn, Found found) override
    {
        struct Search : Request
        {
            QObject context;
        };
        asked << QStringLiteral("find ") + signIn.address;
        lastSignIn = signIn;
        auto search = std::make_unique<Search>();
        m_scheduler.onMain(&search->context, [this, found = std::move(found)] {
            if (problem) {
                found(CloudError{*problem, QStringLiteral("fake"), fingerprint});
            } else {
                found(address);
            }
        });
        return search;
    }

    FakeCloudAccount &account;
    QUrl address{QStringLiteral("https://cloud.example/dav/files/ada")};
    std::optional<CloudProblem> problem;
    QByteArray fingerprint; ///< of `problem`
    std::function<void(const QString &what)> beforeAnswer;
    std::function<Fault(const QString &what)> fault; ///< of an answer without `problem`

    QStringList asked;
    int storages = 0;              ///< that are open
    std::function<void()> changed; ///< what watches the account
    CloudAccount lastAccount;
    QString lastPassword;
    WebDavSignIn lastSignIn;

private:
    Scheduler &m_scheduler;
};

} // namespace quillon::test
