// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/GlobalHotKeys.h"

#include "base/Localized.h"
#include "base/Notifier.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "platform/SettingsStore.h"
#include "presence/Presence.h"

#include <QPointer>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

GlobalHotKeys::State stateAfter(HotKeyResult result)
{
    switch (result) {
    case HotKeyResult::Bound:
        return GlobalHotKeys::State::Bound;
    case HotKeyResult::Taken:
        return GlobalHotKeys::State::Taken;
    case HotKeyResult::Refused:
        return GlobalHotKeys::State::Refused;
    case HotKeyResult::NoSuchKey:
        return GlobalHotKeys::State::NoSuchKey;
    case HotKeyResult::NotOffered:
        break;
    }
    return GlobalHotKeys::State::NotOffered;
}

} // namespace

GlobalHotKeys::GlobalHotKeys(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_show{keys::showKeyEnabled, keys::showKeyCombo}
    , m_random{keys::randomKeyEnabled, keys::randomKeyCombo}
{
}

void GlobalHotKeys::updateShowKey()
{
    const auto freed = update(
        m_show, localized("Show window"), [&presence = m_deps.presence] { presence.openWindow(); });
    if (lacks(m_random, freed)) {
        updateRandomKey();
    }
}

void GlobalHotKeys::updateRandomKey()
{
    const auto freed = update(m_random, localized("Randomize address"),
        [&changer = m_deps.addressChanger] { changer.randomizeAddress(); });
    if (lacks(m_show, freed)) {
        updateShowKey();
    }
}

void GlobalHotKeys::pause()
{
    m_isPaused = true;
    pause(m_show);
    pause(m_random);
}

void GlobalHotKeys::pause(Key &key)
{
    // What is grabbed would not reach whoever records it. A desktop that decides would ask its user
    // anew: there the keys stay bound.
    const bool isHeld = key.state == State::Bound || key.state == State::Pending;
    if (m_way != HotKeyWay::DesktopDecides && isHeld && !key.isDue) {
        key.isDue = true;
        m_deps.hotKeys.release(key.combination);
    }
}

void GlobalHotKeys::resume()
{
    m_isPaused = false;
    if (std::exchange(m_show.isDue, false)) {
        updateShowKey();
    }
    if (std::exchange(m_random.isDue, false)) {
        updateRandomKey();
    }
}

void GlobalHotKeys::findWay()
{
    m_deps.hotKeys.findWay([self = QPointer(this)](HotKeyWay way) {
        if (self && std::exchange(self->m_way, way) != way) {
            Q_EMIT self->stateChanged();
        }
    });
}

void GlobalHotKeys::press(const std::function<void()> &pressed) const
{
    if (!m_isPaused) {
        pressed();
    }
}

/// Two keys that swap their combinations change one after the other.
bool GlobalHotKeys::lacks(const Key &key, const std::optional<KeyCombination> &combination)
{
    return combination && key.asked == combination && key.state != State::Bound;
}

std::optional<KeyCombination> GlobalHotKeys::update(
    Key &key, const QString &description, const std::function<void()> &pressed)
{
    if (m_isPaused) {
        key.isDue = true;
        return std::nullopt;
    }
    const QString text = m_deps.settings.getString(key.combination);
    const auto combination = KeyCombination::fromText(text);
    const bool isOn = m_deps.settings.getBool(key.enabled) && !text.isEmpty();
    const auto before = std::exchange(key.asked, isOn ? combination : std::nullopt);
    if (!isOn) {
        m_deps.hotKeys.release(key.combination);
        setState(key, State::Off);
    } else if (!combination) {
        m_deps.hotKeys.release(key.combination);
        setState(key, State::Unusable);
        tell(key, description, text);
    } else {
        setState(key, State::Pending);
        const auto unlessPaused = [self = QPointer(this), pressed] {
            if (self) {
                self->press(pressed);
            }
        };
        m_deps.hotKeys.bind({key.combination, description, *combination, unlessPaused},
            [self = QPointer(this), &key, description, text](HotKeyResult result) {
                if (self) {
                    self->setState(key, stateAfter(result));
                    self->tell(key, description, text);
                }
            });
    }
    return before == key.asked ? std::nullopt : before;
}

void GlobalHotKeys::setState(Key &key, State state)
{
    if (key.state != state) {
        key.state = state;
        Q_EMIT stateChanged();
    }
}

void GlobalHotKeys::tell(const Key &key, const QString &description, const QString &combination)
{
    const QString problem = problemOf(key.state);
    if (!problem.isEmpty()) {
        m_deps.notifier.sendNotificationWithBody(
            filled(localized("Shortcut for \u201C%@\u201D not set"), {description}),
            filled(u"%@: %@"_s, {combination, problem}));
    }
}

QString GlobalHotKeys::problemOf(State state)
{
    switch (state) {
    case State::Off:
    case State::Pending:
    case State::Bound:
        break;
    case State::Unusable:
        return localized("A shortcut needs Ctrl, Alt or Meta and one more key.");
    case State::Taken:
        return localized("Another program uses this shortcut.");
    case State::Refused:
        return localized("The desktop refused this shortcut.");
    case State::NoSuchKey:
        return localized("This keyboard has no such key.");
    case State::NotOffered:
        return localized("This desktop does not let programs set global shortcuts.");
    }
    return {};
}

} // namespace quillon
