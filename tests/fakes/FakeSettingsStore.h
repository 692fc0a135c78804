// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SettingsObservers.h"
#include "platform/SettingsStore.h"

#include <QStringList>

#include <mutex>

namespace quillon::test {

/// A settings store in memory that keeps a journal. Observers are called as the real one calls
/// them: at once for changes of the main thread, else through the scheduler.
class FakeSettingsStore : public SettingsStore
{
public:
    explicit FakeSettingsStore(Scheduler &scheduler);

    QVariant get(const QString &key) const override;
    void set(const QString &key, const QVariant &value) override;
    void registerDefaults(const QVariantMap &defaults) override;
    void synchronize() override;
    bool flush() override;
    Token addObserver(const QString &key, Observer observer) override;
    void removeObserver(Token token) override;

    /// The accepted set() calls for `key`, also those that changed nothing.
    int writeCount(const QString &key) const;
    int synchronizeCount() const;
    /// What was done, in order: "set <key>", "remove <key>", "synchronize", "flush".
    QStringList journal() const;
    /// Forgets the journal, and with it the counts.
    void clearJournal();
    /// The stored values without the defaults.
    QVariantMap stored() const;

    /// Another program changes a value: it is not in the journal, and observers hear of it in a
    /// later turn of the main loop.
    void changeFromOutside(const QString &key, const QVariant &value);
    bool hasObservers() const { return m_observerCount > 0; }

private:
    QVariant visible(const QString &key) const;
    void replace(const QString &key, const QVariant &value);

    Scheduler &m_scheduler;
    mutable std::mutex m_mutex;
    QVariantMap m_stored;
    QVariantMap m_defaults;
    QStringList m_journal;
    int m_observerCount = 0;
    SettingsObservers m_observers;
};

} // namespace quillon::test
