// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QPointer>
#include <QWidget>

class QPushButton;

namespace quillon {

class CloudAccountModel;
class CloudSignInModel;
class InlineLine;
class OneLineLabel;
class PassphraseModel;
class Theme;

/// Who is signed in to the account that settings, rules and history are synchronized with, the way
/// to another passphrase, and the way out. The way in is a button of its own; the dialogs lie over
/// the row's window.
class CloudAccountRow : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        CloudAccountModel &account;
        CloudSignInModel &signIn;
        PassphraseModel &passphrase;
    };

    CloudAccountRow(const Models &models, const Theme &theme, QWidget *parent);
    ~CloudAccountRow() override;

    /// "Account…", for whoever lays out the pane, who takes it.
    QPushButton *button() const { return m_open; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();
    /// Opens and closes what `make` makes.
    template <typename Make>
    void follow(QPointer<QDialog> &dialog, bool isOpen, Make make);
    void followSignIn();
    void followPassphrase();

    Models m_models;
    const Theme &m_theme;
    QPushButton *m_open;
    QWidget *m_line;
    OneLineLabel *m_account;
    QPushButton *m_change;
    QPushButton *m_signOut;
    InlineLine *m_hint;
    QPointer<QDialog> m_signInDialog;
    QPointer<QDialog> m_passphraseDialog;
};

} // namespace quillon
