// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesListView.h"

#include "base/Localized.h"
#include "presentation/rules/RulesPreferencesViewController.h"
#include "ui/rules/RuleRowDelegate.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QItemSelection>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualRows = 5;
constexpr int leastRows = 2;

QString badgeOf(const RulesTableModel::Row &row)
{
    if (row.values.isLogin) {
        return localized("Login");
    }
    return row.active ? localized("Active") : QString();
}

} // namespace

RuleRows::RuleRows(RulesTableModel &table, RulesPreferencesViewController &editor, QObject *parent)
    : QAbstractListModel(parent)
    , m_table(table)
    , m_editor(editor)
{
    connect(&m_table, &RulesTableModel::changed, this, &RuleRows::refresh);
    refresh();
}

void RuleRows::refresh()
{
    QStringList rules;
    rules.reserve(m_table.state().rows.size());
    for (const auto &row : m_table.state().rows) {
        rules << row.objID;
    }
    if (rules != m_shown) {
        const QScopedValueRollback changes(m_changes, true);
        exchange(rules);
    } else if (!rules.isEmpty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

void RuleRows::exchange(const QStringList &rules)
{
    // Not a reset: assistive technology keeps the rows that stay.
    const auto differs = std::ranges::mismatch(std::as_const(m_shown), rules);
    const auto first = static_cast<int>(differs.in1 - m_shown.cbegin());
    int same = 0;
    while (first + same < std::min(m_shown.size(), rules.size()) &&
           m_shown.at(m_shown.size() - 1 - same) == rules.at(rules.size() - 1 - same)) {
        ++same;
    }
    const int gone = static_cast<int>(m_shown.size()) - first - same;
    const int come = static_cast<int>(rules.size()) - first - same;
    if (gone > 0) {
        beginRemoveRows({}, first, first + gone - 1);
        m_shown.remove(first, gone);
        endRemoveRows();
    }
    if (come > 0) {
        beginInsertRows({}, first, first + come - 1);
        m_shown = rules;
        endInsertRows();
    }
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int RuleRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant RuleRows::data(const QModelIndex &index, int role) const
{
    const auto &rows = m_table.state().rows;
    if (!index.isValid() || index.row() >= rows.size()) {
        return {};
    }
    const auto &row = rows.at(index.row());
    const bool isNamed = !row.values.name.trimmed().isEmpty();
    switch (role) {
    case Qt::DisplayRole:
        return plainLine(isNamed ? row.values.name : localized("No name"));
    case RuleRowDelegate::NameRole:
        return row.values.name;
    case Qt::CheckStateRole:
        return row.enabled ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole:
        return plainToolTip(row.values.name + u": "_s + saidOf(index.row()));
    case Qt::AccessibleDescriptionRole:
        return plainParagraphs(saidOf(index.row()));
    case RuleRowDelegate::SentenceRole:
        return plainParagraphs(m_table.sentenceOf(index.row()));
    case RuleRowDelegate::BadgeRole:
        return badgeOf(row);
    case RuleRowDelegate::IsTintRole:
        return !row.values.isLogin;
    default:
        return {};
    }
}

QString RuleRows::saidOf(int row) const
{
    return m_table.sentenceOf(row) + u' ' + m_table.reasonOf(row);
}

bool RuleRows::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const auto &rows = m_table.state().rows;
    if (!index.isValid() || index.row() >= rows.size()) {
        return false;
    }
    if (role == Qt::CheckStateRole) {
        m_editor.switchRule(rows.at(index.row()).objID, value.toInt() == Qt::Checked);
    } else if (role == RuleRowDelegate::NameRole) {
        m_editor.updateNameAtRow(value.toString(), index.row());
    }
    return true;
}

Qt::ItemFlags RuleRows::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable | Qt::ItemIsEditable;
}

RulesListView::RulesListView(RulesTableModel &table, RulesPreferencesViewController &editor,
    const Theme &theme, QWidget *parent)
    : QListView(parent)
    , m_table(table)
    , m_editor(editor)
{
    setObjectName(u"rulesTable"_s);
    setAccessibleName(localized("Rules"));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    auto *delegate = new RuleRowDelegate(theme, this);
    connect(delegate, &RuleRowDelegate::editingBegun, &m_editor,
        &RulesPreferencesViewController::updateNamesArray);
    setItemDelegate(delegate);
    const QScopedValueRollback mirrors(m_mirrors, true);
    m_rows = new RuleRows(m_table, m_editor, this);
    setModel(m_rows);
    // After the rows have become others: a reset takes the selection away.
    connect(&m_table, &RulesTableModel::changed, this, &RulesListView::refresh);
    connect(&theme, &Theme::changed, viewport(), qOverload<>(&QWidget::update));
    refresh();
}

QSize RulesListView::sizeHint() const
{
    return {QListView::sizeHint().width(), usualRows * RuleRowDelegate::rowHeight()};
}

QSize RulesListView::minimumSizeHint() const
{
    return {QListView::minimumSizeHint().width(), leastRows * RuleRowDelegate::rowHeight()};
}

void RulesListView::refresh()
{
    const QScopedValueRollback mirrors(m_mirrors, true);
    const auto &state = m_table.state();
    QItemSelection selection;
    for (const qsizetype row : state.selectedRows) {
        const QModelIndex index = model()->index(static_cast<int>(row), 0);
        selection.select(index, index);
    }
    const QModelIndex current = model()->index(static_cast<int>(state.lastSelected), 0);
    if (current.isValid() && current != currentIndex()) {
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void RulesListView::tellSelection()
{
    if (m_mirrors || m_rows->isChanging()) {
        return;
    }
    QList<qsizetype> rows;
    for (const QModelIndex &index : selectionModel()->selectedIndexes()) {
        rows << index.row();
    }
    m_table.selectRows(rows, currentIndex().row());
}

void RulesListView::selectionChanged(
    const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    tellSelection();
}

void RulesListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    tellSelection();
}

void RulesListView::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    // The keyboard has a row to act on.
    m_pressed = QModelIndex();
    if (m_table.state().selectedRows.empty() && model()->rowCount() > 0) {
        m_table.selectRow(0);
    }
}

void RulesListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    const auto places = RuleRowDelegate::placesIn(visualRect(index), {}, layoutDirection());
    // The first of two clicks may have been on something else that stood there.
    const bool isSecond = index.isValid() && index == m_pressed;
    if (isSecond && event->button() == Qt::LeftButton && !places.toggle.contains(place)) {
        m_editor.editRule();
    } else {
        mousePressEvent(event);
    }
}

void RulesListView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = indexAt(event->position().toPoint());
    QListView::mousePressEvent(event);
}

void RulesListView::keyPressEvent(QKeyEvent *event)
{
    const auto act = [event](auto command) {
        // What a held key would do again, nobody has seen yet.
        if (!event->isAutoRepeat()) {
            command();
        }
        event->accept();
    };
    // Not QKeySequence::Delete: on X11 that is Ctrl+D as well.
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        act([this] { m_editor.deleteRule(); });
    } else if (event->matches(QKeySequence::Undo)) {
        act([this] { m_editor.undo(); });
    } else if (event->matches(QKeySequence::Redo)) {
        act([this] { m_editor.redo(); });
    } else if (event->key() == Qt::Key_D && event->modifiers() == Qt::ControlModifier) {
        act([this] { m_editor.duplicateRule(); });
    } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
               state() != QAbstractItemView::EditingState) {
        act([this] { m_editor.editRule(); });
    } else {
        QListView::keyPressEvent(event);
    }
}

} // namespace quillon
