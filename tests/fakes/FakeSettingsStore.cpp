// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeSettingsStore.h"

#include "base/Log.h"

#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;

FakeSettingsStore::FakeSettingsStore(Scheduler &scheduler)
    : m_scheduler(scheduler)
    , m_observers(scheduler)
{
}

QVariant FakeSettingsStore::get(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    return visible(key);
}

QVariant FakeSettingsStore::visible(const QString &key) const
{
    const auto found = m_stored.constFind(key);
    return found != m_stored.constEnd() ? *found : m_defaults.value(key);
}

void FakeSettingsStore::set(const QString &key, const QVariant &value)
{
    if (value.isValid() && !isPropertyList(value)) {
        qCWarning(logSettings) << "Refused a value that is not property-list data for" << key;
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_journal << (value.isValid() ? u"set "_s : u"remove "_s) + key;
        replace(key, normalizedPropertyList(value));
    }
    m_observers.deliver();
}

void FakeSettingsStore::replace(const QString &key, const QVariant &value)
{
    const QVariant before = visible(key);
    if (value.isValid()) {
        m_stored.insert(key, value);
    } else {
        m_stored.remove(key);
    }
    const QVariant after = visible(key);
    if (!isSamePropertyList(before, after)) {
        m_observers.report({key, before, after});
    }
}

void FakeSettingsStore::changeFromOutside(const QString &key, const QVariant &value)
{
    m_scheduler.onMain([this, key, value] {
        {
            const std::lock_guard lock(m_mutex);
            replace(key, normalizedPropertyList(value));
        }
        m_observers.deliver();
    });
}

void FakeSettingsStore::registerDefaults(const QVariantMap &defaults)
{
    {
        const std::lock_guard lock(m_mutex);
        const QVariantMap previous =
            std::exchange(m_defaults, normalizedPropertyList(defaults).toMap());
        QVariantMap concerned = previous;
        concerned.insert(m_defaults);
        for (const QString &key : concerned.keys()) {
            const QVariant before = m_stored.value(key, previous.value(key));
            const QVariant after = visible(key);
            if (!isSamePropertyList(before, after)) {
                m_observers.report({key, before, after});
            }
        }
    }
    m_observers.deliver();
}

void FakeSettingsStore::synchronize()
{
    const std::lock_guard lock(m_mutex);
    m_journal << u"synchronize"_s;
}

bool FakeSettingsStore::flush()
{
    const std::lock_guard lock(m_mutex);
    m_journal << u"flush"_s;
    return true;
}

SettingsStore::Token FakeSettingsStore::addObserver(const QString &key, Observer observer)
{
    ++m_observerCount;
    return m_observers.add(key, std::move(observer));
}

void FakeSettingsStore::removeObserver(Token token)
{
    --m_observerCount;
    m_observers.remove(token);
}

int FakeSettingsStore::writeCount(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_journal.count(u"set "_s + key) + m_journal.count(u"remove "_s + key));
}

int FakeSettingsStore::synchronizeCount() const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_journal.count(u"synchronize"_s));
}

QStringList FakeSettingsStore::journal() const
{
    const std::lock_guard lock(m_mutex);
    return m_journal;
}

void FakeSettingsStore::clearJournal()
{
    const std::lock_guard lock(m_mutex);
    m_journal.clear();
}

QVariantMap FakeSettingsStore::stored() const
{
    const std::lock_guard lock(m_mutex);
    return m_stored;
}

} // namespace quillon::test
