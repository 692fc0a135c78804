// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/MainWindowModel.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/AddressText.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <QCoreApplication>
#include <QPointer>

namespace quillon {

namespace {

constexpr qsizetype bareDigits = 12;
constexpr qsizetype fullLength = 17;

} // namespace

MainWindowModel::MainWindowModel(SettingsStore &settings, Scheduler &scheduler,
    const DeviceTable &devices, const CurrentInterface &currentInterface)
    : m_settings(settings)
    , m_scheduler(scheduler)
    , m_devices(devices)
    , m_currentInterface(currentInterface)
    , m_displayCase(settings)
{
}

QString MainWindowModel::readMeText()
{
    return localized(
        "Changing an address needs administrator rights, which Quillon itself never has. A "
        "small helper tool, installed once with your administrator password, makes the "
        "change and nothing else.");
}

void MainWindowModel::prepareWindow()
{
    State state = m_state;
    state.randomiseEnabled = false;
    state.restoreEnabled = false;
    state.fieldEnabled = false;
    state.readMeVisible = false;
    const QString version = QCoreApplication::applicationVersion();
    state.versionLabel = filled(QStringLiteral("v%@"), {version});
    update(state);
}

void MainWindowModel::disableRandomise()
{
    State state = m_state;
    state.randomiseEnabled = false;
    update(state);
}

void MainWindowModel::disableUpdate()
{
    State state = m_state;
    state.updateEnabled = false;
    update(state);
}

void MainWindowModel::populateSelectionButton()
{
    State state = m_state;
    state.devices = m_devices.sortedDevicesArray();
    state.selectionVisible = !state.devices.isEmpty();
    fillInterfaceDetails(state);
    update(state);
}

void MainWindowModel::resetInfoButtons()
{
    Q_EMIT infoButtonsReset();
}

void MainWindowModel::readMeReset()
{
    Q_EMIT readMeStyleReset();
}

void MainWindowModel::setHelperInstalled(bool installed)
{
    m_helperInstalled = installed;
    State state = m_state;
    state.fieldEnabled = installed;
    state.readMeVisible = !installed;
    state.randomiseEnabled = installed;
    if (!installed) {
        state.updateEnabled = false;
    }
    fillInterfaceDetails(state);
    update(state);
}

void MainWindowModel::hideReadMe()
{
    State state = m_state;
    state.readMeVisible = false;
    update(state);
}

void MainWindowModel::setInstalling(bool installing)
{
    State state = m_state;
    state.installing = installing;
    update(state);
}

void MainWindowModel::showPlaceholder(const QString &address)
{
    State state = m_state;
    state.fieldPlaceholder = address;
    fillInterfaceDetails(state);
    update(state);
}

void MainWindowModel::renewHexFormatter()
{
    m_hexFormatter = HexFormatter();
}

void MainWindowModel::populateHexField()
{
    m_scheduler.onMain([self = QPointer(this)] {
        if (auto *const that = self.data()) {
            that->showCurrentAddress();
        }
    });
}

void MainWindowModel::showCurrentAddress()
{
    State state = m_state;
    state.fieldText = m_displayCase.transformedValue(
        m_currentInterface.record().value(record::current).toString());
    state.softwareButtonVisible = true;
    fillInterfaceDetails(state);
    update(state);
    checkUpdateButton();
}

void MainWindowModel::populateHexFieldFromDrop(const QString &text)
{
    if (!isStringValidHEX(text)) {
        return;
    }
    setFieldText(m_displayCase.transformedValue(text));
    checkUpdateButton();
}

void MainWindowModel::checkUpdateButton()
{
    if (!m_scheduler.isMainThread()) {
        m_scheduler.onMain([self = QPointer(this)] {
            if (auto *const that = self.data()) {
                that->checkUpdateButton();
            }
        });
        return;
    }
    if (!m_helperInstalled) {
        return;
    }
    State state = m_state;
    if (state.fieldText.isEmpty()) {
        state.updateEnabled = false;
        update(state);
        return;
    }
    const QString shown = m_displayCase.transformedValue(state.fieldText);
    if (state.fieldText.size() == bareDigits && !shown.contains(u':')) {
        state.fieldText = shown;
    }
    if (state.fieldText.size() == fullLength) {
        state.fieldText = shown;
    }
    const QString current = m_currentInterface.record().value(record::current).toString();
    state.updateEnabled = state.fieldText.size() == fullLength && isStringValidHEX(shown) &&
                          shown.compare(current, Qt::CaseInsensitive) != 0;
    update(state);
}

bool MainWindowModel::editField(const QString &text)
{
    if (!m_hexFormatter.isPartialStringValid(text)) {
        Q_EMIT fieldRestored();
        return false;
    }
    setFieldText(text);
    checkUpdateButton();
    return true;
}

void MainWindowModel::endEditing()
{
    if (m_state.fieldText.isEmpty()) {
        populateHexField();
    }
}

void MainWindowModel::setFieldText(const QString &text)
{
    State state = m_state;
    state.fieldText = text;
    update(state);
}

bool MainWindowModel::draggingEntered(const QString &text) const
{
    return m_state.fieldEnabled && isStringValidHEX(text);
}

bool MainWindowModel::performDragOperation() const
{
    return m_state.fieldEnabled;
}

void MainWindowModel::concludeDragOperation(const QString &text)
{
    if (draggingEntered(text)) {
        populateHexFieldFromDrop(text);
    }
}

void MainWindowModel::fillInterfaceDetails(State &state) const
{
    const QString device = m_currentInterface.device();
    state.selectedDevice = state.devices.contains(device) ? device : QString();
    const QVariantMap record = m_currentInterface.record();
    state.interfaceName = record.value(record::localizedInterface).toString();
    state.currentAddress = m_displayCase.transformedValue(record.value(record::current).toString());
    state.hardwareAddress =
        m_displayCase.transformedValue(record.value(record::hardware).toString());
    state.ipAddress = record.value(record::ipAddress).toString();
    state.linkActive = record.value(record::status).toString() == QLatin1String("active");
    state.hardwareIndicatorVisible = state.currentAddress != state.hardwareAddress;
    state.restoreEnabled =
        m_helperInstalled && !state.hardwareAddress.isEmpty() && state.hardwareIndicatorVisible;
}

void MainWindowModel::update(const State &state)
{
    if (state == m_state) {
        return;
    }
    m_state = state;
    Q_EMIT changed();
}

} // namespace quillon
