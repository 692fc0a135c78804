// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace quillon {

class HistoryNote;
class Theme;

/// Draws the rows of the history, and edits notes in place. Return takes what was typed, and so
/// does leaving the field; Escape gives it up.
class HistoryNoteDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// A note is no book; longer ones that are there already can be edited too.
    static constexpr int longestNote = 10'000;

    HistoryNoteDelegate(HistoryNote &note, const Theme &theme, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(
        QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;

    /// It closes its editor itself at this moment.
    bool isClosing() const { return m_isClosing; }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    /// As a line that can be edited.
    QString shownText() const;

    HistoryNote &m_note;
    const Theme &m_theme;
    mutable bool m_isClosing = false;
};

} // namespace quillon
