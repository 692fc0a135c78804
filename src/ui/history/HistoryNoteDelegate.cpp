// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/history/HistoryNoteDelegate.h"

#include "base/Localized.h"
#include "presentation/history/HistoryNote.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QLineEdit>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

HistoryNoteDelegate::HistoryNoteDelegate(HistoryNote &note, const Theme &theme, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_note(note)
    , m_theme(theme)
{
    connect(this, &QAbstractItemDelegate::closeEditor, this,
        [this](QWidget *, QAbstractItemDelegate::EndEditHint hint) {
            const QScopedValueRollback closing(m_isClosing, true);
            if (hint == QAbstractItemDelegate::RevertModelCache) {
                m_note.giveUp();
            }
        });
}

void HistoryNoteDelegate::initStyleOption(
    QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // In a mirrored window as well a text is read its own way: an address would have its octets
    // exchanged.
    const bool isMirrored = option->direction == Qt::RightToLeft;
    option->direction = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    option->displayAlignment =
        Qt::AlignVCenter | Qt::AlignAbsolute | (isMirrored ? Qt::AlignRight : Qt::AlignLeft);
}

void HistoryNoteDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    painter->setPen(m_theme.colors().surfaceBorder);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

QWidget *HistoryNoteDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const
{
    if (!m_note.isEditing()) {
        return nullptr;
    }
    auto *editor = new QLineEdit(parent);
    editor->setObjectName(u"noteEditor"_s);
    editor->setProperty("look", u"cell"_s);
    editor->setAccessibleName(localized("Note"));
    editor->setToolTip(plainToolTip(localized("Return saves the note, Escape gives it up.")));
    editor->setMaxLength(std::max(longestNote, static_cast<int>(m_note.text().size())));
    connect(editor, &QLineEdit::textEdited, &m_note, &HistoryNote::type);
    return editor;
}

void HistoryNoteDelegate::setEditorData(QWidget *editor, const QModelIndex &) const
{
    auto *field = static_cast<QLineEdit *>(editor);
    // It is asked for again whenever the rows say something else; what is typed stays.
    if (m_note.isEditing() && !field->isModified()) {
        field->setText(shownText());
    }
}

void HistoryNoteDelegate::setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const
{
    const QScopedValueRollback closing(m_isClosing, true);
    m_note.end();
}

void HistoryNoteDelegate::updateEditorGeometry(
    QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    // The ring of the keyboard lies around it, and within the table.
    constexpr int room = 2 * Theme::ringWidth;
    editor->setGeometry(option.rect.adjusted(room, room, -room, -room));
}

QString HistoryNoteDelegate::shownText() const
{
    QString line = m_note.text();
    std::ranges::replace_if(
        line,
        [](QChar character) {
            return character.category() == QChar::Other_Control ||
                   character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        },
        u' ');
    return line;
}

} // namespace quillon
