// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

struct ChangeOutcome;

/// The line below the address field: what the text in the field is, and what can be done with it.
struct AddressFieldLine
{
    enum class Kind
    {
        Hint,
        Done,
        Notice,
        Failure,
    };

    Kind kind = Kind::Hint;
    QString text;

    bool operator==(const AddressFieldLine &) const = default;

    /// For `fieldText`, in display form, while the interface has the address `current`.
    static AddressFieldLine forText(const QString &fieldText, const QString &current);
    static AddressFieldLine forResult(const ChangeOutcome &outcome);
    static AddressFieldLine changing();
    static AddressFieldLine withoutHelper();
    static AddressFieldLine withoutInterface();
    /// There are others, but the selected one was taken away.
    static AddressFieldLine interfaceGone();
};

} // namespace quillon
