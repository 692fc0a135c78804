// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/preferences/PreferencesPane.h"
#include "ui/widgets/SecondaryWindow.h"

#include <QMap>

class QStackedWidget;

namespace quillon {

class PreferencesToolBar;
class PreferencesWindowModel;
class Theme;

/// The window of the preferences: a toolbar, and the pane that is chosen in it. It is made once,
/// with all panes, and mirrors PreferencesWindowModel. Main thread.
class PreferencesWindow : public SecondaryWindow
{
    Q_OBJECT

public:
    struct Models
    {
        PreferencesWindowModel &window;
        Presence &presence;
    };

    PreferencesWindow(const Models &models, const Theme &theme, TaskBar &taskBar);
    ~PreferencesWindow() override;

    /// Takes `content`, to which it gives margins. In the order of the toolbar.
    void addPane(PreferencesPane pane, QWidget *content);

private:
    void refresh();

    PreferencesWindowModel &m_model;
    PreferencesToolBar *m_toolBar;
    QStackedWidget *m_pages;
    QMap<PreferencesPane, QWidget *> m_panes; ///< the pages
};

} // namespace quillon
