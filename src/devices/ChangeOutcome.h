// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// What became of a change.
struct ChangeOutcome
{
    /// The device has the address that was asked for, whatever the helper said. Where that cannot
    /// be read: the helper said so.
    bool isInPlace = false;
    /// The one that it has now, "" when that cannot be read.
    QString address = {};
    QString requested = {};
    /// A reply of their own tells whoever asked.
    bool isReported = false;
    /// The helper said that it set the address.
    bool isConfirmed = false;
    /// The helper could be asked; else nothing has touched the device.
    bool wasAsked = true;
    /// Why the device does not have the address, as the user was told; "" when it has, or when
    /// nothing is known.
    QString failure = {};
    /// The address that it has now says what became of the change: not so while its owner has not
    /// connected it again.
    bool isSettled = true;

    enum class Kind
    {
        Done,
        Notice, ///< something happened, but not what was asked for
        Failure,
    };
    Kind kind() const;
    /// What there is to say of it, for the window in which it was asked for.
    QString text() const;
};

} // namespace quillon
