// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "hotkeys/GlobalHotKeys.h"
#include "platform/SettingsStore.h"
#include "presentation/preferences/PreferencesLine.h"

#include <QObject>

namespace quillon {

/// Records the combination of one hot key and stores it under its setting: what is taken, what is
/// refused, and what has become of it. Main thread.
class ShortcutRecorder : public QObject
{
    Q_OBJECT

public:
    enum class For
    {
        ShowWindow,
        RandomAddress,
    };
    struct State
    {
        QString text; ///< what stands in the field
        bool isRecording = false;
        bool isEmpty = true;  ///< nothing was recorded
        bool isUsable = true; ///< this desktop lets programs have hot keys, as far as is known
        PreferencesLine line;

        bool operator==(const State &) const = default;
    };

    ShortcutRecorder(For use, SettingsStore &settings, GlobalHotKeys &hotKeys);
    ~ShortcutRecorder() override;

    const State &state() const { return m_state.get(); }
    /// What the hot key does, in the user's language.
    QString title() const;

    /// From now on keys are recorded, and no hot key of ours acts.
    void begin();
    /// What was recorded before stays.
    void cancel();
    /// Keys were pressed while it records; without a key only modifiers are held so far.
    void press(const KeyCombination &pressed);
    /// Nothing is recorded any more.
    void clear();
    /// Reads setting and hot key again.
    void refresh();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    struct Setting
    {
        const QString &combination; ///< keys of the settings
        const QString &enabled;
    };

    static Setting settingOf(For use);
    static For otherThan(For use);
    static QString titleOf(For use);
    GlobalHotKeys::State hotKeyState() const;
    PreferencesLine line() const;
    void refuse(const QString &why);
    void record(const KeyCombination &combination);
    void store(const QString &combination);
    void end();

    const For m_use;
    SettingsStore &m_settings;
    GlobalHotKeys &m_hotKeys;
    SettingsStore::Token m_observed;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
