// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/OverviewCell.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/AddressText.h"
#include "devices/HexValueTransformer.h"
#include "devices/MenuItem.h"
#include "networks/WiFiRecord.h"
#include "vendors/VendorList.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString labelKey = u"label"_s;
const QString displayKey = u"display"_s;
const QString isPausedKey = u"isPaused"_s;
const QString networkKey = u"network"_s;
const QString activeStatus = u"active"_s;

/// What became of a change that did not do what was asked for.
OverviewCell::Line lineOf(const ChangeOutcome &outcome)
{
    using Kind = OverviewCell::LineKind;
    const bool isFailure = outcome.kind() == ChangeOutcome::Kind::Failure;
    return {isFailure ? Kind::Failure : Kind::Notice, outcome.text()};
}

} // namespace

OverviewCell::OverviewCell(
    const OverviewRow &row, NotificationCenter &notifications, const SettingsStore &settings)
    : m_notifications(notifications)
    , m_settings(settings)
    , m_observed(notifications.addObserver(notifications::updateOverview,
          [this](const NotificationCenter::Notification &posted) { updateCell(posted.userInfo); }))
{
    m_live.currentAddress = row.currentAddress;
    m_state.update([](State &state) { updateRuleButton(state, 0); });
    setRow(row);
}

OverviewCell::~OverviewCell()
{
    m_notifications.removeObserver(m_observed);
}

void OverviewCell::setRow(const OverviewRow &row)
{
    m_state.update([&](State &state) {
        state.row = row;
        drawCell(state);
        fillTexts(state);
    });
}

void OverviewCell::setLive(const Live &live)
{
    m_live = live;
    m_state.update([this](State &state) { fillTexts(state); });
}

void OverviewCell::updateCell(const QVariantMap &userInfo)
{
    const auto found = userInfo.constFind(m_state->row.device);
    if (found == userInfo.constEnd()) {
        return;
    }
    const QVariantMap entry = found->toMap();
    // Every tick of every countdown tells all of them.
    if (showsCountdown(entry)) {
        return;
    }
    OverviewRow row = m_state->row;
    if (entry.contains(labelKey)) {
        row.timerDisplay = entry.value(labelKey).toMap().value(displayKey).toString();
        row.isPaused = entry.contains(isPausedKey);
    } else {
        row.timerDisplay = QString();
    }
    if (entry.contains(record::hasRule)) {
        row.hasRule = entry.value(record::hasRule).toLongLong();
    }
    const bool tellsOfLink = entry.contains(record::status) || entry.contains(networkKey);
    if (entry.contains(record::status)) {
        row.status = entry.value(record::status).toString();
    }
    if (entry.contains(networkKey)) {
        row.network = entry.value(networkKey).toString();
    }
    m_state.update([&](State &state) {
        state.row = row;
        drawCell(state);
        if (tellsOfLink) {
            fillTexts(state);
        }
    });
}

bool OverviewCell::showsCountdown(const QVariantMap &entry) const
{
    const State &shown = m_state.get();
    const bool isPaused = entry.contains(isPausedKey);
    const QString display = entry.value(labelKey).toMap().value(displayKey).toString();
    return !entry.contains(record::hasRule) && !entry.contains(record::status) &&
           !entry.contains(networkKey) && !display.isEmpty() && shown.timerLabel == display &&
           shown.row.isPaused == isPaused && shown.resumeEnabled == isPaused &&
           shown.pauseEnabled != isPaused;
}

void OverviewCell::drawCell(State &state)
{
    const OverviewRow &row = state.row;
    state.configureToolTip = filled(localized("Configure %@"), {row.device});
    state.identifier = row.device;
    if (!row.timerDisplay.value_or(QString()).isEmpty()) {
        state.timerLabel = *row.timerDisplay;
        state.timerButtonsVisible = true;
        setTimerButtonStateIsPaused(state, row.isPaused);
    } else {
        hideTimerLabel(state);
    }
    if (row.hasRule) {
        updateRuleButton(state, *row.hasRule);
    }
}

void OverviewCell::updateRuleButton(State &state, qlonglong hasRule)
{
    state.rules = RuleStatusSign::of(hasRule);
}

void OverviewCell::hideTimerLabel(State &state)
{
    state.timerLabel.clear();
    state.timerButtonsVisible = false;
}

void OverviewCell::setTimerButtonStateIsPaused(State &state, bool isPaused)
{
    state.resumeEnabled = isPaused;
    state.pauseEnabled = !isPaused;
}

void OverviewCell::disablePauseButton()
{
    m_state.update([](State &state) { state.pauseEnabled = false; });
}

void OverviewCell::disableResumeButton()
{
    m_state.update([](State &state) { state.resumeEnabled = false; });
}

QString OverviewCell::display(const QString &address) const
{
    return HexValueTransformer(m_settings).transformedValue(address);
}

void OverviewCell::fillTexts(State &state) const
{
    const OverviewRow &row = state.row;
    state.title =
        row.interface.isEmpty() ? row.device : row.interface + titleSeparator + row.device;
    state.linkActive = !m_live.isGone && row.status == activeStatus;
    state.linkText = state.linkActive ? localized("Active") : localized("Inactive");
    const WiFiRecord wifi = row.isWifi() ? WiFiRecord::stored(m_settings) : WiFiRecord();
    // Broadcasts bring the network for whichever interface they are about.
    if (row.isWifi() && wifi.isOf(row.device) && !row.network.value_or(QString()).isEmpty()) {
        state.linkText = wifi.bssid.isEmpty() ? localized(*row.network) : *row.network;
    }
    if (m_live.isGone) {
        state.linkText = localized("Not there");
    }
    state.currentText = display(row.currentAddress);
    state.hardwareText = display(row.hardwareAddress);
    const bool isOld = row.currentAddress.compare(m_live.currentAddress, Qt::CaseInsensitive) != 0;
    state.addressNow =
        isOld && !m_live.currentAddress.isEmpty() ? display(m_live.currentAddress) : QString();
    const bool isAnyVendor = row.vendor.isEmpty() || row.vendor == randomAddressChoice;
    state.vendorText = isAnyVendor ? localized(randomAddressChoice) : row.vendor;
    fillLine(state);
    fillButtons(state);
}

void OverviewCell::fillLine(State &state) const
{
    state.line = {};
    if (m_live.isUnderWay) {
        // The button that asked for it says so itself.
        const bool isOwn = m_live.action != ChangeRequest::None;
        state.line = {LineKind::Hint, isOwn ? QString() : localized("Changing…")};
        return;
    }
    const QString now =
        filled(localized("The address is now %@."), {display(m_live.currentAddress)});
    if (m_live.outcome) {
        // An address that came later says more than how the change went.
        const bool isLast = m_live.outcome->address.isEmpty() ||
                            isSameAddress(m_live.outcome->address, m_live.currentAddress);
        if (isLast) {
            state.line =
                m_live.outcome->isInPlace ? Line{LineKind::Done, now} : lineOf(*m_live.outcome);
            return;
        }
    }
    if (!state.addressNow.isEmpty()) {
        state.line = {LineKind::Hint, now};
    }
}

void OverviewCell::fillButtons(State &state) const
{
    const OverviewRow &row = state.row;
    QString whyNone;
    if (m_live.isUnderWay) {
        whyNone = localized("The address is being changed");
    } else if (m_live.isGone) {
        whyNone = localized("The interface is not there");
    } else if (!row.helperInstalled) {
        whyNone = localized("The helper tool is not installed");
    }
    QString whyNoRestore = whyNone;
    if (whyNone.isEmpty() && !isStringValidHEX(row.hardwareAddress)) {
        whyNoRestore = localized("The interface has no factory address that is known");
    } else if (whyNone.isEmpty() && isSameAddress(row.hardwareAddress, m_live.currentAddress)) {
        whyNoRestore = localized("The interface has its factory address");
    }
    const auto button = [&](ChangeRequest action, const QString &whyNot, const QString &does) {
        const bool isBusy = m_live.isUnderWay && m_live.action == action;
        // The one that is busy keeps the keyboard.
        return Button{.isEnabled = whyNot.isEmpty() || isBusy,
            .isBusy = isBusy,
            .hint = whyNot.isEmpty() ? does : whyNot};
    };
    state.randomize = button(ChangeRequest::Randomize, whyNone,
        localized("Gives the interface a random, locally administered address"));
    state.restore = button(ChangeRequest::Restore, whyNoRestore,
        localized("Gives the interface its hardware address again"));
}

} // namespace quillon
