// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/ShortcutRecorder.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool hasModifier(const KeyCombination &keys)
{
    return keys.control || keys.alt || keys.shift || keys.meta;
}

} // namespace

ShortcutRecorder::ShortcutRecorder(For use, SettingsStore &settings, GlobalHotKeys &hotKeys)
    : m_use(use)
    , m_settings(settings)
    , m_hotKeys(hotKeys)
    , m_observed(
          settings.addObserver(settingOf(use).combination, [this](const auto &) { refresh(); }))
{
    connect(&hotKeys, &GlobalHotKeys::stateChanged, this, &ShortcutRecorder::refresh);
    refresh();
}

ShortcutRecorder::~ShortcutRecorder()
{
    m_settings.removeObserver(m_observed);
}

QString ShortcutRecorder::title() const
{
    return titleOf(m_use);
}

void ShortcutRecorder::begin()
{
    if (m_state->isRecording || !m_state->isUsable) {
        return;
    }
    m_hotKeys.pause();
    m_state.update([](State &state) {
        state.isRecording = true;
        state.text = localized("Type a shortcut");
        state.line = {PreferencesLine::Kind::Hint,
            localized("Escape keeps the shortcut of before, Backspace clears it.")};
    });
}

void ShortcutRecorder::cancel()
{
    if (m_state->isRecording) {
        end();
    }
}

void ShortcutRecorder::press(const KeyCombination &pressed)
{
    if (!m_state->isRecording) {
        return;
    }
    const auto combination = KeyCombination::fromText(pressed.toText());
    if (pressed.key.isEmpty()) {
        const QString held =
            hasModifier(pressed) ? pressed.toText() + u'\u2026' : localized("Type a shortcut");
        m_state.update([&](State &state) { state.text = held; });
    } else if (pressed == KeyCombination{.key = u"Esc"_s}) {
        cancel();
    } else if (pressed == KeyCombination{.key = u"Backspace"_s} ||
               pressed == KeyCombination{.key = u"Del"_s}) {
        clear();
    } else if (combination) {
        record(*combination);
    } else if (pressed.control || pressed.alt || pressed.meta) {
        refuse(localized("This key cannot be part of a shortcut."));
    } else {
        refuse(GlobalHotKeys::problemOf(GlobalHotKeys::State::Unusable));
    }
}

void ShortcutRecorder::clear()
{
    store(QString());
    cancel();
}

void ShortcutRecorder::refresh()
{
    if (m_state->isRecording) {
        return;
    }
    const QString stored = m_settings.getString(settingOf(m_use).combination);
    m_state.update([&](State &state) {
        state.isEmpty = stored.isEmpty();
        state.text = state.isEmpty ? localized("Record Shortcut") : stored;
        state.isUsable = m_hotKeys.way() != HotKeyWay::NotOffered;
        state.line = line();
    });
}

ShortcutRecorder::Setting ShortcutRecorder::settingOf(For use)
{
    return use == For::ShowWindow ? Setting{keys::showKeyCombo, keys::showKeyEnabled}
                                  : Setting{keys::randomKeyCombo, keys::randomKeyEnabled};
}

ShortcutRecorder::For ShortcutRecorder::otherThan(For use)
{
    return use == For::ShowWindow ? For::RandomAddress : For::ShowWindow;
}

QString ShortcutRecorder::titleOf(For use)
{
    return use == For::ShowWindow ? localized("Show window") : localized("Randomize address");
}

GlobalHotKeys::State ShortcutRecorder::hotKeyState() const
{
    return m_use == For::ShowWindow ? m_hotKeys.showKeyState() : m_hotKeys.randomKeyState();
}

PreferencesLine ShortcutRecorder::line() const
{
    using Kind = PreferencesLine::Kind;
    const GlobalHotKeys::State state =
        m_hotKeys.way() == HotKeyWay::NotOffered ? GlobalHotKeys::State::NotOffered : hotKeyState();
    const QString problem = GlobalHotKeys::problemOf(state);
    if (!problem.isEmpty()) {
        return {Kind::Notice, problem};
    }
    if (m_hotKeys.way() == HotKeyWay::DesktopDecides) {
        return {Kind::Hint, localized("The desktop has the last word: its settings show the keys "
                                      "that act.")};
    }
    return {};
}

void ShortcutRecorder::refuse(const QString &why)
{
    m_state.update([&](State &state) {
        state.text = localized("Type a shortcut");
        state.line = {PreferencesLine::Kind::Notice, why};
    });
}

void ShortcutRecorder::record(const KeyCombination &combination)
{
    const For other = otherThan(m_use);
    const auto taken = KeyCombination::fromText(m_settings.getString(settingOf(other).combination));
    if (taken == combination) {
        refuse(filled(localized("\u201C%@\u201D uses this shortcut."), {titleOf(other)}));
        return;
    }
    store(combination.toText());
    m_settings.setBool(settingOf(m_use).enabled, true);
    m_settings.synchronize();
    end();
}

void ShortcutRecorder::store(const QString &combination)
{
    m_settings.set(
        settingOf(m_use).combination, combination.isEmpty() ? QVariant() : QVariant(combination));
    m_settings.synchronize();
    // Also where it is the one of before: another program may have given it up.
    if (m_use == For::ShowWindow) {
        m_hotKeys.updateShowKey();
    } else {
        m_hotKeys.updateRandomKey();
    }
}

void ShortcutRecorder::end()
{
    m_state.update([](State &state) { state.isRecording = false; });
    m_hotKeys.resume();
    refresh();
}

} // namespace quillon
