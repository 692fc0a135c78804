// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/FaceScenes.h"

#include "base/Localized.h"
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "fakes/SignedFeed.h"
#include "history/Connection.h"
#include "networks/SpecialNetworks.h"
#include "presentation/preferences/PreferencesPane.h"
#include "store/model/QuillonModel.h"
#include "ui/history/HistoryTable.h"
#include "ui/widgets/TokenField.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

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

/// The form that one of the two cards opens, as far as it was filled in by then.
void openNewEntry(FaceProgram &program, const QString &button, const QStringList &texts)
{
    openSavedItems(program);
    QPushButton *opener = nullptr;
    for (QWidget *widget : QApplication::allWidgets()) {
        auto *found = qobject_cast<QPushButton *>(widget);
        opener = found != nullptr && found->isVisible() && found->text() == button ? found : opener;
    }
    if (opener == nullptr) {
        qFatal("no %s", qUtf8Printable(button));
    }
    opener->click();
    program.settle();
    const auto fields = opener->findChildren<QLineEdit *>();
    for (qsizetype index = 0; index < texts.size(); ++index) {
        fields.at(index)->setFocus();
        fields.at(index)->insert(texts.at(index));
    }
}

/// Rules of every kind, as somebody has them who uses them.
void saveEditorRules(FaceProgram &program)
{
    const QString home = u"a4:2b:b0:11:22:33"_s;
    program.machine.settings.set(keys::savedNetworks,
        QVariantMap{
            {home, QVariantMap{{savedentry::BSSID, home}, {savedentry::SSID, u"Harbor Café"_s},
                       {savedentry::name, u"Harbor Café"_s}}}});
    program.machine.settings.set(keys::defaultTimerMinutes, 30);
    program.saveAddress(u"02:00:5e:00:53:0a"_s, u"Lab printer"_s);
    auto cafe = FaceProgram::repeatedRule(u"Café"_s);
    cafe[model::rule::network] = home;
    cafe[model::rule::timerMins] = 30;
    program.saveRule(cafe);
    auto stays = FaceProgram::repeatedRule(u"Everywhere else it stays itself"_s);
    stays[model::rule::action] = Rule::doNothing;
    program.saveRule(stays);
    auto login = FaceProgram::repeatedRule(u"Start clean"_s);
    login[model::rule::device] = FaceProgram::wire;
    login[model::rule::network] = QString();
    login[model::rule::isLogin] = true;
    program.saveRule(login);
    auto unknown = FaceProgram::repeatedRule(u"Unknown places"_s);
    unknown[model::rule::network] = anUnknownNetwork;
    unknown[model::rule::changeAction] = Rule::once;
    unknown[model::rule::enabled] = false;
    unknown[model::rule::vendor] =
        u"Alpine Antennas and Measuring Instruments Company Limited (02A002)"_s;
    program.saveRule(unknown);
    auto lab = FaceProgram::repeatedRule(u"Lab"_s);
    lab[model::rule::device] = FaceProgram::wire;
    lab[model::rule::address] = u"02:00:5e:00:53:0a"_s;
    lab[model::rule::enabled] = false;
    program.saveRule(lab);
}

void openRules(FaceProgram &program)
{
    program.features().presence.goTo(Destination::Rules);
    program.settle();
    program.features().rules.table.selectRow(0);
}

void openRulesWithWarning(FaceProgram &program)
{
    openRules(program);
    program.features().rules.preferences.showNetworkWarning();
}

void openNetworkForm(FaceProgram &program)
{
    program.features().presence.goTo(Destination::NewNetworkRule);
    RuleFormModel &form = program.features().rules.form;
    form.setName(u"Café"_s);
    form.actionSelectionChanged(Rule::changeAddress);
    form.timerSelectionChanged(Rule::every);
}

/// Nothing is saved yet, and the form says so.
void openFormForUnsavedNetwork(FaceProgram &program)
{
    openNetworkForm(program);
    program.features().rules.form.changeNetwork(2);
}

void openFormVendors(FaceProgram &program)
{
    openNetworkForm(program);
    program.settle();
    program.features().vendors.ruleField.showVendorViewPopover();
}

void openLoginForm(FaceProgram &program)
{
    program.features().presence.goTo(Destination::NewLoginRule);
    program.features().rules.form.setName(u"Start clean"_s);
}

void deleteRule(FaceProgram &program)
{
    openRules(program);
    program.features().rules.preferences.deleteRule();
}

void removeFavorite(FaceProgram &program)
{
    program.features().networks.savedLists.chooseFavoriteButton();
    program.settle();
    program.features().networks.savedLists.chooseFavoriteButton();
}

template <PreferencesPane pane>
void openPane(FaceProgram &program)
{
    program.features().preferencesWindow.showPane(pane);
    program.features().preferencesWindow.openPreferencesWindow();
}

void openUpdates(FaceProgram &program)
{
    openPane<PreferencesPane::Updates>(program);
}

/// As in a build that knows whom to ask; the user wants it to look.
void lookForUpdates(FaceProgram &program)
{
    program.machine.updateFeed = QUrl(u"https://updates.example/appcast.xml"_s);
    program.machine.updateKey = FeedKey().publicKey();
    program.machine.settings.set(keys::SUEnableAutomaticChecks, true);
    program.machine.settings.set(keys::SUScheduledCheckInterval, 604800);
}

/// The pane once somebody has said that.
void findList(FaceProgram &program, const QByteArray &list)
{
    FakeHttpClient::Page page;
    page.body = list;
    page.contentType = "application/xml";
    program.machine.http.serve(program.machine.updateFeed, page);
    openUpdates(program);
    program.features().updates.pane.checkNow();
}

void findVersion(FaceProgram &program)
{
    const QByteArray notes =
        "The window opens twice as fast.\n"
        "A rule can be copied, and it says in a sentence what it does.\n\n"
        "Mended:\n"
        "- The countdown of a rule that was paused went on after the computer had slept.\n"
        "- On a network with two access points of one name both were shown.\n"
        "- Names with quotation marks were cut in the history.\n"
        "- The list of vendors opened at its end.\n"
        "- With a screen at 150 percent the arrow of a popover stood beside it.\n";
    findList(program, FeedKey().sign(feedText(
                          feedItem("4.1", "https://updates.example/quillon/releases/4.1", notes))));
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

void expectProblems(FaceProgram &program)
{
    FakePlatform &machine = program.machine;
    machine.hotKeys.takenByOthers = {u"Ctrl+Alt+M"_s};
    machine.loginItem.desktop = LoginItem::Desktop::Ignores;
    for (const auto &[key, value] : std::initializer_list<std::pair<QString, QVariant>>{
             {keys::loginStart, true}, {keys::showKeyEnabled, true},
             {keys::showKeyCombo, u"Ctrl+Alt+M"_s}, {keys::randomKeyEnabled, true},
             {keys::randomKeyCombo, u"Ctrl+Alt+Shift+Meta+PgDown"_s}, {keys::showInMenu, false}}) {
        machine.settings.set(key, value);
    }
}

void ownInterfaces(FaceProgram &program)
{
    program.machine.owners.own(FaceProgram::radio);
    program.machine.settings.set(keys::defaultTimerMinutes, 30);
    program.machine.settings.set(keys::driftAlarm, true);
}

void plugManyInterfaces(FaceProgram &program)
{
    for (int index = 0; index < 200; ++index) {
        const QString address = u"02:00:5e:00:55:%1"_s.arg(index, 2, 16, QChar(u'0'));
        program.machine.host.plug(
            {u"Ethernet"_s, u"enp%1s0f1np1"_s.arg(index + 10), address, address, {}});
    }
}

/// Three weeks of a laptop, the last change a few minutes ago.
void fillHistory(FaceProgram &program)
{
    struct Past
    {
        int minutesAgo;
        QString address;
        QString network;
        QString notes;
        bool isWired = false;
    };
    const QList<Past> past{
        {4, u"62:68:66:48:DC:27"_s, u"Harbor-Guest"_s, u"window seat, by the device table"_s},
        {34, u"7A:54:A2:BC:44:FF"_s, u"Harbor-Guest"_s, {}},
        {296, u"00:16:CB:7A:10:02"_s, u"Harbor-Office"_s, u"the badge reader wants this one"_s},
        {400, u"02:00:5E:00:53:01"_s, {}, u"<b>switch 4</b> & co."_s, true},
        {1179, u"D2:EB:64:ED:A9:E6"_s, u"Harbor-Office"_s, u"switch 4"_s},
        {6000, u"F6:AD:84:32:B8:82"_s, u"Harbor-Guest"_s, {}},
        {6700, u"1E:90:3C:55:07:D0"_s, u"A network whose name is as long as one can be."_s, {}},
    };
    const QDateTime now = program.machine.scheduler.now();
    ManagedObjectContext &context = program.features().history.store.managedObjectContext();
    const ManagedObjectContext::UndoDisabled facts(context);
    constexpr int records = 212;
    for (int number = 0; number < records; ++number) {
        const Past &what = past[number % past.size()];
        const int minutesAgo = what.minutesAgo + 4000 * int(number / past.size());
        Connection record(context.insertNewObject(model::Connection));
        record.setDate(now.addSecs(-60 * minutesAgo));
        record.setAddress(what.address);
        record.setDevice(what.isWired ? FaceProgram::wire : FaceProgram::radio);
        record.setInterface(what.isWired ? u"Ethernet"_s : u"Wi-Fi"_s);
        record.setSsid(what.network);
        record.setBssid(what.isWired ? QString() : u"a4:2b:b0:11:22:33"_s);
        record.setNotes(number < past.size() ? what.notes : QString());
    }
    context.save();
}

HistoryTable &openHistory(FaceProgram &program)
{
    program.machine.settings.set(keys::historySearchType, u"all"_s);
    program.features().presence.goTo(Destination::History);
    program.settle();
    return FaceProgram::part<HistoryTable>(u"historyTable"_s);
}

void openFullHistory(FaceProgram &program)
{
    fillHistory(program);
    openHistory(program);
}

void searchHistory(FaceProgram &program, const QString &text)
{
    openFullHistory(program);
    FaceProgram::part<QLineEdit>(u"historySearch"_s).setText(text);
    program.features().history.controller.controlTextDidChange(text);
    program.settle();
}

void selectInHistory(FaceProgram &program)
{
    fillHistory(program);
    HistoryTable &table = openHistory(program);
    table.setFocus();
    table.selectRow(1);
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
    {u"preferences-general"_s, nullptr, openPane<PreferencesPane::General>},
    {u"preferences-general-told"_s, expectProblems, openPane<PreferencesPane::General>},
    {u"preferences-general-recording"_s, nullptr,
        [](P &program) {
            openPane<PreferencesPane::General>(program);
            program.features().preferences.general.showRecorder.begin();
        }},
    {u"preferences-general-no-shortcuts"_s,
        [](P &program) {
            program.machine.hotKeys.isOffered = false;
            program.machine.loginItem.installed.reset();
        },
        openPane<PreferencesPane::General>},
    {u"preferences-advanced"_s, ownInterfaces, openPane<PreferencesPane::Advanced>},
    {u"preferences-advanced-no-helper"_s, removeHelper, openPane<PreferencesPane::Advanced>},
    {u"preferences-advanced-many"_s, plugManyInterfaces, openPane<PreferencesPane::Advanced>},
    {u"preferences-display"_s, nullptr, openPane<PreferencesPane::Display>},
    {u"preferences-vendor-data"_s, nullptr, openPane<PreferencesPane::VendorData>},
    {u"preferences-vendor-data-loading"_s, nullptr,
        [](P &program) {
            openPane<PreferencesPane::VendorData>(program);
            program.features().vendors.pane.showDownloadBegun();
            program.features().vendors.pane.showProgress(16384, 1'200'000, 3'900'000);
        }},
    {u"preferences-vendor-data-failed"_s, nullptr,
        [](P &program) {
            openPane<PreferencesPane::VendorData>(program);
            program.features().vendors.pane.showParsingFailed();
        }},
    {u"preferences-about"_s, nullptr, openPane<PreferencesPane::About>},
    {u"preferences-about-failed"_s, nullptr,
        [](P &program) {
            program.machine.links.hasBrowser = false;
            openPane<PreferencesPane::About>(program);
            program.features().preferences.about.openLink(0);
        }},
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
    {u"popover-new-address"_s, nullptr,
        [](P &program) { openNewEntry(program, localized("Address…"), {}); }},
    {u"popover-new-address-group"_s, nullptr,
        [](P &program) {
            openNewEntry(program, localized("Address…"), {u"01:00:5e:00:00:01"_s, u"Lab"_s});
        }},
    {u"popover-new-network-saved"_s, nullptr,
        [](P &program) {
            const QString bssid = program.machine.settings.getDictionary(keys::currentWiFiDict)
                                      .value(wifirecord::BSSID)
                                      .toString();
            openNewEntry(program, localized("Network…"), {u"Harbor"_s, bssid});
        }},
    {u"updates-off"_s, nullptr, openUpdates},
    {u"updates-not-asked"_s,
        [](P &program) {
            lookForUpdates(program);
            program.machine.settings.set(keys::SUEnableAutomaticChecks, false);
        },
        openUpdates},
    {u"updates-none"_s, lookForUpdates,
        [](P &program) { findList(program, FeedKey().sign(feedText(feedItem("4.0")))); }},
    {u"updates-found"_s, lookForUpdates, findVersion},
    {u"updates-not-trusted"_s, lookForUpdates,
        [](P &program) { findList(program, feedText(feedItem("9.0"))); }},
    {u"updates-checking"_s, lookForUpdates,
        [](P &program) {
            openUpdates(program);
            program.features().updates.pane.checkNow();
        }},
    {u"rules"_s, saveEditorRules, openRules},
    {u"rules-empty"_s, nullptr, openRules},
    {u"rules-many"_s, saveManyRules, openRules},
    {u"rules-warning"_s, saveEditorRules, openRulesWithWarning},
    {u"rule-deleted"_s, saveEditorRules, deleteRule},
    {u"rule-network"_s, saveEditorRules, openNetworkForm},
    {u"rule-network-unsaved"_s, nullptr, openFormForUnsavedNetwork},
    {u"rule-vendors"_s, saveEditorRules, openFormVendors},
    {u"rule-login"_s, saveEditorRules, openLoginForm},
    {u"history"_s, nullptr, openFullHistory},
    {u"history-empty"_s, nullptr, [](P &program) { openHistory(program); }},
    {u"history-found"_s, nullptr, [](P &program) { searchHistory(program, u"Office"_s); }},
    {u"history-none-found"_s, nullptr, [](P &program) { searchHistory(program, u"xyz"_s); }},
    {u"history-selected"_s, nullptr, selectInHistory},
    {u"history-note"_s, nullptr,
        [](P &program) {
            selectInHistory(program);
            FaceProgram::part<HistoryTable>(u"historyTable"_s).editNote();
        }},
    {u"history-deleted"_s, nullptr,
        [](P &program) {
            selectInHistory(program);
            program.settle();
            program.features().history.controller.deleteSelected();
        }},
    {u"history-types"_s, nullptr,
        [](P &program) {
            openFullHistory(program);
            FaceProgram::part<QAbstractButton>(u"searchTypes"_s).click();
        }},
    {u"history-narrow"_s, nullptr,
        [](P &program) {
            openFullHistory(program);
            FaceProgram::part<QWidget>(u"history"_s).resize(560, 420);
        }},
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
