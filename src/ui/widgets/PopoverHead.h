// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace quillon {

class Sign;
class Theme;

/// What a popover is about, at its top; what can be done with it stands at the end of the line.
class PopoverHead : public QWidget
{
    Q_OBJECT

public:
    /// `icon` is a name of the theme's resources, "" for none.
    explicit PopoverHead(const Theme &theme, const QString &icon = {}, QWidget *parent = nullptr);

    void setTitle(const QString &text);
    void setIcon(const QString &icon);
    void addAtEnd(QWidget *control);

private:
    Sign *m_icon;
    QLabel *m_text;
    QHBoxLayout *m_line;
};

} // namespace quillon
