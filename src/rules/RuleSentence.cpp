// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleSentence.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "devices/MenuItem.h"
#include "devices/RandomAddress.h"
#include "networks/SavedEntries.h"
#include "networks/SpecialNetworks.h"
#include "rules/RuleActions.h"
#include "rules/RuleValues.h"

#include <array>

namespace quillon {

namespace {

// One whole text for each case: a language may put its words in another order.

/// When a rule applies, in the order of the texts below.
enum class When
{
    OnNetwork,
    OnAnyNetwork,
    OnUnknownNetwork,
    AtLogin,
};
using Texts = std::array<const char *, 4>;

constexpr Texts leave{
    QT_TRANSLATE_NOOP("Quillon", "On %@, leave %@ as it is."),
    QT_TRANSLATE_NOOP("Quillon", "On any network, leave %@ as it is."),
    QT_TRANSLATE_NOOP("Quillon", "On an unknown network, leave %@ as it is."),
    "", // a login rule always changes the address
};
constexpr Texts giveRandom{
    QT_TRANSLATE_NOOP("Quillon", "On %@, give %@ a random address once."),
    QT_TRANSLATE_NOOP("Quillon", "On any network, give %@ a random address once."),
    QT_TRANSLATE_NOOP("Quillon", "On an unknown network, give %@ a random address once."),
    QT_TRANSLATE_NOOP("Quillon", "At login, give %@ a random address."),
};
constexpr Texts giveRandomBy{
    QT_TRANSLATE_NOOP("Quillon", "On %@, give %@ a random address by %@ once."),
    QT_TRANSLATE_NOOP("Quillon", "On any network, give %@ a random address by %@ once."),
    QT_TRANSLATE_NOOP("Quillon", "On an unknown network, give %@ a random address by %@ once."),
    QT_TRANSLATE_NOOP("Quillon", "At login, give %@ a random address by %@."),
};
/// The English for one minute of the next ones.
constexpr Texts giveEveryMinute{
    "On %@, give %@ a new random address every minute.",
    "On any network, give %@ a new random address every minute.",
    "On an unknown network, give %@ a new random address every minute.",
    "", // a login rule acts once
};
constexpr Texts giveEvery{
    QT_TRANSLATE_N_NOOP("Quillon", "On %@, give %@ a new random address every %n minutes."),
    QT_TRANSLATE_N_NOOP(
        "Quillon", "On any network, give %@ a new random address every %n minutes."),
    QT_TRANSLATE_N_NOOP(
        "Quillon", "On an unknown network, give %@ a new random address every %n minutes."),
    "",
};
constexpr Texts giveAddress{
    QT_TRANSLATE_NOOP("Quillon", "On %@, give %@ the address %@."),
    QT_TRANSLATE_NOOP("Quillon", "On any network, give %@ the address %@."),
    QT_TRANSLATE_NOOP("Quillon", "On an unknown network, give %@ the address %@."),
    QT_TRANSLATE_NOOP("Quillon", "At login, give %@ the address %@."),
};

When whenOf(const RuleValues &rule)
{
    if (rule.isLogin) {
        return When::AtLogin;
    }
    if (rule.network == anyNetwork) {
        return When::OnAnyNetwork;
    }
    return rule.network == anUnknownNetwork ? When::OnUnknownNetwork : When::OnNetwork;
}

QString networkName(const RuleValues &rule, const RuleNames &names)
{
    // One that is no longer saved is still met by the rule.
    const QString name = names.networks.value(rule.network, rule.ssid);
    return name.isEmpty() ? rule.network : name;
}

QString addressName(const QString &address, const RuleNames &names)
{
    const QString name = names.addresses.value(address);
    return name.isEmpty() ? address : name;
}

/// The organization of a vendor that random addresses are taken from; "" for none.
QString vendorName(const QString &vendor)
{
    return vendorPrefix(vendor) ? vendor.left(vendor.lastIndexOf(u'(')).trimmed() : QString();
}

} // namespace

RuleNames RuleNames::of(const SettingsStore &settings, const DeviceTable &devices)
{
    RuleNames names;
    for (const SavedEntry &entry : savedEntries(settings, keys::savedNetworks)) {
        names.networks.insert(entry.bssid.value_or(QString()), entry.name.value_or(QString()));
    }
    for (const SavedEntry &entry : savedEntries(settings, keys::savedAddresses)) {
        names.addresses.insert(entry.address.value_or(QString()), entry.name.value_or(QString()));
    }
    const DeviceRecords records = devices.devices();
    for (auto record = records.begin(); record != records.end(); ++record) {
        names.devices.insert(record.key(), deviceString(*record, record.key()));
    }
    return names;
}

QString deviceString(const DeviceRecord &record, const QString &device)
{
    return record.shownInterface() + titleSeparator + device;
}

QString ruleSentence(const RuleValues &rule, const RuleNames &names)
{
    const When when = whenOf(rule);
    QStringList values;
    if (when == When::OnNetwork) {
        values << networkName(rule, names);
    }
    values << names.devices.value(rule.device, rule.device);
    const auto say = [&](const Texts &texts) {
        return filled(localized(texts.at(static_cast<std::size_t>(when))), values);
    };
    if (!rule.isLogin && rule.action != Rule::changeAddress) {
        return say(leave);
    }
    if (!isRandomAddress(rule.address)) {
        values << addressName(rule.address, names);
        return say(giveAddress);
    }
    if (!rule.isLogin && rule.changeAction == Rule::every) {
        const auto place = static_cast<std::size_t>(when);
        return filled(
            localized(giveEveryMinute.at(place), giveEvery.at(place), rule.timerMins), values);
    }
    const QString vendor = vendorName(rule.vendor);
    if (vendor.isEmpty()) {
        return say(giveRandom);
    }
    values << vendor;
    return say(giveRandomBy);
}

} // namespace quillon
