// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedEntryPopover.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

SavedEntryPopover::SavedEntryPopover(
    SavedEntryPopoverModel &model, Kind kind, const Theme &theme, QWidget *parent)
    : Popover(theme, new QWidget, parent)
    , m_model(model)
    , m_kind(kind)
    , m_details(new QVBoxLayout)
    , m_name(new QLineEdit)
    , m_remove(new QPushButton(localized("Remove")))
{
    setAccessibleRole(*this, QAccessible::Dialog);
    makeContent();
    connect(m_name, &QLineEdit::returnPressed, this, &SavedEntryPopover::endEditing);
    connect(m_name, &QLineEdit::editingFinished, this, &SavedEntryPopover::leaveName);
    connect(m_remove, &QPushButton::clicked, &m_model, &SavedEntryPopoverModel::removeEntry);
    connect(this, &Popover::aboutToShow, this, &SavedEntryPopover::fill);
    connect(this, &Popover::aboutToClose, this, &SavedEntryPopover::closed);
    connect(&m_model, &SavedEntryPopoverModel::changed, this, &SavedEntryPopover::refresh);
}

void SavedEntryPopover::makeContent()
{
    auto *caption = plainLabel(localized("Name"));
    caption->setProperty("look", u"caption"_s);
    caption->setBuddy(m_name);
    m_name->setProperty("look", u"field"_s);
    m_name->setAccessibleName(localized("Name"));
    m_remove->setProperty("look", u"danger"_s);
    m_remove->setAutoDefault(true);
    // A click on it does not end the editing of the name.
    m_remove->setFocusPolicy(Qt::TabFocus);
    m_details->setContentsMargins(0, Theme::unit / 2, 0, 0);
    m_details->setSpacing(Theme::unit / 2);
    auto *column = new QVBoxLayout(content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    column->addWidget(caption);
    column->addWidget(m_name);
    column->addLayout(m_details);
    column->addSpacing(Theme::unit / 2);
    column->addWidget(m_remove, 0, Qt::AlignRight);
}

void SavedEntryPopover::add(QWidget *details, const QList<QWidget *> &controls)
{
    m_details->addWidget(details);
    QWidget *before = m_name;
    for (QWidget *control : controls) {
        setTabOrder(before, control);
        before = control;
    }
    setTabOrder(before, m_remove);
}

QString SavedEntryPopover::shownName() const
{
    return plainLine(state().name);
}

void SavedEntryPopover::fill()
{
    m_hasEnded = false;
    m_name->setText(plainLine(state().name));
    m_name->selectAll();
    refreshDetails();
}

void SavedEntryPopover::refresh()
{
    if (state().open == m_kind) {
        m_name->setEnabled(state().nameEnabled);
        m_remove->setEnabled(state().removeEnabled);
        // What is typed into the name stays.
        refreshDetails();
    } else if (isOpen()) {
        close();
    }
}

void SavedEntryPopover::leaveName()
{
    // Who only passes through has edited nothing.
    if (m_name->text() != shownName()) {
        endEditing();
    }
}

void SavedEntryPopover::endEditing()
{
    if (!m_hasEnded) {
        m_hasEnded = true;
        const QString typed = m_name->text();
        // A name from outside may hold what is not shown of it.
        m_model.controlTextDidEndEditing(typed == shownName() ? state().name : typed);
    }
}

void SavedEntryPopover::closed()
{
    // With its window it goes before the name loses the keyboard.
    if (state().open == m_kind) {
        leaveName();
    }
    if (m_kind == Kind::Network) {
        m_model.closeNetworkPopover();
    } else {
        m_model.closeAddressPopover();
    }
}

void SavedEntryPopover::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel)) {
        // The field would be left with what was typed, and that would be saved.
        m_name->setText(plainLine(state().name));
    }
    Popover::keyPressEvent(event);
}

} // namespace quillon
