// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Rule.h"

#include "store/model/QuillonModel.h"

#include <utility>

namespace quillon {

FetchRequest Rule::fetchRequest()
{
    return {.entity = model::Rule, .predicate = {}, .order = {}};
}

Rule::Rule(ManagedObjectPtr object)
    : m_object(std::move(object))
{
}

QString Rule::objID() const
{
    return m_object ? m_object->uriRepresentation() : QString();
}

QVariant Rule::value(const QString &attribute) const
{
    return m_object ? m_object->value(attribute) : QVariant();
}

void Rule::setValue(const QString &attribute, const QVariant &value) const
{
    if (m_object) {
        m_object->setValue(attribute, value);
    }
}

int Rule::action() const
{
    return value(model::rule::action).toInt();
}

bool Rule::active() const
{
    return value(model::rule::active).toBool();
}

QString Rule::address() const
{
    return value(model::rule::address).toString();
}

int Rule::changeAction() const
{
    return value(model::rule::changeAction).toInt();
}

QString Rule::device() const
{
    return value(model::rule::device).toString();
}

bool Rule::enabled() const
{
    return value(model::rule::enabled).toBool();
}

bool Rule::isLogin() const
{
    return value(model::rule::isLogin).toBool();
}

QString Rule::name() const
{
    return value(model::rule::name).toString();
}

QString Rule::network() const
{
    return value(model::rule::network).toString();
}

QString Rule::ssid() const
{
    return value(model::rule::ssid).toString();
}

bool Rule::ssidDefined() const
{
    return value(model::rule::ssidDefined).toBool();
}

int Rule::timerMins() const
{
    return value(model::rule::timerMins).toInt();
}

QString Rule::vendor() const
{
    return value(model::rule::vendor).toString();
}

void Rule::setAction(int action) const
{
    setValue(model::rule::action, action);
}

void Rule::setActive(bool active) const
{
    setValue(model::rule::active, active);
}

void Rule::setAddress(const QString &address) const
{
    setValue(model::rule::address, address);
}

void Rule::setChangeAction(int changeAction) const
{
    setValue(model::rule::changeAction, changeAction);
}

void Rule::setDevice(const QString &device) const
{
    setValue(model::rule::device, device);
}

void Rule::setEnabled(bool enabled) const
{
    setValue(model::rule::enabled, enabled);
}

void Rule::setIsLogin(bool isLogin) const
{
    setValue(model::rule::isLogin, isLogin);
}

void Rule::setName(const QString &name) const
{
    setValue(model::rule::name, name);
}

void Rule::setNetwork(const QString &network) const
{
    setValue(model::rule::network, network);
}

void Rule::setSsid(const QString &ssid) const
{
    setValue(model::rule::ssid, ssid);
}

void Rule::setSsidDefined(bool ssidDefined) const
{
    setValue(model::rule::ssidDefined, ssidDefined);
}

void Rule::setTimerMins(int timerMins) const
{
    setValue(model::rule::timerMins, timerMins);
}

void Rule::setVendor(const QString &vendor) const
{
    setValue(model::rule::vendor, vendor);
}

} // namespace quillon
