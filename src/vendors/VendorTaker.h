// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Whom the vendor field chooses for: an interface, or a rule in a form. Main thread.
class VendorTaker
{
public:
    /// Tells apart what is chosen for; what is typed for one is not meant for another.
    virtual QString device() const = 0;
    virtual bool canChoose() const = 0;
    /// Why it cannot choose, in the user's language.
    virtual QString whyNot() const = 0;
    /// The user chose a row of what is shown of the list; one that is not there is ignored.
    virtual void updateVendorTableSelectionWithRow(qsizetype row) = 0;

protected:
    ~VendorTaker() = default;
};

} // namespace quillon
