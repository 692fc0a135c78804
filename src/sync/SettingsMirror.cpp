// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SettingsMirror.h"

#include "base/Log.h"
#include "base/PropertyList.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "sync/RecordMirror.h"

#include <utility>

namespace quillon {

namespace {

/// By the entry's name; the value as a whole has none.
using Parts = QMap<QString, SyncValue>;

bool isSplit(const QString &key)
{
    return key == keys::savedNetworks || key == keys::savedAddresses;
}

/// An entry without a name is not the value as a whole. No setting holds this character.
QString entryOf(const QString &name)
{
    return name.isEmpty() ? QString(QChar(1)) : name;
}

QString nameOf(const QString &entry)
{
    return entry == QString(QChar(1)) ? QString() : entry;
}

/// What is too long or too deep to be sent is left out.
void insert(Parts &parts, const QString &entry, const QVariant &value)
{
    if (const auto made = syncValue(value)) {
        parts.insert(entry, *made);
    } else {
        qCWarning(logSettings, "A setting is too large to be sent");
    }
}

Parts split(const QString &key, const QVariant &value)
{
    Parts parts;
    if (!isSplit(key) || propertyListType(value) != PropertyListType::Dictionary) {
        insert(parts, {}, value);
        return parts;
    }
    insert(parts, {}, QVariantMap());
    const QVariantMap entries = value.toMap();
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        insert(parts, entryOf(it.key()), *it);
    }
    return parts;
}

QVariant joined(const Parts &parts)
{
    const auto plain = [](const SyncValue &value) {
        return fromSyncValue(value).value_or(QVariant());
    };
    const QVariant whole = plain(parts.value({}));
    if (whole.isValid() && propertyListType(whole) != PropertyListType::Dictionary) {
        return whole;
    }
    QVariantMap entries = whole.toMap();
    for (auto it = parts.begin(); it != parts.end(); ++it) {
        const QVariant value = plain(*it);
        if (!it.key().isEmpty() && value.isValid()) {
            entries.insert(nameOf(it.key()), value);
        }
    }
    return whole.isValid() || !entries.isEmpty() ? QVariant(entries) : QVariant();
}

} // namespace

SettingsMirror::SettingsMirror(RecordMirror &mirror, Scheduler &scheduler)
    : m_mirror(mirror)
    , m_scheduler(scheduler)
{
    connect(&mirror, &RecordMirror::started, this, &SettingsMirror::load);
    connect(&mirror, &RecordMirror::ready, this, &SettingsMirror::write);
    connect(&mirror, &RecordMirror::settingsMerged, this, &SettingsMirror::take);
}

void SettingsMirror::set(const QString &key, const QVariant &value)
{
    {
        const std::lock_guard lock(m_mutex);
        const QVariant normalized = normalizedPropertyList(value);
        if (isSamePropertyList(m_values.value(key), normalized) ||
            (value.isValid() && !isPropertyList(value))) {
            return;
        }
        if (normalized.isValid()) {
            m_values.insert(key, normalized);
        } else {
            m_values.remove(key);
        }
        m_unwritten.insert(key);
    }
    writeSoon();
}

QVariantMap SettingsMirror::dictionaryRepresentation() const
{
    const std::lock_guard lock(m_mutex);
    return m_values;
}

void SettingsMirror::synchronize()
{
    writeSoon();
}

void SettingsMirror::observe(ChangedExternally changed)
{
    m_changed = std::move(changed);
}

void SettingsMirror::writeSoon()
{
    if (m_scheduler.isMainThread()) {
        write();
    } else {
        m_scheduler.onMain(this, [this] { write(); });
    }
}

QMap<QString, Parts> SettingsMirror::known(const QSet<QString> &keys) const
{
    QMap<QString, Parts> known;
    const RecordMirrorStorage &storage = m_mirror.storage();
    const QList<SettingId> ids = storage.settings();
    for (const SettingId &id : ids) {
        if (keys.isEmpty() || keys.contains(id.key)) {
            known[id.key].insert(id.entry, storage.setting(id).value);
        }
    }
    return known;
}

void SettingsMirror::write()
{
    QSet<QString> unwritten;
    QVariantMap values;
    {
        const std::lock_guard lock(m_mutex);
        unwritten = m_unwritten;
        values = m_values;
    }
    if (unwritten.isEmpty() || !m_mirror.isStarted()) {
        return;
    }
    QMap<QString, Parts> before = known(unwritten);
    QList<LocalEdit> edits;
    for (const QString &key : std::as_const(unwritten)) {
        const Parts now = split(key, values.value(key));
        Parts &was = before[key];
        for (auto it = now.begin(); it != now.end(); ++it) {
            if (was.value(it.key()) != *it) {
                edits.append({LocalEdit::Kind::Set, {}, {}, {key, it.key()}, *it});
            }
        }
        for (auto it = was.begin(); it != was.end(); ++it) {
            if (!now.contains(it.key()) && *it != SyncValue()) {
                edits.append({LocalEdit::Kind::Set, {}, {}, {key, it.key()}, SyncValue()});
            }
        }
    }
    if (edits.isEmpty() || m_mirror.edit(edits)) {
        const std::lock_guard lock(m_mutex);
        for (const QString &key : std::as_const(unwritten)) {
            // Another thread may have set it anew meanwhile.
            if (isSamePropertyList(m_values.value(key), values.value(key))) {
                m_unwritten.remove(key);
            }
        }
    }
}

void SettingsMirror::load()
{
    {
        // What was set and not written stays; everything else is as the replica has it.
        const std::lock_guard lock(m_mutex);
        for (const QString &key : m_values.keys()) {
            if (!m_unwritten.contains(key)) {
                m_values.remove(key);
            }
        }
    }
    write();
    const QStringList keys = known({}).keys();
    take({keys.begin(), keys.end()});
}

void SettingsMirror::take(const QSet<QString> &keys)
{
    if (keys.isEmpty()) {
        return;
    }
    QStringList changed;
    const QMap<QString, Parts> known = this->known(keys);
    {
        const std::lock_guard lock(m_mutex);
        for (auto it = known.begin(); it != known.end(); ++it) {
            const QVariant value = normalizedPropertyList(joined(*it));
            if (m_unwritten.contains(it.key())) {
                continue;
            }
            if (value.isValid()) {
                m_values.insert(it.key(), value);
            } else {
                m_values.remove(it.key());
            }
            changed << it.key();
        }
    }
    if (m_changed && !changed.isEmpty()) {
        m_changed(changed);
    }
}

} // namespace quillon
