// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/CloudKeyValueStore.h"

#include <functional>
#include <utility>

namespace quillon::test {

/// The account's settings, which another computer writes when the test says so.
class FakeCloudKeyValueStore : public CloudKeyValueStore
{
public:
    void set(const QString &key, const QVariant &value) override
    {
        journal << (value.isValid() ? QStringLiteral("set ") : QStringLiteral("remove ")) + key;
        put(key, value);
    }
    QVariantMap dictionaryRepresentation() const override
    {
        if (whileRead) {
            whileRead();
        }
        return values;
    }
    void synchronize() override { journal << QStringLiteral("synchronize"); }
    void observe(ChangedExternally changed) override { m_changed = std::move(changed); }

    void changeElsewhere(const QVariantMap &changes)
    {
        for (auto it = changes.begin(); it != changes.end(); ++it) {
            put(it.key(), *it);
        }
        if (m_changed) {
            m_changed(changes.keys());
        }
    }
    bool isObserved() const { return m_changed != nullptr; }

    QVariantMap values;
    QStringList journal; ///< "set <key>", "remove <key>", "synchronize"
    std::function<void()> whileRead;

private:
    void put(const QString &key, const QVariant &value)
    {
        if (value.isValid()) {
            values.insert(key, value);
        } else {
            values.remove(key);
        }
    }

    ChangedExternally m_changed;
};

} // namespace quillon::test
