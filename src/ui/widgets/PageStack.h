// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

/// Pages of which one is shown. It takes the room that this one needs, at every width: what is
/// hidden has no place in a layout. (QStackedWidget is as tall as its tallest page wherever a text
/// in one of them breaks its lines.)
class PageStack : public QWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget *parent = nullptr);

    /// Takes the page; the first one is shown.
    void addWidget(QWidget *page);
    /// One of those that were added.
    void setCurrentWidget(QWidget *page);
    QWidget *currentWidget() const { return m_current; }

private:
    QWidget *m_current = nullptr;
};

} // namespace quillon
