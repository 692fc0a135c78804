// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/FaceScenes.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "store/model/QuillonModel.h"
#include "ui/widgets/TokenField.h"

#include <QAbstractButton>
#include <QMenu>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void randomize(FaceProgram &program)
{
    program.features().mainWindow.randomizeAddress();
}

template <FakeHelper::Mood mood>
void randomizeBy(FaceProgram &program)
{
    program.machine.helper.mood = mood;
    randomize(program);
}

void type(FaceProgram &program, const QString &text)
{
    program.features().mainWindow.editField(text);
}

void removeHelper(FaceProgram &program)
{
    program.machine.helper.installed = false;
}

void saveAddresses(FaceProgram &program)
{
    program.saveAddress(u"02:00:5e:00:53:0a"_s, u"Home"_s);
    program.saveAddress(u"02:00:5e:00:53:0b"_s, u"Office"_s);
    program.saveAddress(u"02:00:5e:00:53:0c"_s, u"Guest lab"_s);
    program.saveAddress(u"02:00:5e:00:53:0d"_s, u"02:00:5e:00:53:0d"_s);
    program.saveAddress(u"02:00:5e:00:53:0e"_s, u"The old printer on the third floor, east wing"_s);
}

void saveManyAddresses(FaceProgram &program)
{
    for (int index = 0; index < 40; ++index) {
        const QString address = u"02:00:5e:00:54:%1"_s.arg(index, 2, 16, QChar(u'0'));
        program.saveAddress(address, index % 3 == 0 ? address : u"Room %1"_s.arg(index));
    }
}

void saveManyRules(FaceProgram &program)
{
    for (int index = 0; index < 30; ++index) {
        auto rule = FaceProgram::repeatedRule(u"Rule %1"_s.arg(index));
        rule[model::rule::enabled] = index == 0;
        program.saveRule(rule);
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

void saveRules(FaceProgram &program)
{
    program.saveRule(FaceProgram::repeatedRule(u"Harbor Café"_s));
    for (const auto &name : {u"Office"_s, u"Any network that has no rule of its own"_s}) {
        QVariantMap rule = FaceProgram::repeatedRule(name);
        rule[u"enabled"_s] = false;
        program.saveRule(rule);
    }
}

void leaveNetwork(FaceProgram &program)
{
    program.machine.wifi.leave();
    auto &radio = program.machine.host.at(FaceProgram::radio);
    radio.ipv4.clear();
    radio.router.clear();
    radio.active = false;
    program.machine.settings.set(keys::externalIPAddress, u"Unknown..."_s);
}

void switchRadioOff(FaceProgram &program)
{
    leaveNetwork(program);
    program.machine.radioSwitch.turn(true);
}

void loseHelper(FaceProgram &program)
{
    program.machine.helper.installed = false;
    program.features().helper.updateHelperInstalledStatus();
}

void unplugEverything(FaceProgram &program)
{
    program.machine.host.unplug(FaceProgram::radio);
    program.machine.host.unplug(FaceProgram::wire);
    program.machine.wifi.interface.reset();
}

void unplugRadio(FaceProgram &program)
{
    program.machine.host.unplug(FaceProgram::radio);
    program.machine.wifi.interface.reset();
    program.machine.networkChanges.networkChanges();
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

void openSavedItems(FaceProgram &program)
{
    program.features().networks.savedNetworks.addCurrentNetworkToSavedList();
    program.features().presence.goTo(Destination::SavedItems);
    program.settle();
}

/// What the first token of the field opens.
void openToken(FaceProgram &program, const QString &field)
{
    openSavedItems(program);
    for (QWidget *widget : QApplication::allWidgets()) {
        auto *tokens = qobject_cast<TokenField *>(widget);
        if (tokens != nullptr && tokens->isVisible() && tokens->accessibleName() == field) {
            Q_EMIT tokens->opened(0);
            return;
        }
    }
    qFatal("no %s", qUtf8Printable(field));
}

void removeFavorite(FaceProgram &program)
{
    program.features().networks.savedLists.chooseFavoriteButton();
    program.settle();
    program.features().networks.savedLists.chooseFavoriteButton();
}

void openOverview(FaceProgram &program)
{
    program.features().presence.goTo(Destination::Overview);
    program.settle();
}

/// Another interface with a long name, and one that was taken away.
void plugMore(FaceProgram &program)
{
    saveRules(program);
    program.machine.host.plug({u"USB 10/100/1000 LAN of the docking station on the desk"_s,
        u"enx00005e005310"_s, u"00:00:5e:00:53:10"_s, u"02:00:5e:00:53:10"_s, {}});
    program.machine.host.plug(
        {u"Bridge"_s, u"br0"_s, u"00:00:5e:00:53:11"_s, u"00:00:5e:00:53:11"_s, {}});
    program.machine.settings.set(keys::deviceDict,
        QVariantMap{{FaceProgram::wire,
            QVariantMap{{record::vendor,
                u"An organization whose name is as long as the registry admits (02A005)"_s}}}});
}

void openBusyOverview(FaceProgram &program)
{
    openOverview(program);
    program.machine.host.unplug(u"br0"_s);
    program.machine.networkChanges.networkChanges();
    program.features().overview.controller()->randomize(2);
    program.settle();
    program.machine.helper.mood = FakeHelper::Mood::Refusing;
    program.features().overview.controller()->randomize(0);
    program.settle();
    program.machine.helper.mood = FakeHelper::Mood::Hanging;
    program.features().overview.controller()->randomize(1);
}

void plugMany(FaceProgram &program)
{
    for (int index = 0; index < 40; ++index) {
        const QString address = u"00:00:5e:00:54:%1"_s.arg(index, 2, 16, QChar(u'0'));
        program.machine.host.plug(
            {u"Ethernet"_s, u"eth%1"_s.arg(index), address, address, {}, index % 3 == 0});
    }
}

using P = FaceProgram;

const QList<FaceScene> scenes{
    {u"main-window"_s, nullptr, randomize},
    {u"plain"_s, nullptr, nullptr},
    {u"typed"_s, nullptr, [](P &program) { type(program, u"02:00:5E:10:AB:CD"_s); }},
    {u"without-colons"_s, nullptr, [](P &program) { type(program, u"02005E10ABCD"_s); }},
    {u"incomplete"_s, nullptr, [](P &program) { type(program, u"02:00:5E"_s); }},
    {u"refused"_s, nullptr, [](P &program) { type(program, u"02::0:5E:10:AB:CD"_s); }},
    {u"group-address"_s, nullptr, [](P &program) { type(program, u"03:00:5E:10:AB:CD"_s); }},
    {u"changing"_s, nullptr, randomizeBy<FakeHelper::Mood::Hanging>},
    {u"change-refused"_s, nullptr, randomizeBy<FakeHelper::Mood::Refusing>},
    {u"helper-not-installed"_s, removeHelper, nullptr},
    {u"helper-installing"_s, removeHelper,
        [](P &program) { program.features().readMe.setInstalling(true); }},
    {u"helper-lost"_s, saveRules, loseHelper},
    {u"no-interface"_s, unplugEverything, nullptr},
    {u"interface-gone"_s, nullptr, unplugRadio},
    {u"all-interfaces-gone"_s, nullptr,
        [](P &program) {
            unplugEverything(program);
            program.machine.networkChanges.networkChanges();
        }},
    {u"not-connected"_s, leaveNetwork, nullptr},
    {u"other-interface"_s, nullptr,
        [](P &program) {
            program.features().mainWindow.changeInterfacefromPopup(FaceProgram::wire);
        }},
    {u"radio-off"_s, switchRadioOff, nullptr},
    {u"looking-up"_s, nullptr,
        [](P &program) { program.features().networks.externalAddressShown.refreshExternalIP(); }},
    {u"countdown"_s, saveRules, nullptr},
    {u"countdown-paused"_s, saveRules,
        [](P &program) {
            program.features().rules.countdown.pauseCountdownTimer();
            program.machine.scheduler.advance(2s);
        }},
    {u"popover-hardware"_s, nullptr,
        [](P &program) {
            randomize(program);
            program.settle();
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
    {u"vendor-data"_s, nullptr,
        [](P &) { FaceProgram::part<QAbstractButton>(u"vendorDataTitle"_s).click(); }},
    {u"favorite-removed"_s, nullptr, removeFavorite},
    {u"saved-items"_s, saveAddresses, openSavedItems},
    {u"saved-items-empty"_s, nullptr,
        [](P &program) { program.features().presence.goTo(Destination::SavedItems); }},
    {u"overview"_s, saveRules,
        [](P &program) {
            randomize(program);
            program.settle();
            openOverview(program);
        }},
    {u"overview-states"_s, plugMore, openBusyOverview},
    {u"overview-one"_s, [](P &program) { program.machine.host.unplug(FaceProgram::wire); },
        openOverview},
    {u"overview-none"_s, unplugEverything, openOverview},
    {u"overview-many"_s, plugMany, openOverview},
    {u"overview-no-helper"_s, removeHelper, openOverview},
    {u"overview-new-interface"_s, nullptr,
        [](P &program) {
            openOverview(program);
            plugMany(program);
            program.machine.networkChanges.networkChanges();
        }},
    {u"overview-narrow"_s, saveRules,
        [](P &program) {
            openOverview(program);
            FaceProgram::part<QWidget>(u"overview"_s).resize(1, 1);
        }},
    {u"popover-saved-address"_s, saveAddresses,
        [](P &program) { openToken(program, localized("Addresses")); }},
    {u"popover-saved-network"_s, saveAddresses,
        [](P &program) { openToken(program, localized("Networks")); }},
    {u"file-menu"_s, saveRules, [](P &) { openMenu(u"fileMenu"_s); }},
};

} // namespace

const QList<FaceScene> &faceScenes()
{
    return scenes;
}

void enter(const FaceScene &scene, FaceProgram &program, const std::function<void()> &windowShown)
{
    if (scene.prepare != nullptr) {
        scene.prepare(program);
    }
    program.start();
    windowShown();
    if (scene.act != nullptr) {
        scene.act(program);
    }
    program.settle();
}

} // namespace quillon::test
