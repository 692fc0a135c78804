// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/vendors/VendorInfoModel.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "vendors/VendorLookup.h"

namespace quillon {

VendorInfoModel::VendorInfoModel(SettingsStore &settings)
    : m_settings(settings)
    , m_observed(
          settings.addObserver(keys::currentVendorData, [this](const auto &) { showVendor(); }))
{
    showVendor();
}

VendorInfoModel::~VendorInfoModel()
{
    m_settings.removeObserver(m_observed);
}

void VendorInfoModel::showVendor()
{
    const QVariantMap data = m_settings.getDictionary(keys::currentVendorData);
    // The registry's own texts have no translation and stay as they are.
    const auto text = [&data](const QString &key) {
        const QString stored = data.value(key).toString();
        return stored.isEmpty() ? stored : localized(stored);
    };
    m_state.update([&](State &state) {
        state.name = text(vendordata::vendorCurrentString);
        state.address = text(vendordata::vendorCurrentAddress);
        state.identifier = data.value(vendordata::vendorCurrentAssignment).toString();
        state.registry = text(vendordata::vendorCurrentRegistry);
    });
}

void VendorInfoModel::showVendorButton(bool shown)
{
    m_state.update([&](State &state) {
        state.buttonVisible = shown;
        state.popoverShown = state.popoverShown && shown;
    });
}

void VendorInfoModel::toggleVendorPopover()
{
    m_state.update(
        [](State &state) { state.popoverShown = !state.popoverShown && state.buttonVisible; });
}

void VendorInfoModel::popoverWillClose()
{
    m_state.update([](State &state) { state.popoverShown = false; });
}

} // namespace quillon
