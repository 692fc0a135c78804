// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "face/SceneSteps.h"
#include "face/SceneSubjects.h"

#include <QMenu>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void saveManyAddresses(FaceProgram &program)
{
    for (int index = 0; index < 40; ++index) {
        const QString address = u"02:00:5e:00:54:%1"_s.arg(index, 2, 16, QChar(u'0'));
        program.saveAddress(address, index % 3 == 0 ? address : u"Room %1"_s.arg(index));
    }
}

void openWordyVendor(FaceProgram &program)
{
    program.machine.settings.set(keys::currentVendorData,
        QVariantMap{{vendordata::vendorCurrentString, QString(60, u'W')},
            {vendordata::vendorCurrentAddress,
                u"Room 1208-09, Research Building, Information Port, No. 1, Harbor Road, Western "
                "District, Springfield Springfield Kansas US 518000, rear building"_s},
            {vendordata::vendorCurrentAssignment, u"02A005"_s},
            {vendordata::vendorCurrentRegistry, u"MA-L"_s}});
    program.settle();
    program.features().vendors.info.toggleVendorPopover();
}

/// A name that is as long as one can be, from somebody who likes that.
void joinLongName(FaceProgram &program)
{
    program.machine.wifi.interface->ssid = u"Free guest network of the harbor"_s;
    program.machine.wifi.interface->security = WiFiInterface::WPAEnterpriseMixed;
}

void openNetwork(FaceProgram &program)
{
    program.features().networks.info.toggleNetworkInfoPopover();
    constexpr int readings = 60;
    for (int reading = 0; reading < readings; ++reading) {
        program.machine.wifi.interface->rssi = -54 - (reading * 7) % 11;
        program.machine.wifi.interface->noise = -92 + reading % 3;
        program.machine.scheduler.advance(3s);
    }
}

/// Nobody tells anything of what the network sees.
void knowNothing(FaceProgram &program)
{
    program.machine.exposure.facts = {};
}

/// The longest of everything.
void giveEverythingAway(FaceProgram &program)
{
    ExposureFacts &facts = program.machine.exposure.facts;
    facts.hostName = QString(60, u'w') + u".harbor.example"_s;
    facts.ipv4.identifier = QByteArray(130, '\xab');
    facts.ipv4.identifierMade = ExposureFacts::Made::Fixed;
    facts.ipv6Addresses = QList<ExposureFacts::Ipv6Address>(
        40, {.octets = QByteArray::fromHex("20010db8aaaabbbb1234567890abcdef")});
}

void openVendors(FaceProgram &program)
{
    program.features().vendors.field.showVendorViewPopover();
}

void typeVendor(FaceProgram &program)
{
    program.features().vendors.field.controlTextDidChange(u"al"_s);
}

void typeUnknownVendor(FaceProgram &program)
{
    program.features().vendors.field.controlTextDidChange(u"xyz"_s);
}

void openMenu(const QString &name)
{
    auto &button = FaceProgram::part<QWidget>(u"fileMenuButton"_s);
    FaceProgram::part<QMenu>(name).popup(button.mapToGlobal(QPoint(0, button.height())));
}

using P = FaceProgram;

} // namespace

QList<FaceScene> popoverScenes()
{
    return {
        {u"popover-hardware"_s, nullptr,
            [](P &program) {
                randomize(program);
                program.settle();
                program.features().mainWindow.toggleHardwarePopover();
            }},
        {u"popover-hardware-wired"_s, nullptr,
            [](P &program) {
                program.features().networks.info.showNetworkButton(false);
                program.features().mainWindow.toggleHardwarePopover();
            }},
        {u"popover-saved-addresses"_s, saveAddresses,
            [](P &program) { program.features().networks.savedLists.toggleSoftwarePopover(); }},
        {u"popover-saved-addresses-no-helper"_s,
            [](P &program) {
                saveAddresses(program);
                removeHelper(program);
            },
            [](P &program) { program.features().networks.savedLists.toggleSoftwarePopover(); }},
        {u"popover-saved-addresses-empty"_s, nullptr,
            [](P &program) { program.features().networks.savedLists.toggleSoftwarePopover(); }},
        {u"popover-saved-addresses-many"_s, saveManyAddresses,
            [](P &program) { program.features().networks.savedLists.toggleSoftwarePopover(); }},
        {u"popover-network"_s, nullptr, openNetwork},
        {u"popover-network-long"_s, joinLongName, openNetwork},
        {u"popover-network-not-known"_s, knowNothing, openNetwork},
        {u"popover-network-traces"_s, giveEverythingAway, openNetwork},
        {u"popover-vendor"_s, nullptr,
            [](P &program) { program.features().vendors.info.toggleVendorPopover(); }},
        {u"popover-vendor-long"_s, nullptr, openWordyVendor},
        {u"popover-rules-many"_s, saveManyRules,
            [](P &program) { program.features().rules.list.toggleRulesPopover(); }},
        {u"popover-rules"_s, saveRules,
            [](P &program) { program.features().rules.list.toggleRulesPopover(); }},
        {u"popover-rules-empty"_s, nullptr,
            [](P &program) { program.features().rules.list.toggleRulesPopover(); }},
        {u"popover-read-me"_s, removeHelper,
            [](P &program) { program.features().readMe.toggleReadMePopover(); }},
        {u"vendors"_s, nullptr, openVendors},
        {u"vendors-typed"_s, nullptr, typeVendor},
        {u"vendors-none-found"_s, nullptr, typeUnknownVendor},
        {u"file-menu"_s, saveRules, [](P &) { openMenu(u"fileMenu"_s); }},
    };
}

} // namespace quillon::test
