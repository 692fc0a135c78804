// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/vendors/VendorFieldModel.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "platform/NotificationCenter.h"
#include "vendors/VendorList.h"
#include "vendors/VendorTaker.h"

#include <utility>

namespace quillon {

VendorFieldModel::VendorFieldModel(
    VendorTaker &taker, VendorList &list, NotificationCenter &notifications)
    : m_taker(taker)
    , m_list(list)
    , m_notifications(notifications)
{
}

qsizetype VendorFieldModel::rowCount() const
{
    return m_list.rowCount();
}

QString VendorFieldModel::rowText(qsizetype row) const
{
    return m_list.entry(row);
}

void VendorFieldModel::controlTextDidChange(const QString &text)
{
    m_typingFor = m_taker.device();
    takeText(text);
    if (!m_state->popoverShown) {
        showVendorViewPopover();
        Q_EMIT openedByTyping();
    }
    m_opensAtChoice = false;
    m_firstRowWanted = false;
    m_list.filter(text);
}

bool VendorFieldModel::controlDoCommandBySelector(Command command)
{
    switch (command) {
    case Command::MoveDown:
        showVendorViewPopover();
        Q_EMIT listEntered();
        m_firstRowWanted = true;
        selectFirstRowIfEntered();
        break;
    case Command::Other:
        break;
    }
    return false;
}

void VendorFieldModel::selectFirstRowIfEntered()
{
    // The first row of a list that is still being read is another one.
    if (!m_list.isRead() || !std::exchange(m_firstRowWanted, false)) {
        return;
    }
    if (rowCount() > 0) {
        m_typingFor.reset();
        selectRow(0);
        m_taker.updateVendorTableSelectionWithRow(0);
    }
}

bool VendorFieldModel::tableViewShouldSelectRow(qsizetype row)
{
    m_firstRowWanted = false;
    if (row >= 0 && row < m_list.rowCount()) {
        m_typingFor.reset();
        m_taker.updateVendorTableSelectionWithRow(row);
        selectRow(row);
    }
    return true;
}

bool VendorFieldModel::tableKeyDown(Key key)
{
    switch (key) {
    case Key::Return:
        m_notifications.post(notifications::closeVendorViewPopover);
        return false;
    case Key::Down:
    case Key::Up:
        return !m_firstRowWanted;
    case Key::Other:
        break;
    }
    return false;
}

void VendorFieldModel::toggleVendorViewPopover()
{
    if (m_state->popoverShown) {
        closeVendorViewPopover();
    } else {
        showVendorViewPopover();
    }
}

void VendorFieldModel::showVendorViewPopover()
{
    if (m_state->popoverShown) {
        return;
    }
    m_opensAtChoice = true;
    m_list.open();
    m_state.update([&](State &state) {
        state.popoverShown = true;
        state.selectedRow = selectedRow();
    });
}

void VendorFieldModel::closeVendorViewPopover()
{
    m_firstRowWanted = false;
    m_list.letGo();
    m_state.update([&](State &state) {
        state.popoverShown = false;
        state.selectedRow = std::nullopt;
        state.message.clear();
    });
}

void VendorFieldModel::giveUpTyping()
{
    if (!m_state->popoverShown && !m_typingFor) {
        return;
    }
    m_typingFor.reset();
    closeVendorViewPopover();
    m_list.clearFilter();
    takeText(m_chosenText);
}

bool VendorFieldModel::isTyping() const
{
    return m_typingFor && m_taker.canChoose() && *m_typingFor == m_taker.device();
}

void VendorFieldModel::showText(const QString &text)
{
    m_chosenText = text;
    if (m_typingFor && !isTyping()) {
        // It was meant for another device.
        giveUpTyping();
    }
    takeText(isTyping() ? m_state->text : text);
}

QString VendorFieldModel::message() const
{
    if (!m_state->popoverShown || !m_list.isRead()) {
        return {};
    }
    // "Random Address" is in every list.
    if (m_list.vendorItemArray()->size() <= 1) {
        return localized("The list of vendors is missing.");
    }
    return rowCount() > 0 ? QString()
                          : filled(localized("No vendor begins with “%@”."), {m_state->text});
}

void VendorFieldModel::takeText(const QString &text)
{
    const bool canChoose = m_taker.canChoose();
    m_state.update([&](State &state) {
        state.text = text;
        state.enabled = canChoose;
        state.whyDisabled = canChoose ? QString() : m_taker.whyNot();
    });
}

void VendorFieldModel::selectEntry(const QString &entry)
{
    m_selectedEntry = entry;
    if (isTyping()) {
        // To select the choice, the list was shown whole.
        m_list.filter(m_state->text);
    }
    if (m_list.isInMemory()) {
        const std::optional<qsizetype> row = selectedRow();
        m_state.update([&](State &state) { state.selectedRow = row; });
        if (row) {
            Q_EMIT rowSelected(*row);
        }
    }
}

void VendorFieldModel::selectRow(qsizetype row)
{
    m_selectedEntry = m_list.entry(row);
    m_state.update([&](State &state) { state.selectedRow = row; });
    Q_EMIT rowSelected(row);
}

std::optional<qsizetype> VendorFieldModel::selectedRow() const
{
    const qsizetype row = m_list.rowOf(m_selectedEntry);
    return row >= 0 ? std::optional(row) : std::nullopt;
}

void VendorFieldModel::rearrange()
{
    Q_EMIT rowsChanged();
    m_state.update([&](State &state) {
        state.selectedRow = selectedRow();
        state.message = message();
    });
    if (!m_list.isRead()) {
        return;
    }
    if (!m_state->selectedRow) {
        m_selectedEntry.clear();
    } else if (m_opensAtChoice) {
        Q_EMIT openedAtChoice();
    }
    m_opensAtChoice = false;
    selectFirstRowIfEntered();
}

} // namespace quillon
