// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quillon::test {

/// In which order states come true. It looks at every change that a test tells it to follow, and
/// notes each state once, when it is first found true. What comes true between two looks is noted
/// in reverse, so that an order that nobody could see is never taken for the expected one.
class StateOrder
{
public:
    StateOrder() = default;
    ~StateOrder()
    {
        for (const auto &stop : m_stops) {
            stop();
        }
    }
    StateOrder(const StateOrder &) = delete;
    StateOrder &operator=(const StateOrder &) = delete;

    /// In the order in which they are expected.
    void expect(const QString &name, std::function<bool()> isTrue)
    {
        m_states.push_back({name, std::move(isTrue)});
    }
    /// A signal that is emitted.
    template <typename Sender, typename Signal>
    void expectSignal(const QString &name, Sender &sender, Signal signal)
    {
        const auto emitted = std::make_shared<bool>(false);
        expect(name, [emitted] { return *emitted; });
        QObject::connect(&sender, signal, &m_context, [this, emitted] {
            look();
            *emitted = true;
            look();
        });
    }
    /// A broadcast that is posted.
    void expectBroadcast(const QString &name, NotificationCenter &center, const QString &broadcast)
    {
        const auto posted = std::make_shared<bool>(false);
        expect(name, [posted] { return *posted; });
        const auto token = center.addObserver(broadcast, [this, posted](const auto &) {
            look();
            *posted = true;
            look();
        });
        m_stops.push_back([&center, token] { center.removeObserver(token); });
    }

    template <typename Sender, typename Signal>
    void follow(Sender &sender, Signal signal)
    {
        QObject::connect(&sender, signal, &m_context, [this] { look(); });
    }
    void followSetting(SettingsStore &settings, const QString &key)
    {
        const auto token = settings.addObserver(key, [this](const auto &) { look(); });
        m_stops.push_back([&settings, token] { settings.removeObserver(token); });
    }
    void look()
    {
        for (auto state = m_states.rbegin(); state != m_states.rend(); ++state) {
            if (!m_seen.contains(state->first) && state->second()) {
                m_seen << state->first;
            }
        }
    }

    const QStringList &seen() const { return m_seen; }
    QStringList expected() const
    {
        QStringList names;
        for (const auto &state : m_states) {
            names << state.first;
        }
        return names;
    }

private:
    std::vector<std::pair<QString, std::function<bool()>>> m_states;
    QStringList m_seen;
    std::vector<std::function<void()>> m_stops;
    QObject m_context;
};

} // namespace quillon::test
