// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace quillon {

/// A text on one line, of which a part is left out where there is no room for it: it makes nothing
/// wider. Its tool tip has it in full.
class OneLineLabel : public QWidget
{
    Q_OBJECT

public:
    explicit OneLineLabel(Qt::TextElideMode leftOut = Qt::ElideRight, QWidget *parent = nullptr);

    void setLine(const QString &text);
    /// What shows it, for its look and its font.
    QLabel &label() const { return *m_label; }

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void fit();
    void followHeight();

    QLabel *m_label;
    Qt::TextElideMode m_leftOut;
    QString m_line;
    int m_height = 0; ///< that the label asked for
};

} // namespace quillon
