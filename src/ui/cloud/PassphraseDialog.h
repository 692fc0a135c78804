// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/cloud/PassphraseModel.h"
#include "ui/cloud/CloudFormDialog.h"

#include <map>

namespace quillon {

/// Where a person gives the account another passphrase. Return changes it, Escape gives up what is
/// under way and then the dialog. Whoever opens it closes it when its model says so.
class PassphraseDialog : public CloudFormDialog
{
    Q_OBJECT

public:
    PassphraseDialog(PassphraseModel &model, const Theme &theme, QWidget *parent);

    /// By Escape or the button.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    using Field = PassphraseModel::Field;

    QWidget *makeForm();
    void addField(QVBoxLayout &column, Field field, const QString &caption, const QString &tip);
    void refresh();
    void refreshFields();
    void give(Field field);

    PassphraseModel &m_model;
    std::map<Field, QLineEdit *> m_fields;
};

} // namespace quillon
