// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class QKeySequence;

namespace quillon {

class Presence;
class TaskBar;

/// A window beside the main one. Closing it only hides it: the program goes on. The keys that lead
/// to the other windows work in it, and it can be moved by its ground. Main thread.
class SecondaryWindow : public QWidget
{
    Q_OBJECT

public:
    SecondaryWindow(const QString &objectName, Presence &presence, TaskBar &taskBar);

    /// Shows it in front, with the keyboard.
    void bringUp();
    /// `keys` anywhere in the window. `text` is what the command is called.
    void addShortcut(const QKeySequence &keys, const QString &text, std::function<void()> act);

protected:
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void makeShortcuts();
    void followTaskBar();

    Presence &m_presence;
    TaskBar &m_taskBar;
};

/// Keys in `window` that lead to the other windows, as far as they are there. The main window has
/// those of new rules from its File menu.
void addWindowShortcuts(QWidget &window, Presence &presence);
/// Whether a press at `place` of `window` is on none of its controls.
bool isGround(const QWidget &window, const QPoint &place);

} // namespace quillon
