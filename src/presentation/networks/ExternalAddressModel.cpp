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
{
    for (const QString &key : {m_key, keys::shouldUpdateExternalIP}) {
        m_observed.push_back(settings.addObserver(key, [this](const auto &) { Q_EMIT changed(); }));
    }
    connect(
        &externalAddress, &ExternalIPAddress::lookUpBegan, this, &ExternalAddressModel::changed);
    connect(
        &externalAddress, &ExternalIPAddress::lookUpEnded, this, &ExternalAddressModel::changed);
}

ExternalAddressModel::~ExternalAddressModel()
{
    for (const auto token : m_observed) {
        m_settings.removeObserver(token);
    }
}

QString ExternalAddressModel::text() const
{
    const QString stored = m_settings.getString(m_key);
    return isInAnyLanguage(stored, "Unknown...") ? localized("Unknown...") : stored;
}

bool ExternalAddressModel::isKnown() const
{
    const QString stored = m_settings.getString(m_key);
    return !stored.isEmpty() && !isInAnyLanguage(stored, "Unknown...");
}

ExternalAddressModel::Standing ExternalAddressModel::standing() const
{
    if (m_externalAddress.isLookingUp()) {
        return Standing::LookingUp;
    }
    if (m_externalAddress.hasFailed()) {
        return Standing::NoAnswer;
    }
    const bool isSwitchedOff = !m_settings.getBool(keys::shouldUpdateExternalIP);
    return isSwitchedOff && !isKnown() ? Standing::SwitchedOff : Standing::Told;
}

QString ExternalAddressModel::note() const
{
    switch (standing()) {
    case Standing::LookingUp:
        return localized("Looking it up…");
    case Standing::NoAnswer:
        return localized("No answer");
    case Standing::SwitchedOff:
        return localized("Look-up is off");
    case Standing::Told:
        break;
    }
    return {};
}

QString ExternalAddressModel::explanation() const
{
    switch (standing()) {
    case Standing::LookingUp:
        return localized("A public service is being asked under which address it sees you.");
    case Standing::NoAnswer:
        return isKnown() ? localized("The public service did not answer. This is what it said "
                                     "before. The button asks again.")
                         : localized("The public service did not answer with an address. The "
                                     "button asks again.");
    case Standing::SwitchedOff:
        return localized("It is not looked up by itself. The button asks a public service once.");
    case Standing::Told:
        break;
    }
    return {};
}

void ExternalAddressModel::refreshExternalIP()
{
    m_externalAddress.updateExternalIPAddress(true);
    Q_EMIT refreshButtonReset();
}

} // namespace quillon
