// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesListPage.h"

#include "base/Localized.h"
#include "presentation/rules/RulesPreferencesViewController.h"
#include "ui/rules/RulesListView.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/EmptyState.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Strip.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

RulesListPage::RulesListPage(RulesTableModel &table, RulesPreferencesViewController &editor,
    const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_table(table)
    , m_editor(editor)
    , m_list(new RulesListView(table, editor, theme))
    , m_empty(new EmptyState(theme, u"list"_s))
    , m_card(new QFrame)
    , m_column(new QVBoxLayout(this))
    , m_bar(new QWidget)
    , m_buttons(new QBoxLayout(QBoxLayout::TopToBottom, m_bar))
{
    m_card->setProperty("look", u"card"_s);
    auto *inside = new QVBoxLayout(m_card);
    inside->setContentsMargins(Theme::unit / 2, Theme::unit / 2, Theme::unit / 2, Theme::unit / 2);
    inside->addWidget(m_list);
    inside->addWidget(m_empty);
    m_empty->say(localized("Rules change the address when you join a network."),
        localized("New Network Rule"));
    connect(m_empty, &EmptyState::acted, &m_editor, &RulesPreferencesViewController::addRule);

    using Editor = RulesPreferencesViewController;
    m_addRule = makeButton(theme, u"add"_s, localized("Network Rule"),
        localized("New network rule"), &Editor::addRule);
    auto *addLogin = makeButton(theme, u"add"_s, localized("Login Rule"),
        localized("New login rule"), &Editor::addLoginRule);
    m_commands = {makeButton(theme, u"pencil"_s, localized("Edit"),
                      localized("Edit the rule (Return)"), &Editor::editRule),
        makeButton(theme, u"duplicate"_s, localized("Duplicate"),
            localized("Duplicate the rules (Ctrl+D)"), &Editor::duplicateRule),
        makeButton(theme, u"trash"_s, localized("Delete"), localized("Delete the rules (Delete)"),
            &Editor::deleteRule)};
    auto *adding = new QHBoxLayout;
    adding->setSpacing(Theme::unit);
    adding->addWidget(m_addRule);
    adding->addWidget(addLogin);
    adding->addStretch();
    auto *commands = new QHBoxLayout;
    commands->addStretch();
    auto *once = new ClicksOnce(this);
    for (QPushButton *command : std::as_const(m_commands)) {
        command->setProperty("look", u"quiet"_s);
        command->installEventFilter(once);
        commands->addWidget(command);
    }
    m_buttons->setContentsMargins(0, 0, 0, 0);
    m_buttons->setSpacing(Theme::unit);
    m_buttons->addLayout(adding);
    m_buttons->addLayout(commands);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(Theme::spacing);
    m_column->addWidget(m_card, 1);
    m_column->addWidget(m_bar);
    connect(&m_table, &RulesTableModel::changed, this, &RulesListPage::refresh);
    refresh();
}

QWidget *RulesListPage::firstControl() const
{
    return m_table.state().rows.isEmpty() ? static_cast<QWidget *>(m_addRule) : m_list;
}

void RulesListPage::takeStrip(Strip *strip)
{
    m_column->insertWidget(1, strip);
}

QPushButton *RulesListPage::makeButton(const Theme &theme, const QString &icon, const QString &text,
    const QString &toolTip, Command command)
{
    auto *button = new QPushButton(text);
    button->setIcon(theme.icon(icon, Theme::Ink::Muted));
    button->setIconSize(QSize(Theme::inlineIconSize, Theme::inlineIconSize));
    button->setToolTip(plainToolTip(toolTip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, &m_editor, command);
    return button;
}

QSize RulesListPage::minimumSizeHint() const
{
    // In two lines there is always room for the buttons.
    int width = m_card->minimumSizeHint().width();
    for (int line = 0; line < m_buttons->count(); ++line) {
        width = std::max(width, m_buttons->itemAt(line)->minimumSize().width());
    }
    return {width, QWidget::minimumSizeHint().height()};
}

void RulesListPage::resizeEvent(QResizeEvent *event)
{
    int wanted = m_buttons->spacing();
    for (int line = 0; line < m_buttons->count(); ++line) {
        wanted += m_buttons->itemAt(line)->minimumSize().width();
    }
    m_buttons->setDirection(wanted <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QWidget::resizeEvent(event);
}

void RulesListPage::refresh()
{
    const bool isEmpty = m_table.state().rows.isEmpty();
    const bool hadKeyboard = m_list->hasFocus();
    m_list->setVisible(!isEmpty);
    m_empty->setVisible(isEmpty);
    if (isEmpty && hadKeyboard) {
        m_empty->button().setFocus(Qt::OtherFocusReason);
    }
    for (QPushButton *command : std::as_const(m_commands)) {
        // A key that was meant for it must not go to another control.
        if (m_table.state().selectedRows.empty() && command->hasFocus()) {
            firstControl()->setFocus(Qt::OtherFocusReason);
        }
        command->setEnabled(!m_table.state().selectedRows.empty());
    }
}

} // namespace quillon
