// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace quillon {

/// The settings that the account holds, as this computer knows them. Safe from every thread but
/// where it says otherwise.
class CloudKeyValueStore
{
public:
    using ChangedExternally = std::function<void(const QStringList &keys)>;

    virtual ~CloudKeyValueStore() = default;

    /// Property-list data; an invalid value removes the key. What is there already is no change.
    virtual void set(const QString &key, const QVariant &value) = 0;
    virtual QVariantMap dictionaryRepresentation() const = 0;
    /// Has what was set so far kept; when it is sent is the account's affair.
    virtual void synchronize() = 0;
    /// `changed` hears, on the main thread, of keys that other computers wrote; none, of nothing.
    /// Main thread.
    virtual void observe(ChangedExternally changed) = 0;
};

} // namespace quillon
