// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QRadioButton;

namespace quillon {

class DisplayPreferencesViewController;
class Theme;

/// The display preferences.
class DisplayPreferencesView : public QWidget
{
    Q_OBJECT

public:
    DisplayPreferencesView(DisplayPreferencesViewController &controller, const Theme &theme);

private:
    QRadioButton *makeChoice(const QString &name, const QString &title, const QString &example);
    void refresh();

    DisplayPreferencesViewController &m_controller;
    QRadioButton *m_capital;
    QRadioButton *m_small;
};

} // namespace quillon
