// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/cloud/CloudSignInModel.h"

#include <QDialog>

#include <map>

class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;
class QVBoxLayout;

namespace quillon {

class BusyButton;
class InlineLine;
class Theme;

/// Where a person signs in to an account. Return signs in, Escape gives up what is under way and
/// then the dialog. Whoever opens it closes it when its model says so.
class CloudSignInDialog : public QDialog
{
    Q_OBJECT

public:
    CloudSignInDialog(CloudSignInModel &model, const Theme &theme, QWidget *parent);

    /// By Escape or the button.
    void reject() override;

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    using Field = CloudSignInModel::Field;

    QWidget *makeForm();
    QWidget *makeWebDav();
    QWidget *makeFolder();
    QWidget *makeRepetition();
    QFrame *makeQuestion();
    void addButtons(QVBoxLayout &column);
    QLineEdit *addField(
        QVBoxLayout &column, Field field, const QString &caption, const QString &tip);
    QLineEdit *makeField(Field field, const QString &caption, const QString &tip);
    void chooseFolder();
    void copyFingerprint();
    void refresh();
    void refreshFields();
    void give(Field field);
    void fit();

    CloudSignInModel &m_model;
    std::map<Field, QLineEdit *> m_fields;
    QTabBar *m_tabs;
    InlineLine *m_line;
    BusyButton *m_signIn;
    QWidget *m_webDav = nullptr;
    QWidget *m_folder = nullptr;
    QWidget *m_repetition = nullptr;
    QFrame *m_question = nullptr;
    QLabel *m_fingerprint = nullptr;
    QPushButton *m_choose = nullptr;
    QPushButton *m_accept = nullptr;
};

} // namespace quillon
