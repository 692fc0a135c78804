// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/ExternalAddressModel.h"

#include "base/SettingsKeys.h"
#include "networks/ExternalIPAddress.h"

namespace quillon {

ExternalAddressModel::ExternalAddressModel(
    SettingsStore &settings, ExternalIPAddress &externalAddress)
    : m_settings(settings)
    , m_externalAddress(externalAddress)
    , m_key(keys::externalIPAddress)
    , m_observed(settings.addObserver(m_key, [this](const auto &) { Q_EMIT changed(); }))
{
}

ExternalAddressModel::~ExternalAddressModel()
{
    m_settings.removeObserver(m_observed);
}

void ExternalAddressModel::refreshExternalIP()
{
    m_externalAddress.updateExternalIPAddress(true);
    Q_EMIT refreshButtonReset();
}

} // namespace quillon
