// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

/// Lets the buttons whose events it filters act once when they are double-clicked: who clicks twice
/// out of habit wants one copy made, or one thing deleted.
class ClicksOnce : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace quillon
