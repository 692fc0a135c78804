// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;
class QToolButton;

namespace quillon {

class CountdownModel;
class Theme;

/// When a rule changes the address the next time, with the buttons that stop that and go on. Hidden
/// while there is no countdown.
class CountdownRow : public QWidget
{
    Q_OBJECT

public:
    CountdownRow(CountdownModel &model, const Theme &theme, QWidget *parent = nullptr);

private:
    QToolButton *makeButton(const QString &objectName, const QString &name, const QIcon &icon);
    void refresh();
    void refreshButtons();
    void announcePause();

    CountdownModel &m_model;
    QLabel *m_label;
    QToolButton *m_pause;
    QToolButton *m_resume;
    /// Where the keyboard is since the buttons were hidden under it, until they come again.
    QPointer<QWidget> m_keyboardWentTo;
    bool m_isPaused = false;
};

} // namespace quillon
