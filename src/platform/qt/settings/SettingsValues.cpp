// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/SettingsValues.h"

#include "base/PropertyList.h"

namespace quillon {

SettingsValues::SettingsValues(SettingsObservers &observers)
    : m_observers(observers)
{
}

QVariant SettingsValues::get(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    return visible(key);
}

QVariant SettingsValues::visible(const QString &key) const
{
    const auto found = m_stored.constFind(key);
    return found != m_stored.constEnd() ? *found : m_defaults.value(key);
}

bool SettingsValues::set(const QString &key, const QVariant &value)
{
    const std::lock_guard lock(m_mutex);
    // Compared with the stored value, not the visible one: a value equal to its default is a
    // choice, and stands when a later version has another default.
    if (isSamePropertyList(m_stored.value(key), value)) {
        return false;
    }
    replace(key, value);
    m_unsaved.insert(key, ++m_lastChange);
    return true;
}

void SettingsValues::replace(const QString &key, const QVariant &value)
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

void SettingsValues::registerDefaults(const QVariantMap &defaults)
{
    const std::lock_guard lock(m_mutex);
    const QVariantMap previous = m_defaults;
    m_defaults = normalizedPropertyList(defaults).toMap();
    QVariantMap concerned = previous;
    concerned.insert(m_defaults);
    for (const QString &key : concerned.keys()) {
        const QVariant before = previous.value(key);
        const QVariant after = m_defaults.value(key);
        if (!m_stored.contains(key) && !isSamePropertyList(before, after)) {
            m_observers.report({key, before, after});
        }
    }
}

void SettingsValues::adopt(const QVariantMap &content)
{
    const std::lock_guard lock(m_mutex);
    QVariantMap concerned = m_stored;
    concerned.insert(content);
    for (const QString &key : concerned.keys()) {
        if (!m_unsaved.contains(key)) {
            replace(key, content.value(key));
        }
    }
}

void SettingsValues::markAllUnsaved()
{
    const std::lock_guard lock(m_mutex);
    ++m_lastChange;
    for (auto entry = m_stored.constBegin(); entry != m_stored.constEnd(); ++entry) {
        m_unsaved.insert(entry.key(), m_lastChange);
    }
}

std::optional<SettingsValues::Snapshot> SettingsValues::unsaved() const
{
    const std::lock_guard lock(m_mutex);
    if (m_unsaved.isEmpty()) {
        return std::nullopt;
    }
    return Snapshot{m_stored, m_lastChange};
}

void SettingsValues::markSaved(const Snapshot &snapshot)
{
    const std::lock_guard lock(m_mutex);
    m_unsaved.removeIf([&snapshot](QHash<QString, quint64>::iterator entry) {
        return entry.value() <= snapshot.lastChange;
    });
}

} // namespace quillon
