// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeCloudPassphrase.h"
#include "fakes/FakeCloudSignIn.h"
#include "presentation/cloud/CloudAccountModel.h"
#include "presentation/cloud/CloudSignInModel.h"
#include "presentation/cloud/PassphraseModel.h"
#include "ui/cloud/CloudAccountRow.h"
#include "ui/widgets/HeldKeys.h"
#include "unit/ui/WidgetFixture.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

#include <memory>

namespace quillon::test {

/// A window with the row of the account and the button that leads to its dialog.
class CloudFixture : public WidgetFixture
{
protected:
    /// `dialogName` is the object name of the one that is tested.
    explicit CloudFixture(const QString &dialogName = QStringLiteral("cloudSignIn"))
        : m_dialogName(dialogName)
    {
        qApp->installEventFilter(&heldKeys);
        accountModel.use(signIn);
        model.use(signIn);
        passphraseModel.use(passphrase);
        column->addWidget(row->button());
        column->addWidget(row);
        show();
    }
    // Before the models.
    ~CloudFixture() override { delete row; }

    QPushButton &accountButton() const { return *row->button(); }
    QPushButton &signOutButton() const
    {
        return *row->findChild<QPushButton *>(QStringLiteral("signOutButton"));
    }
    QPushButton &changeButton() const
    {
        return *row->findChild<QPushButton *>(QStringLiteral("changePassphraseButton"));
    }
    void openDialog()
    {
        accountButton().setFocus();
        accountButton().click();
        settle();
        ASSERT_NE(dialog(), nullptr);
        ASSERT_TRUE(dialog()->isActiveWindow());
    }
    /// The one that is open.
    QDialog *dialog() const
    {
        for (auto *found : window.findChildren<QDialog *>(m_dialogName)) {
            if (found->isVisible()) {
                return found;
            }
        }
        return nullptr;
    }
    QLineEdit &field(const char *name) const { return control<QLineEdit>(name); }
    QAbstractButton &button(const char *name) const { return control<QAbstractButton>(name); }
    void fill() const
    {
        field("Server").setText(QStringLiteral("cloud.example"));
        field("User name").setText(QStringLiteral("mila"));
        field("App password").setText(QStringLiteral("app-password"));
        field("Passphrase").setText(QStringLiteral("a long passphrase"));
    }

    const CloudAccount account{.kind = CloudAccount::Kind::WebDav,
        .server = QUrl(QStringLiteral("https://cloud.example/remote.php/dav/files/mila")),
        .user = QStringLiteral("mila")};
    HeldKeys heldKeys;
    FakeCloudSignIn signIn;
    CloudAccountModel accountModel;
    CloudSignInModel model;
    FakeCloudPassphrase passphrase;
    PassphraseModel passphraseModel;
    QPointer<CloudAccountRow> row =
        new CloudAccountRow({accountModel, model, passphraseModel}, theme, &window);

private:
    QString m_dialogName;

    template <typename T>
    T &control(const char *name) const
    {
        for (auto *found : dialog()->findChildren<T *>()) {
            if (found->accessibleName() == QString::fromUtf8(name)) {
                return *found;
            }
        }
        qFatal("no %s", name);
    }
};

} // namespace quillon::test
