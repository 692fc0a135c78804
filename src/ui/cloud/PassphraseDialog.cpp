// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/PassphraseDialog.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

PassphraseDialog::PassphraseDialog(PassphraseModel &model, const Theme &theme, QWidget *parent)
    : CloudFormDialog(theme, localized("Change Passphrase"), parent)
    , m_model(model)
{
    setObjectName(u"cloudPassphrase"_s);
    setWindowTitle(localized("Change Passphrase"));
    confirm().setBusyText(localized("Changing…"));
    confirm().setToolTip(
        plainToolTip(localized("From then on the account is opened by the new passphrase")));
    arrange(nullptr, makeForm());
    connect(&confirm(), &QPushButton::clicked, &m_model, &PassphraseModel::change);
    connect(&m_model, &PassphraseModel::changed, this, &PassphraseDialog::refresh);
    connect(&m_model, &PassphraseModel::fieldWanted, this, &PassphraseDialog::give);
    refresh();
    give(Field::Current);
}

QWidget *PassphraseDialog::makeForm()
{
    auto *form = new QWidget;
    QVBoxLayout *column = columnOf(form);
    QVBoxLayout *current = makePart();
    column->addWidget(current->parentWidget());
    addField(*current, Field::Current, localized("Current passphrase"),
        localized("The one with which you signed in"));
    QVBoxLayout *wanted = makePart();
    column->addWidget(wanted->parentWidget());
    addField(*wanted, Field::Passphrase, localized("New passphrase"),
        localized("At least eight characters. Nobody can tell you later what you typed."));
    wanted->addSpacing(Theme::unit / 2);
    addField(*wanted, Field::Repeated, localized("Repeat new passphrase"),
        localized("The same once more"));
    addHint(
        *wanted, localized("At least eight characters. Nobody can tell you later what you typed."));
    addHint(*column, localized("Your other computers stay signed in. Copies of the account that "
                               "somebody has made before still open with the current passphrase."));
    column->addStretch(1);
    return form;
}

void PassphraseDialog::addField(
    QVBoxLayout &column, Field field, const QString &caption, const QString &tip)
{
    QLineEdit *entry = makeEntry(caption, tip);
    entry->setObjectName(u"passphraseField%1"_s.arg(static_cast<int>(field)));
    entry->setEchoMode(QLineEdit::Password);
    m_fields.emplace(field, entry);
    // Not textEdited(): assistive technology types as well.
    connect(entry, &QLineEdit::textChanged, this, [field, this](const QString &text) {
        m_model.edit(field, text);
        refreshFields();
    });
    column.addWidget(labelOf(entry));
    column.addWidget(entry);
}

void PassphraseDialog::refresh()
{
    const auto &state = m_model.state();
    for (const auto &[field, entry] : m_fields) {
        entry->setReadOnly(state.isBusy);
    }
    if (state.failure.isEmpty()) {
        line().say(state.progress);
    } else {
        line().say(state.failure, InlineLine::Kind::Danger);
    }
    confirm().setBusy(state.isBusy);
    cancelButton().setEnabled(!state.isTooLate);
    refreshFields();
}

void PassphraseDialog::refreshFields()
{
    for (const auto &[field, entry] : m_fields) {
        if (const QString &text = m_model.text(field); entry->text() != text) {
            replaceText(*entry, text);
        }
    }
}

void PassphraseDialog::give(Field field)
{
    if (field != Field::Nothing) {
        QLineEdit *entry = m_fields.at(field);
        entry->setFocus(Qt::OtherFocusReason);
        entry->selectAll();
    }
}

void PassphraseDialog::reject()
{
    m_model.cancel();
}

void PassphraseDialog::closeEvent(QCloseEvent *event)
{
    m_model.close();
    event->accept();
}

} // namespace quillon
