// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/AlertPresenter.h"

namespace quillon {

/// Alerts as message boxes in front of everything else of the program.
class MessageAlerts : public AlertPresenter
{
public:
    int runModal(const Alert &alert) override;
    /// There is one answer, which resolves nothing.
    bool presentError(const Error &error) override;
};

} // namespace quillon
