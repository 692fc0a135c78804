// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

namespace quillon {

/// One pill of a TokenField: a button that can be dragged away as plain text.
class Token : public QPushButton
{
    Q_OBJECT

public:
    static constexpr int widest = 220;    ///< then its end is left out
    static constexpr int pillHeight = 26; ///< where the letters are no larger

    /// `text` is what it is dragged as.
    Token(const QString &title, const QString &text, QWidget *parent);

    void setTitle(const QString &title);
    /// Why a click does nothing now, "" where it does.
    void setWhyNot(const QString &whyNot);
    QString text() const { return m_text; }
    /// Whether it is needed until dragEnded().
    bool isDragged() const { return m_isDragged; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A drag is about to begin.
    void dragBegan();
    /// It has ended, with or without a drop. Said in a turn of its own.
    void dragEnded();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drag();
    void endDrag();
    void showToolTip();

    QString m_name;  ///< as it came
    QString m_title; ///< what is shown of it
    QString m_text;
    QString m_whyNot;
    QPoint m_pressed;
    bool m_isDragged = false;
};

} // namespace quillon
