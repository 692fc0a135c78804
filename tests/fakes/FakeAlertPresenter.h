// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/AlertPresenter.h"

#include <QList>

#include <functional>

namespace quillon::test {

/// A user who answers alerts as told beforehand.
class FakeAlertPresenter : public AlertPresenter
{
public:
    int runModal(const Alert &alert) override
    {
        alerts.append(alert);
        if (whileShown) {
            whileShown();
        }
        return answer;
    }
    bool presentError(const Error &error) override
    {
        errors.append(error);
        return resolvesErrors;
    }

    QList<Alert> alerts; ///< shown so far
    QList<Error> errors;
    int answer = 0; ///< the index of the button to choose
    bool resolvesErrors = false;
    /// Runs while an alert is open.
    std::function<void()> whileShown;
};

} // namespace quillon::test
