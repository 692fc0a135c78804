// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/ChangesUnderWay.h"

#include <QString>

namespace quillon {

/// What decides which of the main window's buttons that change an address can be used, and what the
/// others say of it.
struct ChangeButtons
{
    enum class Selected
    {
        Present,
        Gone, ///< an interface that is not there
        None,
    };

    // What could be done if nothing else were in the way.
    bool canRandomize = false;
    bool canApply = false;
    bool canRestore = false;

    bool isHelperInstalled = false;
    bool hasFactoryAddress = false;
    Selected selected = Selected::Present;
    /// An address of the selected interface is being changed, whoever asked for it.
    bool isChanging = false;
    ChangeRequest busy = ChangeRequest::None; ///< the button that asked for it

    bool isEnabled(ChangeRequest button) const;
    /// Why it is disabled, or what it is busy with; "" while it can be used.
    QString whyNot(ChangeRequest button) const;

private:
    bool isPossible(ChangeRequest button) const;
};

} // namespace quillon
