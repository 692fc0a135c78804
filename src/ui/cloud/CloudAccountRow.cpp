// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/CloudAccountRow.h"

#include "base/Localized.h"
#include "presentation/cloud/CloudAccountModel.h"
#include "ui/cloud/CloudSignInDialog.h"
#include "ui/cloud/PassphraseDialog.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/OneLineLabel.h"
#include "ui/widgets/PlainText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

CloudAccountRow::CloudAccountRow(const Models &models, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_models(models)
    , m_theme(theme)
    , m_open(new QPushButton(localized("Account…"), this))
    , m_line(new QWidget)
    , m_account(new OneLineLabel(Qt::ElideMiddle))
    , m_change(new QPushButton(localized("Change Passphrase…")))
    , m_signOut(new QPushButton(localized("Sign Out")))
    , m_hint(new InlineLine(theme))
{
    setObjectName(u"cloudAccount"_s);
    m_open->setObjectName(u"accountButton"_s);
    m_open->setAccessibleName(m_open->text());
    m_open->setToolTip(plainToolTip(localized("Signs in to the account to sync with")));
    m_account->setObjectName(u"signedInAs"_s);
    m_change->setObjectName(u"changePassphraseButton"_s);
    m_change->setAccessibleName(m_change->text());
    m_change->setToolTip(
        plainToolTip(localized("Gives the account another passphrase, for all computers")));
    m_signOut->setObjectName(u"signOutButton"_s);
    m_signOut->setAccessibleName(m_signOut->text());
    m_signOut->setToolTip(
        plainToolTip(localized("Forgets the account and its passwords on this computer")));
    m_signOut->installEventFilter(new ClicksOnce(m_signOut));
    auto *line = new QHBoxLayout(m_line);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::unit);
    line->addWidget(m_account, 1);
    line->addWidget(m_change);
    line->addWidget(m_signOut);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    column->addWidget(m_line);
    column->addWidget(m_hint);
    connect(m_open, &QPushButton::clicked, &m_models.signIn, &CloudSignInModel::open);
    connect(m_change, &QPushButton::clicked, &m_models.passphrase, &PassphraseModel::open);
    connect(m_signOut, &QPushButton::clicked, &m_models.account, &CloudAccountModel::signOut);
    connect(&m_models.account, &CloudAccountModel::changed, this, &CloudAccountRow::refresh);
    connect(&m_models.signIn, &CloudSignInModel::changed, this, &CloudAccountRow::followSignIn);
    connect(
        &m_models.passphrase, &PassphraseModel::changed, this, &CloudAccountRow::followPassphrase);
    refresh();
}

CloudAccountRow::~CloudAccountRow()
{
    delete m_signInDialog;
    delete m_passphraseDialog;
    m_models.signIn.close();
    m_models.passphrase.close();
}

void CloudAccountRow::refresh()
{
    const auto &state = m_models.account.state();
    m_open->setVisible(state.isOffered);
    if (!state.isSignedIn && (m_signOut->hasFocus() || m_change->hasFocus())) {
        m_open->setFocus(Qt::OtherFocusReason);
    }
    m_account->setLine(state.account);
    m_line->setVisible(state.isSignedIn);
    const bool isNews = state.hint != m_hint->text() && !state.hint.isEmpty();
    m_hint->say(state.hint);
    m_hint->setVisible(!state.hint.isEmpty());
    setVisible(state.isSignedIn || !state.hint.isEmpty());
    if (isNews && isVisible()) {
        announce(*m_hint, plainParagraphs(u"%1 %2"_s.arg(state.account, state.hint).trimmed()));
    }
}

template <typename Make>
void CloudAccountRow::follow(QPointer<QDialog> &dialog, bool isOpen, Make make)
{
    if (isOpen && dialog.isNull()) {
        dialog = make();
        window()->installEventFilter(this);
        dialog->open();
    } else if (!isOpen && !dialog.isNull()) {
        window()->removeEventFilter(this);
        dialog->hide();
        dialog->deleteLater();
        dialog.clear();
        // Not every desktop gives the keyboard back by itself.
        if (window()->isVisible()) {
            window()->activateWindow();
        }
    }
}

void CloudAccountRow::followSignIn()
{
    follow(m_signInDialog, m_models.signIn.state().isOpen,
        [this] { return new CloudSignInDialog(m_models.signIn, m_theme, window()); });
}

void CloudAccountRow::followPassphrase()
{
    follow(m_passphraseDialog, m_models.passphrase.state().isOpen,
        [this] { return new PassphraseDialog(m_models.passphrase, m_theme, window()); });
}

bool CloudAccountRow::eventFilter(QObject *watched, QEvent *event)
{
    // What lies over a window that is put away would stay on the screen without it.
    if (watched == window() && event->type() == QEvent::Hide && !event->spontaneous()) {
        m_models.signIn.close();
        m_models.passphrase.close();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quillon
