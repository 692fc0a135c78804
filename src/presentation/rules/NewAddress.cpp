// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/NewAddress.h"

#include "base/SettingsKeys.h"
#include "devices/RandomAddress.h"
#include "networks/SavedEntries.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// One in four addresses begins with a single digit, and is malformed inside a vendor's prefix.
constexpr int attempts = 64;
constexpr qsizetype wholeLength = 17;

} // namespace

QString newAddress(const RandomAddress &random, const QString &device, const QString &vendor)
{
    static const QRegularExpression whole(u"^[0-9a-f]{2}(:[0-9a-f]{2}){5}$"_s);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QString text = random.addressForDevice(device, vendor).toLower();
        const QString address = text.rightJustified(wholeLength, u'0');
        if (whole.match(address).hasMatch()) {
            return address;
        }
    }
    return {};
}

QString nameForNewAddress(const RuleFormModel::State &form)
{
    const RuleChoice &network = form.networks.at(form.network);
    if (form.kind == RuleFormModel::Kind::Network && !network.bssid.isEmpty() &&
        !network.title.isEmpty()) {
        return network.title;
    }
    return form.name.isEmpty() ? form.devices.at(form.device).title : form.name;
}

void saveNewAddress(SettingsStore &settings, const QString &address, const QString &name)
{
    const SavedEntries saved = savedEntries(settings, keys::savedAddresses);
    saveEntry(settings, keys::savedAddresses, address,
        {.name = distinctName(saved, address, name, address), .address = address});
}

} // namespace quillon
