// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/RuleVendor.h"

#include "base/Localized.h"
#include "vendors/VendorList.h"

namespace quillon {

RuleVendor::RuleVendor(VendorList &list)
    : m_list(list)
{
}

QString RuleVendor::whyNot() const
{
    return localized("Only a random address has a vendor");
}

void RuleVendor::updateVendorTableSelectionWithRow(qsizetype row)
{
    if (row >= 0 && row < m_list.rowCount()) {
        m_name = m_list.entry(row);
        Q_EMIT vendorFieldUpdated(m_name);
    }
}

void RuleVendor::setCanChoose(bool canChoose)
{
    if (canChoose != m_canChoose) {
        m_canChoose = canChoose;
        Q_EMIT vendorFieldUpdated(m_name);
    }
}

void RuleVendor::updateVendorSelection(const QString &name)
{
    m_list.clearFilter();
    m_name = name;
    Q_EMIT vendorFieldUpdated(name);
    Q_EMIT vendorSelected(name.isEmpty() ? localized(randomAddressChoice) : name);
}

} // namespace quillon
