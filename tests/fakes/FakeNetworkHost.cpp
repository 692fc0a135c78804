// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeNetworkHost.h"

#include "contract/Validation.h"
#include "platform/PortName.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

auto named(const QString &device)
{
    return [device](const FakeNetworkHost::Interface &each) { return each.device == device; };
}

FakeNetworkHost::Interface described(const QJsonObject &object)
{
    return {
        .port = object.value("port"_L1).toString(),
        .device = object.value("device"_L1).toString(),
        .factory = object.value("factory"_L1).toString(),
        .address = object.value("address"_L1).toString(),
        .ipv4 = object.value("ipv4"_L1).toVariant().toStringList(),
        .active = object.value("active"_L1).toBool(true),
        .router = object.value("router"_L1).toString(),
        .keepsAddress = object.value("keepsAddress"_L1).toBool(false),
        .broken = object.value("broken"_L1).toBool(false),
    };
}

} // namespace

FakeNetworkHost::FakeNetworkHost(const QString &name)
{
    QFile file(QStringLiteral(QUILLON_TEST_DATA "/machines/%1.json").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("No machine is described in %s", qUtf8Printable(file.fileName()));
    }
    const QJsonArray interfaces = QJsonDocument::fromJson(file.readAll()).array();
    if (interfaces.isEmpty()) {
        qFatal("%s describes no interface", qUtf8Printable(file.fileName()));
    }
    for (const QJsonValue &interface : interfaces) {
        plug(described(interface.toObject()));
    }
}

std::optional<QList<PortRecord>> FakeNetworkHost::ports()
{
    m_journal << u"ports"_s;
    if (m_unreadable) {
        return std::nullopt;
    }
    QList<PortRecord> records;
    for (const Interface &each : std::as_const(m_interfaces)) {
        if (!each.port.isEmpty() && !isSkippedPortName(each.port)) {
            records.append({each.port, each.device, each.factory, answer(each), each.router});
        }
    }
    return records;
}

InterfaceInfo FakeNetworkHost::info(const QString &device)
{
    m_journal << u"info "_s + device;
    if (m_unreadable) {
        return {.readFailed = true};
    }
    const auto found = std::find_if(m_interfaces.cbegin(), m_interfaces.cend(), named(device));
    return found == m_interfaces.cend() ? InterfaceInfo{} : answer(*found);
}

InterfaceInfo FakeNetworkHost::answer(const Interface &interface)
{
    if (interface.broken) {
        return {.readFailed = true};
    }
    return {
        .ipAddress = interface.ipv4.value(0),
        .macAddress = interface.address.toLower(),
        .status = interface.active ? u"active"_s : u"inactive"_s,
    };
}

void FakeNetworkHost::plug(const Interface &interface)
{
    unplug(interface.device);
    m_interfaces.append(interface);
}

void FakeNetworkHost::unplug(const QString &device)
{
    m_interfaces.removeIf(named(device));
}

bool FakeNetworkHost::rename(const QString &device, const QString &newName)
{
    if (std::any_of(m_interfaces.cbegin(), m_interfaces.cend(), named(newName))) {
        return false;
    }
    at(device).device = newName;
    return true;
}

bool FakeNetworkHost::giveAddress(const QString &device, const QString &address)
{
    const auto found = std::find_if(m_interfaces.begin(), m_interfaces.end(), named(device));
    const auto octets = contract::unicastAddress(address.toStdString());
    if (found == m_interfaces.end() || !octets) {
        return false;
    }
    if (!found->keepsAddress) {
        found->address = QString::fromStdString(contract::addressText(*octets));
    }
    return true;
}

FakeNetworkHost::Interface &FakeNetworkHost::at(const QString &device)
{
    const auto found = std::find_if(m_interfaces.begin(), m_interfaces.end(), named(device));
    if (found == m_interfaces.end()) {
        qFatal("The machine has no interface %s", qUtf8Printable(device));
    }
    return *found;
}

QString FakeNetworkHost::addressOf(const QString &device) const
{
    const auto found = std::find_if(m_interfaces.begin(), m_interfaces.end(), named(device));
    return found == m_interfaces.end() ? QString() : found->address.toLower();
}

} // namespace quillon::test
