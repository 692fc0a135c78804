// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/HotKeys.h"

#include <QObject>

#include <optional>

namespace quillon {

class AddressChanger;
class Notifier;
class Presence;
class SettingsStore;

/// The program's two hot keys: one opens the window, one gives the selected interface a random
/// address. They follow their settings. A combination that cannot be had is told to the user, each
/// time that it is asked for. Main thread.
class GlobalHotKeys : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Off,       ///< switched off, or no combination was recorded
        Pending,   ///< asked for
        Bound,     ///< works
        Unusable,  ///< what is stored is no combination, or would take a key from all that is typed
        Taken,     ///< another program has it
        Refused,   ///< the desktop or its user said no
        NoSuchKey, ///< the keyboard has no such key
        NotOffered, ///< this desktop does not let programs have hot keys
    };

    struct Collaborators
    {
        const SettingsStore &settings;
        HotKeys &hotKeys;
        Presence &presence;
        AddressChanger &addressChanger;
        Notifier &notifier;
    };

    explicit GlobalHotKeys(const Collaborators &collaborators);

    void updateShowKey();
    void updateRandomKey();
    /// While a person records a combination, keys that are pressed are theirs and do nothing.
    void pause();
    /// What changed meanwhile is asked for now.
    void resume();
    /// Finds out how this desktop lets programs have hot keys; stateChanged() tells.
    void findWay();
    HotKeyWay way() const { return m_way; }

    State showKeyState() const { return m_show.state; }
    State randomKeyState() const { return m_random.state; }
    /// Why a hot key does not work, in the user's language; "" for one that does, or is off.
    static QString problemOf(State state);

Q_SIGNALS:
    /// One of the states, or the way, is not what it was.
    void stateChanged();

private:
    struct Key
    {
        const QString &enabled; ///< settings keys
        const QString &combination;
        State state = State::Off;
        std::optional<KeyCombination> asked = {}; ///< for, last
        bool isDue = false;                       ///< to be asked for after the pause
    };

    /// Returns the combination that is free for others now, if any.
    std::optional<KeyCombination> update(
        Key &key, const QString &description, const std::function<void()> &pressed);
    static bool lacks(const Key &key, const std::optional<KeyCombination> &combination);
    void pause(Key &key);
    void press(const std::function<void()> &pressed) const;
    void setState(Key &key, State state);
    void tell(const Key &key, const QString &description, const QString &combination);

    Collaborators m_deps;
    Key m_show;
    Key m_random;
    HotKeyWay m_way = HotKeyWay::Unknown;
    bool m_isPaused = false;
};

} // namespace quillon
