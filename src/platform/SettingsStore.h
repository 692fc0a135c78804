// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/PropertyList.h"

#include <functional>

namespace quillon {

/// The user's settings: string keys to property-list values. Values are read and written whole; a
/// dictionary is changed by reading it, changing the copy and writing it back. Safe from every
/// thread.
///
/// Reads see the last write of this process at once. What another program writes to the same store
/// arrives while the program runs and reaches the observers too.
class SettingsStore
{
public:
    struct Change
    {
        QString key;
        QVariant
            oldValue; ///< invalid when the key was absent (registered defaults count as present)
        QVariant newValue; ///< invalid when the key is absent now
    };
    using Observer = std::function<void(const Change &)>;
    using Token = quint64;

    virtual ~SettingsStore() = default;

    /// The stored value, else the registered default, else an invalid QVariant.
    virtual QVariant get(const QString &key) const = 0;
    /// Replaces the value whole. An invalid QVariant removes it, so that reads see the default
    /// again. A value that is not property-list data is refused with a log line.
    virtual void set(const QString &key, const QVariant &value) = 0;

    /// Values that reads fall back to; never written to the store. A second call replaces the
    /// first.
    virtual void registerDefaults(const QVariantMap &defaults) = 0;
    /// Has all writes so far made durable soon, in the background: the caller never waits for the
    /// disk. At most one write is under way and one waits, however often this is called; what could
    /// not be written is kept and tried again with the next call.
    virtual void synchronize() = 0;
    /// Before the process ends: on return with true all writes so far are durable. Waits for the
    /// disk. False when they could not be written.
    virtual bool flush() = 0;

    /// `observer` is called on the main thread for every change of `key`'s visible value, whoever
    /// made it: before set() returns when the main thread made it, else in a later turn of the main
    /// loop.
    virtual Token addObserver(const QString &key, Observer observer) = 0;
    virtual void removeObserver(Token token) = 0;

    /// Absent or of another type: false, 0, empty.
    bool getBool(const QString &key) const;
    qlonglong getInteger(const QString &key) const;
    QString getString(const QString &key) const;
    QVariantMap getDictionary(const QString &key) const;
    void setBool(const QString &key, bool value) { set(key, value); }
};

} // namespace quillon
