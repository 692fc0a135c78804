// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/preferences/PreferencesPane.h"

#include <QMap>
#include <QWidget>

class QToolButton;

namespace quillon {

class Theme;

/// The choice among the panes: an image over a label each. One stop for the keyboard; arrows move
/// the choice. To assistive technology it is a list of tabs.
class PreferencesToolBar : public QWidget
{
    Q_OBJECT

public:
    explicit PreferencesToolBar(const Theme &theme, QWidget *parent = nullptr);

    /// In the order of the calls.
    void add(const PreferencesPaneInfo &info);
    void select(PreferencesPane pane);

Q_SIGNALS:
    void chosen(quillon::PreferencesPane pane);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Button
    {
        PreferencesPaneInfo info;
        QToolButton *widget = nullptr;
    };

    void draw(const Button &button, bool isSelected);
    void step(qsizetype places);

    const Theme &m_theme;
    QList<Button> m_buttons;
    qsizetype m_selected = 0;
};

} // namespace quillon
