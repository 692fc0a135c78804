// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

class QMenu;
class QToolButton;

namespace quillon {

class Theme;

/// A field to search with: a lens with a menu of what to search for (Alt+Down), and a button that
/// clears. Escape clears too; in an empty field it leaves, as Down does.
class SearchField : public QLineEdit
{
    Q_OBJECT

public:
    struct Type
    {
        QString identifier;
        QString title;

        bool operator==(const Type &) const = default;
    };

    explicit SearchField(const Theme &theme, QWidget *parent = nullptr);

    /// `title` is what the field is called, and what it says while it is empty.
    void setTitle(const QString &title);
    const QString &title() const { return m_title; }
    /// Without types there is no menu.
    void setTypes(const QList<Type> &types, const QString &chosen);
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Each change that the user makes, clearing included.
    void searched(const QString &text);
    void typeChosen(const QString &identifier);
    /// The keyboard is wanted elsewhere.
    void left();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void clearByUser();
    void openTypes();
    void place();

    const Theme &m_theme;
    QToolButton *m_lens;
    QToolButton *m_clear;
    QMenu *m_menu;
    QString m_title;
    QList<Type> m_types;
    QString m_chosen;
};

} // namespace quillon
