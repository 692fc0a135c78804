// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/CloudAccountRow.h"

#include "base/Localized.h"
#include "presentation/cloud/CloudAccountModel.h"
#include "ui/cloud/CloudSignInDialog.h"
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
    , m_signOut(new QPushButton(localized("Sign Out")))
    , m_hint(new InlineLine(theme))
{
    setObjectName(u"cloudAccount"_s);
    m_open->setObjectName(u"accountButton"_s);
    m_open->setAccessibleName(m_open->text());
    m_open->setToolTip(plainToolTip(localized("Signs in to the account to sync with")));
    m_account->setObjectName(u"signedInAs"_s);
    m_signOut->setObjectName(u"signOutButton"_s);
    m_signOut->setAccessibleName(m_signOut->text());
    m_signOut->setToolTip(
        plainToolTip(localized("Forgets the account and its passwords on this computer")));
    m_signOut->installEventFilter(new ClicksOnce(m_signOut));
    auto *line = new QHBoxLayout(m_line);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::unit);
    line->addWidget(m_account, 1);
    line->addWidget(m_signOut);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    column->addWidget(m_line);
    column->addWidget(m_hint);
    connect(m_open, &QPushButton::clicked, &m_models.signIn, &CloudSignInModel::open);
    connect(m_signOut, &QPushButton::clicked, &m_models.account, &CloudAccountModel::signOut);
    connect(&m_models.account, &CloudAccountModel::changed, this, &CloudAccountRow::refresh);
    connect(&m_models.signIn, &CloudSignInModel::changed, this, &CloudAccountRow::followDialog);
    refresh();
}

CloudAccountRow::~CloudAccountRow()
{
    delete m_dialog;
    m_models.signIn.close();
}

void CloudAccountRow::refresh()
{
    const auto &state = m_models.account.state();
    m_open->setVisible(state.isOffered);
    if (!state.isSignedIn && m_signOut->hasFocus()) {
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

void CloudAccountRow::followDialog()
{
    const bool isOpen = m_models.signIn.state().isOpen;
    if (isOpen && m_dialog.isNull()) {
        m_dialog = new CloudSignInDialog(m_models.signIn, m_theme, window());
        window()->installEventFilter(this);
        m_dialog->open();
    } else if (!isOpen && !m_dialog.isNull()) {
        window()->removeEventFilter(this);
        m_dialog->hide();
        m_dialog->deleteLater();
        m_dialog.clear();
        // Not every desktop gives the keyboard back by itself.
        if (window()->isVisible()) {
            window()->activateWindow();
        }
    }
}

bool CloudAccountRow::eventFilter(QObject *watched, QEvent *event)
{
    // What lies over a window that is put away would stay on the screen without it.
    if (watched == window() && event->type() == QEvent::Hide && !event->spontaneous()) {
        m_models.signIn.close();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quillon
