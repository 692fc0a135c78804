// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/MainWindowModel.h"

#include "base/Localized.h"
#include "devices/AddressChanger.h"
#include "devices/AddressText.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype bareDigits = 12;
constexpr qsizetype fullLength = 17;

} // namespace

MainWindowModel::MainWindowModel(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_displayCase(collaborators.settings)
    , m_progress(collaborators.addressChanger)
{
    connect(&m_progress, &ChangeProgress::changed, this, [this] { update([](State &) {}); });
    connect(&m_deps.addressChanger, &AddressChanger::restoreRequested, this,
        &MainWindowModel::hardwarePopoverWillClose);
}

template <typename Change>
void MainWindowModel::update(Change change)
{
    m_state.update([&](State &state) {
        change(state);
        const QString device = m_deps.currentInterface.device();
        state.changing = m_progress.underWay().contains(device);
        state.busyButton = m_progress.underWay().requestOf(device);
        fillButtons(state);
        m_progress.seeAddress(device, state.currentAddress);
        state.fieldLine = lineFor(state);
    });
}

void MainWindowModel::prepareWindow()
{
    m_mayRandomize = false;
    m_isHelperKnown = false;
    m_canRestore = false;
    update([&](State &state) {
        state.fieldEnabled = false;
        const QString version = QCoreApplication::applicationVersion();
        state.versionLabel = filled(u"v%@"_s, {version});
    });
}

void MainWindowModel::disableRandomize()
{
    m_mayRandomize = false;
    update([](State &) {});
}

void MainWindowModel::disableUpdate()
{
    m_canUpdate = false;
    update([](State &) {});
}

void MainWindowModel::populateSelectionButton()
{
    m_interfacesShown = true;
    const QString device = m_deps.currentInterface.device();
    const bool isGone = selected() == ChangeButtons::Selected::Gone;
    if (isGone) {
        // Back again, it is no longer what a change was made of.
        m_progress.forgetResult(device);
    }
    update([&](State &state) {
        state.devices = m_deps.devices.sortedDevicesArray();
        state.selectionVisible = !state.devices.isEmpty();
        // The list keeps those that were taken away.
        state.withoutInterfaces = std::none_of(state.devices.cbegin(), state.devices.cend(),
            [this](const QString &each) { return m_deps.devices.isPresent(each); });
        fillInterfaceDetails(state);
    });
    checkUpdateButton();
    if (std::exchange(m_presentDevice, isGone ? QString() : device) == device && isGone) {
        Q_EMIT selectedInterfaceLeft();
    }
}

void MainWindowModel::interfacesWereRead()
{
    const QString device = m_deps.currentInterface.device();
    if (m_deps.devices.isPresent(device)) {
        m_progress.forgetUnreadAddress(device);
    }
    populateSelectionButton();
}

void MainWindowModel::resetInfoButtons()
{
    Q_EMIT infoButtonsReset();
}

void MainWindowModel::setHelperInstalled(bool installed)
{
    m_isHelperKnown = true;
    m_helperInstalled = installed;
    m_mayRandomize = installed;
    m_canUpdate = m_canUpdate && installed;
    update([&](State &state) {
        state.fieldEnabled = installed;
        state.whyNoField = installed ? QString() : AddressFieldLine::withoutHelper().text;
        fillInterfaceDetails(state);
    });
}

void MainWindowModel::showPlaceholder(const QString &address)
{
    update([&](State &state) {
        state.fieldPlaceholder = address;
        fillInterfaceDetails(state);
    });
}

void MainWindowModel::renewHexFormatter()
{
    m_hexFormatter = HexFormatter();
}

void MainWindowModel::populateHexField()
{
    m_deps.scheduler.onMain(this, [this] { showCurrentAddress(); });
}

void MainWindowModel::showCurrentAddress()
{
    update([&](State &state) {
        state.fieldText = m_displayCase.transformedValue(
            m_deps.currentInterface.record().current.value_or(QString()));
        state.softwareButtonVisible = true;
        fillInterfaceDetails(state);
    });
    checkUpdateButton();
}

void MainWindowModel::populateHexFieldFromDrop(const QString &text)
{
    if (!isStringValidHEX(text)) {
        return;
    }
    m_progress.forgetResult(m_deps.currentInterface.device());
    setFieldText(m_displayCase.transformedValue(text));
    checkUpdateButton();
}

bool MainWindowModel::chooseAddress(const QString &text)
{
    const bool isTaken = draggingEntered(text);
    if (isTaken) {
        populateHexFieldFromDrop(text);
    }
    return isTaken;
}

void MainWindowModel::checkUpdateButton()
{
    if (!m_deps.scheduler.isMainThread()) {
        m_deps.scheduler.onMain(this, [this] { checkUpdateButton(); });
        return;
    }
    if (!m_helperInstalled) {
        return;
    }
    const QString current = m_deps.currentInterface.record().current.value_or(QString());
    update([&](State &state) {
        const QString shown = m_displayCase.transformedValue(state.fieldText);
        const bool isBare = state.fieldText.size() == bareDigits && !shown.contains(u':');
        if (isBare || state.fieldText.size() == fullLength) {
            state.fieldText = shown;
        }
        m_canUpdate = isSelectedPresent() && state.fieldText.size() == fullLength &&
                      isStringValidHEX(shown) && shown.compare(current, Qt::CaseInsensitive) != 0;
    });
}

template <typename Act>
void MainWindowModel::request(ChangeRequest button, Act act)
{
    const QString device = m_deps.currentInterface.device();
    if (!m_progress.underWay().contains(device)) {
        m_progress.underWay().ask(device, button);
        act();
    }
}

void MainWindowModel::randomizeAddress()
{
    request(ChangeRequest::Randomize, [this] { m_deps.addressChanger.randomizeAddress(); });
}

void MainWindowModel::changeMacAddress()
{
    request(ChangeRequest::Apply,
        [this] { setFieldText(m_deps.addressChanger.changeMacAddress(m_state->fieldText)); });
}

void MainWindowModel::restoreDefaultAddress()
{
    request(ChangeRequest::Restore, [this] { m_deps.addressChanger.restoreDefaultAddress(); });
}

void MainWindowModel::toggleHardwarePopover()
{
    update([](State &state) { state.hardwarePopoverShown = !state.hardwarePopoverShown; });
}

void MainWindowModel::hardwarePopoverWillClose()
{
    update([](State &state) { state.hardwarePopoverShown = false; });
}

void MainWindowModel::changeInterfacefromPopup(const QString &title)
{
    m_deps.currentInterface.changeInterfacefromPopup(title);
}

bool MainWindowModel::editField(const QString &text)
{
    if (!m_state->fieldEnabled || !m_hexFormatter.isPartialStringValid(text)) {
        Q_EMIT fieldRestored();
        return false;
    }
    m_progress.forgetResult(m_deps.currentInterface.device());
    setFieldText(text);
    checkUpdateButton();
    return true;
}

void MainWindowModel::endEditing()
{
    if (m_state->fieldText.isEmpty()) {
        populateHexField();
    }
}

void MainWindowModel::setFieldText(const QString &text)
{
    update([&](State &state) { state.fieldText = text; });
}

bool MainWindowModel::draggingEntered(const QString &text) const
{
    return m_state->fieldEnabled && isStringValidHEX(text);
}

bool MainWindowModel::performDragOperation() const
{
    return m_state->fieldEnabled;
}

void MainWindowModel::concludeDragOperation(const QString &text)
{
    chooseAddress(text);
}

void MainWindowModel::fillInterfaceDetails(State &state)
{
    const QString device = m_deps.currentInterface.device();
    state.selectedDevice = state.devices.contains(device) ? device : QString();
    const DeviceRecord record = m_deps.currentInterface.record();
    state.interfaceName = record.shownInterface();
    state.currentAddress = m_displayCase.transformedValue(record.current.value_or(QString()));
    state.hardwareAddress = m_displayCase.transformedValue(record.hardware.value_or(QString()));
    state.isGone = selected() == ChangeButtons::Selected::Gone;
    // The record is the last one that was read of it.
    state.ipAddress = state.isGone ? QString() : record.ipAddress.value_or(QString());
    state.linkActive = !state.isGone && record.isUp();
    state.hardwareIndicatorVisible = state.currentAddress != state.hardwareAddress;
    m_canRestore = m_helperInstalled && isSelectedPresent() &&
                   isStringValidHEX(state.hardwareAddress) && state.hardwareIndicatorVisible;
}

ChangeButtons::Selected MainWindowModel::selected() const
{
    const QString device = m_deps.currentInterface.device();
    if (!m_interfacesShown || m_deps.devices.isPresent(device)) {
        return ChangeButtons::Selected::Present;
    }
    return device.isEmpty() ? ChangeButtons::Selected::None : ChangeButtons::Selected::Gone;
}

AddressFieldLine MainWindowModel::lineFor(const State &state) const
{
    if (state.withoutInterfaces) {
        return AddressFieldLine::withoutInterface();
    }
    if (!m_helperInstalled) {
        return m_isHelperKnown ? AddressFieldLine::withoutHelper() : AddressFieldLine();
    }
    if (selected() == ChangeButtons::Selected::Gone) {
        return AddressFieldLine::interfaceGone();
    }
    return m_progress.lineFor(m_deps.currentInterface.device(), state.currentAddress)
        .value_or(AddressFieldLine::forText(state.fieldText, state.currentAddress));
}

void MainWindowModel::fillButtons(State &state) const
{
    const ChangeButtons buttons{.canRandomize = m_mayRandomize,
        .canApply = m_canUpdate,
        .canRestore = m_canRestore,
        .isHelperInstalled = m_helperInstalled,
        .hasFactoryAddress = isStringValidHEX(state.hardwareAddress),
        .selected = selected(),
        .isChanging = state.changing,
        .busy = state.busyButton};
    state.updateEnabled = buttons.isEnabled(ChangeRequest::Apply);
    state.randomizeEnabled = buttons.isEnabled(ChangeRequest::Randomize);
    state.restoreEnabled = buttons.isEnabled(ChangeRequest::Restore);
    state.whyNoUpdate = buttons.whyNot(ChangeRequest::Apply);
    state.whyNoRandomize = buttons.whyNot(ChangeRequest::Randomize);
    state.whyNoRestore = buttons.whyNot(ChangeRequest::Restore);
}

} // namespace quillon
