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
    static constexpr int widest = 220; ///< then its end is left out

    /// `text` is what it is dragged as.
    Token(const QString &title, const QString &text, QWidget *parent);

    void setTitle(const QString &title);
    /// Why a click does nothing now, "" where it does.
    void setWhyNot(const QString &whyNot);
    QString text() const { return m_text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// `drag` is about to begin. It is destroyed when it has ended, with or without a drop, also
    /// when the token has gone meanwhile.
    void dragBegan(QObject *drag);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drag();
    void showToolTip();

    QString m_name; ///< as it came
    QString m_title;
    QString m_text;
    QString m_whyNot;
    QPoint m_pressed;
};

} // namespace quillon
