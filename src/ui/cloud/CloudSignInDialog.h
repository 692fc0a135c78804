// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/cloud/CloudSignInModel.h"
#include "ui/cloud/CloudFormDialog.h"

#include <map>

class QFrame;
class QTabBar;

namespace quillon {

/// Where a person signs in to an account. Return signs in, Escape gives up what is under way and
/// then the dialog. Whoever opens it closes it when its model says so.
class CloudSignInDialog : public CloudFormDialog
{
    Q_OBJECT

public:
    CloudSignInDialog(CloudSignInModel &model, const Theme &theme, QWidget *parent);

    /// By Escape or the button.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    using Field = CloudSignInModel::Field;

    QWidget *makeForm();
    QWidget *makeWebDav();
    QWidget *makeFolder();
    QWidget *makeRepetition();
    QFrame *makeQuestion();
    QLineEdit *addField(
        QVBoxLayout &column, Field field, const QString &caption, const QString &tip);
    QLineEdit *makeField(Field field, const QString &caption, const QString &tip);
    void chooseFolder();
    void copyFingerprint();
    void refresh();
    void refreshFields();
    void give(Field field);

    CloudSignInModel &m_model;
    std::map<Field, QLineEdit *> m_fields;
    QTabBar *m_tabs;
    QWidget *m_webDav = nullptr;
    QWidget *m_folder = nullptr;
    QWidget *m_repetition = nullptr;
    QFrame *m_question = nullptr;
    QLabel *m_fingerprint = nullptr;
    QPushButton *m_choose = nullptr;
    QPushButton *m_accept = nullptr;
};

} // namespace quillon
