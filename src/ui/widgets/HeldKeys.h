// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

/// Lets a key that presses something act once, however long it is held. Otherwise what the first
/// press opens or gives the keyboard to would be pressed by the repetitions, which nobody meant
/// for it. For the application's event filters; moving and typing go on repeating.
class HeldKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace quillon
