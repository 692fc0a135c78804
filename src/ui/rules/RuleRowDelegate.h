// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace quillon {

class Theme;

/// Draws the rows of rules: a switch, the name over what the rule does, a badge. The switch is
/// clicked, and toggled with the space bar; the name can be edited in its place.
class RuleRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// What a row holds beside its shown name, its switch and what is said of it.
    enum Role
    {
        SentenceRole = Qt::UserRole,
        BadgeRole,  ///< a word, "" for none
        IsTintRole, ///< the badge tells of something that is so now
        NameRole,   ///< as it came, and where a new one goes
    };
    /// Where the parts of a row are.
    struct Places
    {
        QRect toggle; ///< what is clicked
        QRect name;
        QRect sentence;
        QRect badge; ///< empty without one
    };

    RuleRowDelegate(const Theme &theme, QObject *parent);

    static Places placesIn(const QRect &row, const QString &badge, Qt::LayoutDirection direction);
    static int rowHeight();

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(
        QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;

Q_SIGNALS:
    /// The user is about to edit a name.
    void editingBegun() const;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

private:
    const Theme &m_theme;
};

} // namespace quillon
