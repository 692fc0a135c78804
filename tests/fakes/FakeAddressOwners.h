// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeScheduler.h"
#include "platform/AddressOwner.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <utility>

namespace quillon::test {

/// A network manager that owns the interfaces that it was given; the others are nobody's.
class FakeAddressOwners : public AddressOwners
{
public:
    explicit FakeAddressOwners(FakeScheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    void own(const QString &device) { m_owned.append(device); }
    void keepHold() { m_letsGo = false; }
    /// It never says whose an interface is.
    void hang() { m_isSilent = true; }
    /// It does not answer before answer() is called.
    void think() { m_isThinking = true; }
    void answer()
    {
        m_isThinking = false;
        const auto waiting = std::exchange(m_waiting, {});
        for (const auto &[owner, answer] : waiting) {
            if (owner) {
                m_scheduler.onMain(owner, answer);
            }
        }
    }
    void settleAs(AddressOwner::Outcomes outcomes) { m_outcomes = outcomes; }
    void setName(const QString &name) { m_name = name; }
    /// Called when it takes the interface back.
    void whenSettling(std::function<void()> act) { m_whenSettling = std::move(act); }
    /// "prepare en1", "settle en1 changed", "settle en1 unchanged", "gone en1", in order.
    const QStringList &journal() const { return m_journal; }
    int interruptionsFinished() const { return m_interruptionsFinished; }

    void find(const QString &device, Found found) override
    {
        if (m_isSilent) {
            return;
        }
        found(m_owned.contains(device) ? std::make_unique<Owner>(*this, device) : nullptr);
    }
    void finishInterrupted() override { ++m_interruptionsFinished; }

private:
    class Owner : public QObject, public AddressOwner
    {
    public:
        Owner(FakeAddressOwners &owners, QString device)
            : m_owners(owners)
            , m_device(std::move(device))
        {
        }
        ~Owner() override
        {
            if (m_isReleased) {
                m_owners.note(QStringLiteral("gone ") + m_device);
            }
        }
        QString name() const override { return m_owners.m_name; }
        void prepare(Prepared prepared) override
        {
            m_owners.note(QStringLiteral("prepare ") + m_device);
            m_isReleased = m_owners.m_letsGo;
            m_owners.later(this, [prepared, ready = m_isReleased] { prepared(ready); });
        }
        void settle(bool isChanged, Settled settled) override
        {
            m_isReleased = false;
            m_owners.note(QStringLiteral("settle %1 %2")
                    .arg(m_device,
                        isChanged ? QStringLiteral("changed") : QStringLiteral("unchanged")));
            if (m_owners.m_whenSettling) {
                m_owners.m_whenSettling();
            }
            m_owners.later(this, [settled, outcomes = m_owners.m_outcomes] { settled(outcomes); });
        }

    private:
        FakeAddressOwners &m_owners;
        const QString m_device;
        bool m_isReleased = false;
    };

    void note(const QString &what) { m_journal.append(what); }
    void later(const QObject *owner, const std::function<void()> &answer)
    {
        if (m_isThinking) {
            m_waiting.append({owner, answer});
        } else {
            m_scheduler.onMain(owner, answer);
        }
    }

    FakeScheduler &m_scheduler;
    QStringList m_owned;
    QStringList m_journal;
    bool m_letsGo = true;
    bool m_isSilent = false;
    bool m_isThinking = false;
    QList<std::pair<QPointer<const QObject>, std::function<void()>>> m_waiting;
    AddressOwner::Outcomes m_outcomes = AddressOwner::Outcome::Settled;
    QString m_name = QStringLiteral("NetworkManager");
    std::function<void()> m_whenSettling;
    int m_interruptionsFinished = 0;
};

} // namespace quillon::test
