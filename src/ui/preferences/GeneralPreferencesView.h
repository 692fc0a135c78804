// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

class GeneralPreferencesViewController;
class InlineLine;
class Theme;

/// The general preferences.
class GeneralPreferencesView : public QWidget
{
    Q_OBJECT

public:
    /// What tells of the account and leads to it; the pane takes both.
    struct Account
    {
        QWidget *button;
        QWidget *row;
    };

    GeneralPreferencesView(
        GeneralPreferencesViewController &controller, const Theme &theme, const Account &account);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void refresh();
    void redraw();

    GeneralPreferencesViewController &m_controller;
    InlineLine *m_login;
    InlineLine *m_hideDock;
    InlineLine *m_cloud;
};

} // namespace quillon
