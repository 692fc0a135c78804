// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EventWiring.h"

#include "app/RecordSaving.h"
#include "app/Termination.h"
#include "app/features/Features.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "platform/Platform.h"

namespace quillon {

namespace {

constexpr std::chrono::milliseconds terminateLoginHelperDelay{1000};

} // namespace

EventWiring::EventWiring(const Platform &platform, Features &features, RecordSaving &recordSaving,
    Termination &termination)
    : m_platform(platform)
    , m_features(features)
    , m_recordSaving(recordSaving)
    , m_termination(termination)
    , m_networkChange({features.networks.externalAddress, features.devices.table,
          features.networks.wifi, features.devices.currentInterface, platform.reachability,
          features.rules.execution, features.rules.evaluation, features.rules.list})
    , m_networkEvents(platform, m_networkChange)
    , m_countdownAudience(features.rules.timers, features.presence, features.overview,
          {&features.statusMenu, &features.fileMenu})
    , m_openMenuLimit(platform.scheduler, features.statusMenu)
    , m_observations(platform)
{
    connectHelper();
    connectSelection();
    connectAddressChange();
    connectRules();
    connectRuleEditor();
    connectRecords();
    connectNetworks();
    connectNetworkEvents();
    connectVendorData();
    connectVendorField();
    connectUpdates();
    connectCloud();
    connectProgram();
}

void EventWiring::connectHelper()
{
    Features &f = m_features;
    on(f.helper, &XPCMethods::helperStatusRead, [&f](bool installed) {
        f.mainWindow.setHelperInstalled(installed);
        f.readMe.setHelperInstalled(installed);
        f.overview.setHelperInstalled(installed);
        f.readMe.readMeReset();
        f.rules.evaluation.checkDeviceForCurrentRuleAndChange(allDevices, RuleChange::None);
        f.mainWindow.resetInfoButtons();
        f.devices.currentInterface.updateHexValues();
        f.devices.table.updateNetWorkInterfaces();
        f.mainWindow.renewHexFormatter();
        f.mainWindow.populateSelectionButton();
        if (installed) {
            f.rules.execution.helperWasFound();
        } else {
            f.rules.execution.helperWasMissed();
        }
    });
    on(f.helper, &XPCMethods::helperInstalledFromMainWindow, [&f] {
        f.readMe.hide();
        f.mainWindow.resetInfoButtons();
        f.devices.currentInterface.updateHexValues();
        f.devices.table.updateNetWorkInterfaces();
        f.mainWindow.renewHexFormatter();
        f.mainWindow.populateSelectionButton();
        f.presence.openWindow();
    });
    on(f.helper, &XPCMethods::helperInstallationStarted, [&f] { f.readMe.setInstalling(true); });
    on(f.helper, &XPCMethods::helperInstallationEnded, [&f] { f.readMe.setInstalling(false); });
}

void EventWiring::connectSelection()
{
    Features &f = m_features;
    CurrentInterface &current = f.devices.currentInterface;
    on(current, &CurrentInterface::interfaceSelected, [&f](const QString &device) {
        f.mainWindow.populateSelectionButton();
        f.vendors.choice.setVendorSelectionForDevice(device);
    });
    // Whatever the rebuild finds: the label told of the interface before.
    on(current, &CurrentInterface::rebuildStarted, [&f] { f.rules.countdown.hideTimerLabel(); });
    on(current, &CurrentInterface::currentInterfaceUpdated,
        [&f](const QString &device, const QString &address) {
            f.mainWindow.showPlaceholder(address);
            f.vendors.lookup.updateVendor(address);
            f.mainWindow.checkUpdateButton();
            f.vendors.choice.updateVendorField(device);
            f.rules.status.updateRuleStatusForDevice(device);
            f.statusMenu.menuNeedsUpdate();
            f.networks.traces.interfaceWasUpdated();
        });
    on(current, &CurrentInterface::hexValuesUpdated, [&f] { f.mainWindow.populateHexField(); });
    // What is open beside it tells of an interface that is no longer there.
    on(f.mainWindow, &MainWindowModel::selectedInterfaceLeft, [&f] {
        f.mainWindow.hardwarePopoverWillClose();
        f.networks.savedLists.softwarePopoverWillClose();
        f.vendors.info.popoverWillClose();
        f.vendors.field.giveUpTyping();
        f.rules.list.popoverWillClose();
    });
    // The lists of interfaces in menu and window never differ.
    on(f.statusMenu, &StatusMenuModel::rebuildStarted,
        [&f] { f.mainWindow.populateSelectionButton(); });
    on(f.fileMenu, &FileMenuModel::rebuildStarted,
        [&f] { f.mainWindow.populateSelectionButton(); });
}

void EventWiring::connectAddressChange()
{
    Features &f = m_features;
    AddressChanger &changer = f.devices.addressChanger;
    on(changer, &AddressChanger::changeBegan, [&f](const QString &device) {
        f.devices.driftAlarm.changeBegan(device);
        f.rules.execution.addressChangeBegan(device);
        f.networks.traces.addressChangeBegan(device);
    });
    // Direct: the history is written between the user's message and the broadcast, on their thread.
    connect(
        &changer, &AddressChanger::addressChanged, this,
        [&f](const QString &device, const QString &address) {
            f.history.history.addHistoryItemForDeviceWithNewAddress(device, address);
        },
        Qt::DirectConnection);
    on(changer, &AddressChanger::changeEnded,
        [&f](const QString &device, const ChangeOutcome &outcome) {
            f.devices.driftAlarm.changeEnded(device, outcome);
            f.rules.execution.addressChangeEnded(device, outcome);
            f.networks.traces.addressChangeEnded(device, outcome.isInPlace);
        });
}

void EventWiring::connectRules()
{
    RuleFeature &rules = m_features.rules;
    on(rules.execution, &RuleExecution::obstacleEnded,
        [this] { m_networkChange.makeUpForWithheld(); });
    on(rules.evaluation, &RuleEvaluation::ruleStatusEvaluated,
        [&rules](const QString &device) { rules.status.updateRuleStatusForDevice(device); });
    on(rules.switches, &RuleSwitches::ruleSwitched, [&rules] { rules.list.reload(); });
    on(rules.switches, &RuleSwitches::ruleToggled,
        [&rules] { rules.list.filterRulesArrayController(); });

    on(rules.timers, &CountdownTimers::ticked,
        [this, &rules](const QString &device, const QString &text, bool isPaused) {
            m_features.statusMenu.showCountdown(device, text);
            m_features.fileMenu.showCountdown(device, text);
            rules.countdown.showCountdown(device, text, isPaused);
        });
    on(rules.timers, &CountdownTimers::stopped, [&rules] { rules.countdown.hideTimerLabel(); });
    on(rules.timers, &CountdownTimers::pauseOrResumeRequested,
        [&rules] { rules.countdown.resetTimerButtons(); });
    // Later: a countdown that starts again is stopped first.
    on(rules.timers, &CountdownTimers::menuItemsChanged, [this] {
        m_platform.scheduler.onMain(this, [this] { m_features.statusMenu.menuNeedsUpdate(); });
    });
}

void EventWiring::connectRuleEditor()
{
    RuleFeature &rules = m_features.rules;
    VendorFeature &vendors = m_features.vendors;
    on(rules.switches, &RuleSwitches::ruleSwitched, [&rules] { rules.table.reload(); });
    on(rules.editing, &RuleEditing::rulesRenamed, [&rules] { rules.list.reload(); });
    on(rules.form, &RuleFormModel::changed, [&rules, &vendors] {
        vendors.ruleVendor.setCanChoose(rules.form.state().canSelectVendor);
    });
    on(rules.form, &RuleFormModel::vendorFilled, [&vendors](const QString &vendor) {
        vendors.ruleField.giveUpTyping();
        vendors.ruleVendor.updateVendorSelection(vendor);
    });
    on(vendors.ruleVendor, &RuleVendor::vendorFieldUpdated,
        [&vendors](const QString &text) { vendors.ruleField.showText(text); });
    on(vendors.ruleVendor, &RuleVendor::vendorSelected,
        [&vendors](const QString &entry) { vendors.ruleField.selectEntry(entry); });
    on(vendors.ruleList, &VendorList::rearranged, [&vendors] { vendors.ruleField.rearrange(); });
    on(vendors.ruleField, &VendorFieldModel::changed,
        [&rules, &vendors] { rules.form.setVendor(vendors.ruleField.state().text); });
}

void EventWiring::connectRecords()
{
    RuleFeature &rules = m_features.rules;
    RecordStore &store = m_features.history.store;
    EditMenuModel &editMenu = m_features.editMenu;
    on(store, &RecordStore::objectsDidChange, [&rules, &editMenu](const ObjectsDidChange &change) {
        rules.invariants.contextDidChange(change);
        rules.list.reloadAfter(change);
        rules.table.reloadAfter(change);
        if (change.isUndone) {
            // What they say is in force is shown; an address that they gave stays.
            rules.evaluation.rulesWereChanged();
        }
        editMenu.refresh();
    });
    on(store, &RecordStore::saved, [&editMenu] { editMenu.refresh(); });
    on(store, &RecordStore::undoChanged, [&editMenu] { editMenu.refresh(); });
    on(editMenu, &EditMenuModel::saveRequested, [this] { m_recordSaving.saveAction(); });
    on(rules.invariants, &RuleInvariants::rulesCorrected, [&rules] { rules.list.reload(); });
    m_observations.onBroadcast(notifications::updateNamesArray,
        [&rules](const auto &) { rules.queries.updateNamesArray(); });
    m_observations.onBroadcast(
        notifications::ruleTable, [&rules](const auto &) { rules.preferences.updateRuleTable(); });
    const auto showOtherRecords = [&rules, &editMenu] {
        rules.queries.updateNamesArray();
        rules.list.reload();
        rules.table.reload();
        editMenu.refresh();
    };
    on(store, &RecordStore::recordsMerged, showOtherRecords);
    on(store, &RecordStore::managedObjectContextReplaced, showOtherRecords);
}

void EventWiring::connectNetworks()
{
    Features &f = m_features;
    NetworkFeature &networks = f.networks;
    on(networks.wifi, &WiFiNetwork::networkButtonShown,
        [&networks](bool shown) { networks.info.showNetworkButton(shown); });
    on(networks.locationPermission, &LocationPermission::servicesFoundDisabled,
        [&f] { f.presence.openWindow(); });
    on(networks.networkEditing, &SavedNetworkEditing::networkDefinitionChanged,
        [&networks] { networks.savedEntryPopover.showNetworkDefinition(); });
    on(networks.networkEditing, &SavedNetworkEditing::networkDefinitionSaved,
        [&f](const QString &bssid, bool ssidDefined) {
            f.rules.networkRules.updateSsidDefinedForRulesWithNetwork(ssidDefined, bssid);
        });
    on(networks.networkEditing, &SavedNetworkEditing::editingFinished,
        [&networks] { networks.savedEntryPopover.closeNetworkPopover(); });
    on(networks.addressEditing, &SavedAddressEditing::editingFinished,
        [&networks] { networks.savedEntryPopover.closeAddressPopover(); });
    // The one that the computer is on is shown by its saved name.
    on(networks.newSavedNetwork, &NewSavedEntryModel::added,
        [&networks] { networks.wifi.updateWiFiNetwork(); });
    on(f.history.import, &HistoryImport::networksChanged,
        [&networks] { networks.wifi.updateWiFiNetwork(); });
}

void EventWiring::connectNetworkEvents()
{
    Features &f = m_features;
    on(m_networkEvents, &NetworkEvents::machineSlept, [&f] { f.rules.execution.machineSlept(); });
    on(m_networkEvents, &NetworkEvents::interfacesRead, [&f] {
        f.devices.driftAlarm.look();
        f.mainWindow.interfacesWereRead();
        f.networks.info.lookForRadio();
        f.overview.look();
        f.preferences.owners.interfacesWereRead();
    });
    on(m_networkEvents, &NetworkEvents::eventEnded, [&f] {
        f.statusMenu.menuNeedsUpdate();
        f.networks.traces.interfaceWasUpdated();
        f.updates.updater.networkChanged();
        f.cloud.session.networkChanged();
    });
}

void EventWiring::connectVendorData()
{
    VendorFeature &vendors = m_features.vendors;
    VendorPaneModel &pane = vendors.pane;
    on(vendors.count, &VendorCount::firstCountBegun, [&pane] { pane.showFirstCountBegun(); });
    on(vendors.count, &VendorCount::additionNoted,
        [&pane](const QString &note) { pane.showAdditionNoted(note); });
    on(vendors.count, &VendorCount::counted, [&pane](qlonglong count) { pane.showCount(count); });

    on(vendors.download, &RegistryDownload::downloadBegun, [&pane] { pane.showDownloadBegun(); });
    on(vendors.download, &RegistryDownload::progressed,
        [&pane](qint64 chunk, qint64 received, qint64 expected) {
            pane.showProgress(chunk, received, expected);
        });
    on(vendors.download, &RegistryDownload::downloadCancelled,
        [&pane] { pane.showDownloadCancelled(); });
    on(vendors.download, &RegistryDownload::downloadButtonReset,
        [&pane] { pane.resetDownloadButton(); });

    on(vendors.import, &RegistryImport::processingBegun, [&pane] { pane.showProcessingBegun(); });
    on(vendors.import, &RegistryImport::parsingFailed, [&pane] { pane.showParsingFailed(); });
    on(vendors.import, &RegistryImport::downloadCompleted,
        [&pane](const QString &date) { pane.showDownloadCompleted(date); });
    on(vendors.import, &RegistryImport::restorationBegun, [&pane] { pane.showRestorationBegun(); });
    on(vendors.import, &RegistryImport::restorationFailed,
        [&pane] { pane.showRestorationFailed(); });
    on(vendors.import, &RegistryImport::databaseRestored,
        [&pane](const QString &date) { pane.showDatabaseRestored(date); });
    // Every refresh and every restoration ends so, whatever became of it.
    on(vendors.import, &RegistryImport::ended,
        [&vendors] { vendors.download.resetDownloadButton(); });
}

void EventWiring::connectVendorField()
{
    VendorFeature &vendors = m_features.vendors;
    VendorFieldModel &field = vendors.field;
    on(vendors.list, &VendorList::rearranged, [&field] { field.rearrange(); });
    on(vendors.list, &VendorList::rebuilt,
        [&vendors] { vendors.choice.setVendorSelectionForCurrentDevice(); });
    on(vendors.choice, &VendorChoice::vendorFieldUpdated,
        [&field](const QString &text) { field.showText(text); });
    on(vendors.choice, &VendorChoice::vendorSelected,
        [&field](const QString &entry) { field.selectEntry(entry); });
    on(vendors.lookup, &VendorLookup::vendorButtonShown,
        [&vendors](bool shown) { vendors.info.showVendorButton(shown); });
}

void EventWiring::connectUpdates()
{
    UpdateFeature &updates = m_features.updates;
    on(updates.updater, &Updater::changed, [&updates] { updates.pane.refresh(); });
}

void EventWiring::connectCloud()
{
    Features &f = m_features;
    CloudFeature &cloud = f.cloud;
    on(cloud.import, &CloudImport::recordsImported, [&f] {
        f.rules.list.reload();
        f.rules.table.reload();
    });
    on(cloud.import, &CloudImport::helperStatusWanted,
        [&f] { f.helper.updateHelperInstalledStatus(); });
    on(cloud.watch, &CloudAccountWatch::alertShown, [&f] { f.presence.openWindow(); });
    on(cloud.signIn, &AccountSignIn::signedIn, [&cloud] { cloud.session.renew(); });
    // It has the copy of the key file that is put back when the account's is lost.
    on(cloud.passphrase, &PassphraseChange::changed, [&cloud] { cloud.session.renew(); });
    on(cloud.session, &CloudSession::troubleChanged,
        [&f] { f.preferences.general.showTrouble(f.cloud.session.trouble()); });
    PreferencesFeature &panes = f.preferences;
    const auto showAccount = [&panes] {
        panes.general.showAccount(panes.cloudAccount.state().isSignedIn);
    };
    on(panes.cloudAccount, &CloudAccountModel::changed, showAccount);
    panes.cloudAccount.use(cloud.signIn);
    panes.cloudSignIn.use(cloud.signIn);
    panes.cloudPassphrase.use(cloud.passphrase);
    on(panes.cloudPassphrase, &PassphraseModel::told,
        [&panes](const QString &text) { panes.cloudAccount.say(text); });
    showAccount();
    // Its dialog has said what that does to the account.
    on(panes.cloudSignIn, &CloudSignInModel::signedIn, [&panes] {
        panes.general.showAccount(true);
        if (!panes.general.iCloudSync.state().isOn) {
            panes.general.synciCloud(true);
        }
    });
}

void EventWiring::connectProgram()
{
    Features &f = m_features;
    on(f.presence, &Presence::destinationOffered, [&f] {
        f.statusMenu.menuNeedsUpdate();
        f.fileMenu.menuNeedsUpdate();
    });
    on(f.presence, &Presence::destinationChosen, [&f](Destination destination) {
        f.preferencesWindow.goTo(destination);
        f.rules.preferences.goTo(destination);
    });
    on(f.presence, &Presence::reachChanged, [&f] { f.statusItemAbsence.look(); });
    on(f.presence, &Presence::terminated, [this] { m_termination.terminate(); });
}

void EventWiring::setupNotifications()
{
    observeSettings();
    observeBroadcasts();
    // What startup read is what is known; the first rule check looks at all of it.
    m_features.devices.table.forgetAllNews();
    m_features.devices.driftAlarm.begin();
    m_networkEvents.begin();
    // A login item that started us has done its work.
    postTerminateLoginHelper();
}

void EventWiring::observeSettings()
{
    Features &f = m_features;
    m_observations.onSetting(
        keys::lowerCaseHEX, [&f] { f.devices.currentInterface.updateHexValues(); });
    m_observations.onSetting(keys::currentInterfaceDict, [&f] { f.mainWindow.populateHexField(); });
    m_observations.onSetting(keys::loginStart, [this, &f] {
        f.preferences.loginController.updateLogin();
        m_platform.scheduler.onMainAfter(
            terminateLoginHelperDelay, this, [this] { postTerminateLoginHelper(); });
    });
    m_observations.onSetting(keys::showInMenu, [&f] { f.presence.updateMenu(); });
    m_observations.onSetting(keys::hideDock, [&f] { f.presence.updateDock(); });
    // The recorder may write the combination after its switch was turned on.
    for (const QString &key : {keys::showKeyEnabled, keys::showKeyCombo}) {
        m_observations.onSetting(key, [&f] { f.hotKeys.updateShowKey(); });
    }
    for (const QString &key : {keys::randomKeyEnabled, keys::randomKeyCombo}) {
        m_observations.onSetting(key, [&f] { f.hotKeys.updateRandomKey(); });
    }
    m_observations.onSetting(
        keys::savedAddresses, [&f] { f.networks.savedLists.updateQuickAddressesField(); });
    m_observations.onSetting(keys::shouldUpdateExternalIP,
        [&f] { f.networks.externalAddress.updateExternalIPAddress(false); });
    for (const QString &key : {keys::SUEnableAutomaticChecks, keys::SUScheduledCheckInterval,
             keys::SUAutomaticallyUpdate, keys::SUFeedURL}) {
        m_observations.onSetting(key, [&f] { f.updates.updater.settingsChanged(); });
    }
    m_observations.onSetting(keys::iCloudSync, [&f] {
        f.cloud.watch.checkiCloudSync();
        f.history.store.refreshPersistentContainer();
    });
}

void EventWiring::observeBroadcasts()
{
    Features &f = m_features;
    m_observations.onBroadcast(notifications::networkChanged, [this](const auto &posted) {
        const QVariant device = posted.userInfo.value(record::device);
        if (device.isValid()) {
            m_networkChange.networkChanged(device.toString());
        } else {
            m_networkChange.networkChanged();
            m_features.statusMenu.menuNeedsUpdate();
        }
    });
    m_observations.onBroadcast(notifications::addressUpdated, [this](const auto &) {
        m_platform.scheduler.onMain(this, [this] { m_features.statusMenu.menuNeedsUpdate(); });
    });
    m_observations.onBroadcast(notifications::helperStatusChanged, [&f](const auto &) {
        f.preferences.advanced.checkButtonStatus();
        f.preferences.general.refreshKeyButtons();
        f.statusMenu.menuNeedsUpdate();
    });
    m_observations.onBroadcast(notifications::changePrefsTab,
        [&f](const auto &posted) { f.preferencesWindow.changePrefsTab(posted.userInfo); });
    m_observations.onBroadcast(notifications::changeRulesTab,
        [&f](const auto &) { f.rules.preferences.setTabViewIndex(); });
    m_observations.onBroadcast(notifications::closeVendorViewPopover, [&f](const auto &) {
        f.vendors.field.closeVendorViewPopover();
        f.vendors.ruleField.closeVendorViewPopover();
    });
    // One click is handled by both: the editor finds the rule switched already.
    m_observations.onBroadcast(notifications::toggleCheckbox, [&f](const auto &toggled) {
        f.rules.switches.toggleRule(toggled.userInfo);
        f.rules.preferences.toggleRule(toggled.userInfo);
    });
    m_observations.onBroadcast(notifications::showNetworkWarning,
        [&f](const auto &) { f.rules.preferences.showNetworkWarning(); });
    m_observations.onBroadcast(
        notifications::icloudUpdated, [&f](const auto &) { f.preferences.general.refreshView(); });

    m_observations.onBroadcastOfOthers(notifications::helperUpdated,
        notifications::helperUpdatedObject, [&f] { f.helper.updateHelperInstalledStatus(); });
}

void EventWiring::postTerminateLoginHelper()
{
    m_platform.distributedNotifications.post(
        notifications::terminateLoginHelper, notifications::applicationObject);
}

} // namespace quillon
