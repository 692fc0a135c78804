// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class QPushButton;

namespace quillon {

class CloudAccountModel;
class CloudSignInDialog;
class CloudSignInModel;
class InlineLine;
class OneLineLabel;
class Theme;

/// Who is signed in to the account that settings, rules and history are synchronized with, and the
/// way out of it. The way in is a button of its own; its dialog lies over the row's window.
class CloudAccountRow : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        CloudAccountModel &account;
        CloudSignInModel &signIn;
    };

    CloudAccountRow(const Models &models, const Theme &theme, QWidget *parent);
    ~CloudAccountRow() override;

    /// "Account…", for whoever lays out the pane, who takes it.
    QPushButton *button() const { return m_open; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();
    void followDialog();

    Models m_models;
    const Theme &m_theme;
    QPushButton *m_open;
    QWidget *m_line;
    OneLineLabel *m_account;
    QPushButton *m_signOut;
    InlineLine *m_hint;
    QPointer<CloudSignInDialog> m_dialog;
};

} // namespace quillon
