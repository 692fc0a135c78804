// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/FaceProgram.h"

#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "networks/SpecialNetworks.h"
#include "rules/Rule.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"
#include "vendors/VendorTable.h"

#include <QApplication>
#include <QFile>

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Of the range that is kept for documentation.
const QString radioAddress = u"00:00:5e:00:53:01"_s;

/// What a laptop tells of itself unless somebody has it tell less.
ExposureFacts exposed()
{
    using Answer = ExposureFacts::Answer;
    const auto octets = [](const char *hex) { return QByteArray::fromHex(hex); };
    return {.owner = u"NetworkManager"_s,
        .hostName = u"harbor-laptop"_s,
        .ipv4 = {.isUsed = Answer::Yes,
            .sendsName = Answer::Yes,
            .sendsIdentifier = Answer::Yes,
            .identifier = octets("0100005e005301"),
            .identifierMade = ExposureFacts::Made::OfAddressInUse},
        .ipv6 = {.isUsed = Answer::No},
        .ipv6Addresses = {{
            {.octets = octets("20010db8000000001234567890abcdef"), .hasEnd = true, .age = 2h},
            {.octets = octets("20010db800000000a1b2c3d4e5f60718"),
                .isTemporary = true,
                .hasEnd = true,
                .age = 2h},
            {.octets = octets("fe8000000000000002005efffe005301"), .isLinkLocal = true, .age = 2h},
        }},
        .avahi = {.isTold = Answer::Yes, .name = u"harbor-laptop.local"_s},
        .resolvedMdns = {.isTold = Answer::No},
        .resolvedLlmnr = {.isTold = Answer::No},
        .login = {
            .isUsed = Answer::Yes, .identity = u"alice@harbor.example"_s, .anonymousIdentity = {}}};
}

} // namespace

const QString FaceProgram::radio = u"wlp2s0"_s;
const QString FaceProgram::wire = u"enp1s0"_s;

FaceProgram::FaceProgram(const Appearance &appearance)
    : m_appearance(appearance)
{
    fillMachine();
    fillRegistry();
}

FaceProgram::~FaceProgram() = default;

void FaceProgram::fillMachine()
{
    machine.host.unplug(u"enp2s0"_s);
    machine.host.at(wire).ipv4.clear();
    machine.host.at(wire).active = false;
    machine.host.plug(
        {u"Wi-Fi"_s, radio, radioAddress, radioAddress, {u"192.0.2.10"_s}, true, u"192.0.2.1"_s});
    const QByteArray address = QByteArray::fromHex("62686648dc27");
    // Beside what every machine of fakes begins with.
    machine.random.bytes(static_cast<int>(address.size()));
    machine.random.put(address);
    machine.wifi.join({.device = radio,
        .ssid = u"Harbor Café"_s,
        .bssid = u"a4:2b:b0:11:22:33"_s,
        .noise = -92,
        .rssi = -54,
        .security = WiFiInterface::WPA2Personal,
        .transmitRate = 866.7,
        .channel = {.number = 36, .band = 2, .width = 3},
        .countryCode = u"DE"_s,
        .activePHYMode = 5,
        .mcsIndex = 9});
    machine.exposure.facts = exposed();
    machine.settings.registerDefaults(
        {{keys::displayNotifications, true}, {keys::showInMenu, true}});
    machine.settings.set(keys::externalIPAddress, u"203.0.113.7"_s);
    machine.settings.set(keys::vendorIDUpdatedDate, u"Last updated: 4 Nov 2026"_s);
}

void FaceProgram::fillRegistry()
{
    const QString csv = machine.data.filePath(u"oui.csv"_s);
    QFile file(csv);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("no registry");
    }
    file.write(
        "Registry,Assignment,Organization Name,Organization Address\r\n"
        "MA-L,00005E,\"Harbor Networks, Inc.\",12 Quay Street Harbor Town US 12345\r\n"
        "MA-L,02A001,Alder Radio Works,1 Mill Lane Alderton GB\r\n"
        "MA-L,02A002,Alpine Antennas and Measuring Instruments Company Limited,Peak Road 7 CH\r\n"
        "MA-L,02A003,Amber Devices,3 Shore Drive CA\r\n"
        "MA-L,02A004,Basalt Networks,Stone Street 9 IS\r\n"
        "MA-L,02A005,Cobalt Instruments,Blue Way 4 NO\r\n"
        "MA-L,02A006,Delta Ferries,Harbor Town US\r\n"
        "MA-L,02A007,Lantern Lights,Light Street 2 IE\r\n");
    file.close();
    if (!fillVendorTable(csv, machine.data.filePath(u"oui.db"_s))) {
        qFatal("the registry cannot be read");
    }
}

void FaceProgram::saveRule(const QVariantMap &values)
{
    const auto records = ManagedObjectContext::open(
        quillonModel(), machine.data.filePath(u"Quillon.sqlite"_s), machine.scheduler);
    if (!records) {
        qFatal("no records");
    }
    const ManagedObjectPtr rule = records.value()->insertNewObject(model::Rule);
    for (auto value = values.begin(); value != values.end(); ++value) {
        rule->setValue(value.key(), value.value());
    }
    if (records.value()->save()) {
        qFatal("the rule was not saved");
    }
}

QVariantMap FaceProgram::repeatedRule(const QString &name)
{
    return {{model::rule::device, radio}, {model::rule::name, name},
        {model::rule::network, anyNetwork}, {model::rule::enabled, true},
        {model::rule::isLogin, false}, {model::rule::action, Rule::changeAddress},
        {model::rule::changeAction, Rule::every}, {model::rule::timerMins, 5},
        {model::rule::address, u"Random Address"_s}, {model::rule::vendor, QString()}};
}

void FaceProgram::saveAddress(const QString &address, const QString &name)
{
    QVariantMap list = machine.settings.getDictionary(keys::savedAddresses);
    list[address] = QVariantMap{{savedentry::address, address}, {savedentry::name, name}};
    machine.settings.set(keys::savedAddresses, list);
}

void FaceProgram::start()
{
    m_program.emplace(machine.platform());
    m_interface.emplace(features(), machine.scheduler);
    m_interface->appearance.become(m_appearance);
    LaunchSequence &launch = m_program->launch();
    launch.awakeFromNib();
    launch.applicationWillFinishLaunching();
    launch.applicationDidFinishLaunching();
    machine.scheduler.runPending();
    features().mainWindow.changeInterfacefromPopup(radio);
    // The rules are looked at a second after the start, and what they count down ticks after
    // another.
    machine.scheduler.advance(3s);
    settle();
}

void FaceProgram::settle()
{
    machine.scheduler.runPending();
    // What grows within what grows is laid out a step at a time.
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

QList<QWidget *> FaceProgram::windows()
{
    QList<QWidget *> shown;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() != Qt::ToolTip) {
            shown.append(window);
        }
    }
    std::stable_partition(shown.begin(), shown.end(),
        [](const QWidget *window) { return window->windowType() == Qt::Window; });
    return shown;
}

} // namespace quillon::test
