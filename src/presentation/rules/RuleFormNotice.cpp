// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleFormNotice.h"

#include "base/Localized.h"
#include "devices/RandomAddress.h"
#include "rules/RuleActions.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Form = RuleFormModel;

/// Only a radio is on networks with names.
bool isOfRadio(const Form::State &form)
{
    return form.networks.size() > 1;
}

QString aboutDevice(const Form::State &form, const ChosenEntries &chosen)
{
    const QString device = form.devices.at(form.device).stored;
    if (device.isEmpty()) {
        return localized("No interface here can be changed.");
    }
    if (device != chosen.device) {
        return filled(
            localized("The rule was made for %@, which is not here any more."), {chosen.device});
    }
    return form.kind == Form::Kind::Login && isOfRadio(form)
               ? localized("Login rules do not act on Wi-Fi.")
               : QString();
}

QString notSavedAnyMore(const QString &lost)
{
    return filled(localized("The rule was made for %@, which is not saved any more."), {lost});
}

QString aboutNetwork(const Form::State &form, const ChosenEntries &chosen)
{
    const RuleChoice &network = form.networks.at(form.network);
    if (network.kind == RuleChoice::Kind::Unsaved) {
        return filled(localized("%@ is not saved: press its heart first."), {network.title});
    }
    const bool isLost = isOfRadio(form) && network.bssid != chosen.network.bssid;
    return isLost ? notSavedAnyMore(chosen.network.title) : QString();
}

QString aboutAddress(const Form::State &form, const ChosenEntries &chosen)
{
    const bool isLost = form.canSelectAddress && form.address == 0 && !chosen.address.isEmpty();
    return isLost ? notSavedAnyMore(chosen.address) : QString();
}

QString aboutVendor(const Form::State &form)
{
    if (!form.canSelectVendor || form.vendor.isEmpty() || isRandomAddress(form.vendor)) {
        return {};
    }
    static const QRegularExpression assignment(u"^[0-9A-Fa-f]{6}$"_s);
    if (!assignment.match(vendorPrefix(form.vendor).value_or(QString())).hasMatch()) {
        return filled(localized("“%@” is no vendor: choose one from the list."), {form.vendor});
    }
    return form.canChooseTimerMins
               ? localized("Repeated addresses have the vendor of the main window, not this one.")
               : QString();
}

} // namespace

QString ruleFormNotice(const RuleFormModel::State &form, const ChosenEntries &chosen)
{
    for (const QString &notice : {aboutDevice(form, chosen), aboutNetwork(form, chosen),
             aboutAddress(form, chosen), aboutVendor(form)}) {
        if (!notice.isEmpty()) {
            return notice;
        }
    }
    return {};
}

} // namespace quillon
