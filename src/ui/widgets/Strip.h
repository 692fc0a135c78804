// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;
class QToolButton;

namespace quillon {

class Theme;

/// A sentence across a card or a window that asks to be looked at: amber, with one button that does
/// something about it, or with a cross that takes it away. It is hidden while it says nothing.
class Strip : public QFrame
{
    Q_OBJECT

public:
    explicit Strip(const Theme &theme, QWidget *parent = nullptr);

    /// Shows the sentence and announces it once. With an empty `action` there is a cross.
    void say(const QString &sentence, const QString &action = {});
    void clear();
    QString sentence() const;
    /// The button, for its state while it is busy.
    QPushButton &button() const { return *m_button; }

Q_SIGNALS:
    void acted();
    /// By its cross; it has hidden itself.
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    QLabel *m_sentence;
    QPushButton *m_button;
    QToolButton *m_cross;
};

} // namespace quillon
