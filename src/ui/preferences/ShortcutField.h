// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QToolButton;

namespace quillon {

class InlineLine;
class BoundSetting;
class ShortcutButton;
class ShortcutRecorder;
class Theme;

/// A hot key of the preferences: its switch, its combination with a cross that clears it, and a
/// line that says what has become of it.
class ShortcutField : public QWidget
{
    Q_OBJECT

public:
    /// `name` is that of the switch, for tests.
    ShortcutField(
        BoundSetting &isOn, ShortcutRecorder &recorder, const QString &name, const Theme &theme);

private:
    void refresh();

    ShortcutRecorder &m_recorder;
    ShortcutButton *m_button;
    QToolButton *m_clear;
    InlineLine *m_line;
};

} // namespace quillon
