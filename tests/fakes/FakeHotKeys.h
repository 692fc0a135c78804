// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/desktop/HotKeys.h"

#include <QMap>
#include <QSet>

#include <utility>

namespace quillon::test {

/// A desktop with hot keys. It grants each combination once, and none that others have taken.
class FakeHotKeys : public HotKeys
{
public:
    explicit FakeHotKeys(Scheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    void bind(const HotKey &hotKey, Reply reply) override
    {
        release(hotKey.identifier);
        const int wish = m_wishes[hotKey.identifier] = ++m_lastWish;
        const HotKeyResult result = resultFor(hotKey.keys);
        if (result == HotKeyResult::Bound) {
            bound[hotKey.identifier] = hotKey;
        }
        m_scheduler.onMain([this, id = hotKey.identifier, wish, result, reply = std::move(reply)] {
            if (m_wishes.value(id) == wish) {
                reply(result);
            }
        });
    }

    void release(const QString &identifier) override
    {
        bound.remove(identifier);
        m_wishes.remove(identifier);
    }

    void findWay(std::function<void(HotKeyWay)> reply) override
    {
        m_scheduler.onMain(
            [this, reply = std::move(reply)] { reply(isOffered ? way : HotKeyWay::NotOffered); });
    }

    /// The user presses the keys.
    void press(const QString &combination)
    {
        const auto hotKeys = bound.values();
        for (const HotKey &hotKey : hotKeys) {
            if (hotKey.keys.toText() == combination) {
                hotKey.pressed();
            }
        }
    }

    bool isOffered = true;
    HotKeyWay way = HotKeyWay::Grabs; ///< of a desktop that offers them
    QSet<QString> takenByOthers;      ///< as texts
    QMap<QString, HotKey> bound;      ///< by identifier

private:
    HotKeyResult resultFor(const KeyCombination &keys) const
    {
        if (!isOffered) {
            return HotKeyResult::NotOffered;
        }
        for (const HotKey &hotKey : bound) {
            if (hotKey.keys == keys) {
                return HotKeyResult::Taken;
            }
        }
        return takenByOthers.contains(keys.toText()) ? HotKeyResult::Taken : HotKeyResult::Bound;
    }

    Scheduler &m_scheduler;
    QMap<QString, int> m_wishes;
    int m_lastWish = 0;
};

} // namespace quillon::test
