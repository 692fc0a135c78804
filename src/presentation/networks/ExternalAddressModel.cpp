// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/ExternalAddressModel.h"

#include "base/Languages.h"
#include "base/Localized.h"
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

QString ExternalAddressModel::text() const
{
    const QString stored = m_settings.getString(m_key);
    return isInAnyLanguage(stored, "Unknown...") ? localized("Unknown...") : stored;
}

void ExternalAddressModel::refreshExternalIP()
{
    m_externalAddress.updateExternalIPAddress(true);
    Q_EMIT refreshButtonReset();
}

} // namespace quillon
