// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorRow.h"

#include "base/Localized.h"
#include "presentation/vendors/VendorInfoModel.h"
#include "ui/vendors/VendorDetails.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int popoverWidth = 330;

} // namespace

VendorRow::VendorRow(VendorInfoModel &model, const Theme &theme)
    : PopoverRow(theme, localized("Vendor"), popoverWidth)
    , m_model(model)
{
    setObjectName(u"vendorButton"_s);
    connect(this, &RowButton::clicked, &m_model, &VendorInfoModel::toggleVendorPopover);
    connect(this, &PopoverRow::popoverClosed, &m_model, &VendorInfoModel::popoverWillClose);
    connect(&m_model, &VendorInfoModel::changed, this, &VendorRow::refresh);
    refresh();
}

PopoverDetails *VendorRow::makeDetails()
{
    return new VendorDetails(m_model, theme());
}

void VendorRow::refresh()
{
    const auto &state = m_model.state();
    setHasPopover(state.buttonVisible);
    setValue(state.name, state.buttonVisible ? ValueLook::Text : ValueLook::Muted);
    setPopoverShown(state.popoverShown);
}

} // namespace quillon
