// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SettingsObservers.h"

#include <QHash>
#include <QVariantMap>

#include <mutex>
#include <optional>

namespace quillon {

/// The settings in memory: stored values over registered defaults, which of them the file does not
/// have yet, and how the file's content merges in. Every change of a visible value is reported to
/// the observers; whoever calls a function that may change some calls their deliver() afterwards.
/// Safe from every thread.
class SettingsValues
{
public:
    /// What to write, and up to which change.
    struct Snapshot
    {
        QVariantMap values;
        quint64 lastChange = 0;
    };

    explicit SettingsValues(SettingsObservers &observers);

    QVariant get(const QString &key) const;
    /// `value` is normalized property-list data, or invalid to remove. False: nothing is new.
    bool set(const QString &key, const QVariant &value);
    void registerDefaults(const QVariantMap &defaults);

    /// Takes over the content of the file. What was set here and is not saved stands.
    void adopt(const QVariantMap &content);
    /// The file lost its content: from now on every stored value counts as not saved.
    void markAllUnsaved();

    /// All values when there are unsaved ones among them.
    std::optional<Snapshot> unsaved() const;
    void markSaved(const Snapshot &snapshot);

private:
    QVariant visible(const QString &key) const;
    void replace(const QString &key, const QVariant &value);

    SettingsObservers &m_observers;
    mutable std::mutex m_mutex;
    QVariantMap m_stored;
    QVariantMap m_defaults;
    QHash<QString, quint64> m_unsaved; ///< key to the number of its last change
    quint64 m_lastChange = 0;
};

} // namespace quillon
