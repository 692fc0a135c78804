// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace quillon {

class Theme;

/// What stands where a list or a card would be: a picture, one sentence, and one button where
/// something can be done about it.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    /// `icon` is a name of the theme's resources.
    EmptyState(const Theme &theme, const QString &icon, QWidget *parent = nullptr);

    /// Without an `action` there is no button.
    void say(const QString &sentence, const QString &action = {});
    QString sentence() const;
    QPushButton &button() const { return *m_button; }

Q_SIGNALS:
    void acted();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    QString m_icon;
    QLabel *m_sentence;
    QPushButton *m_button;
};

} // namespace quillon
