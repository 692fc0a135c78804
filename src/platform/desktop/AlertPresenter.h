// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QStringList>

namespace quillon {

/// A question or a message that the user has to answer before anything else.
struct Alert
{
    QString message;
    QString informativeText;
    QStringList buttons;
    int defaultButton = 0; ///< the one that Return chooses

    bool operator==(const Alert &) const = default;
};

/// Shows alerts and waits for the answer; timers and events go on meanwhile. Main thread.
class AlertPresenter
{
public:
    virtual ~AlertPresenter() = default;

    /// The index of the chosen button; closing the alert chooses the last one.
    virtual int runModal(const Alert &alert) = 0;
    /// Tells the user of a failure. True when the user resolved it (asked to try again).
    virtual bool presentError(const Error &error) = 0;
};

} // namespace quillon
