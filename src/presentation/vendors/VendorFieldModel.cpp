// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/vendors/VendorFieldModel.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "platform/NotificationCenter.h"
#include "vendors/VendorChoice.h"
#include "vendors/VendorList.h"

namespace quillon {

VendorFieldModel::VendorFieldModel(
    VendorChoice &choice, VendorList &list, NotificationCenter &notifications)
    : m_choice(choice)
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
    showText(text);
    if (!m_state->popoverShown) {
        showVendorViewPopover();
        Q_EMIT openedByTyping();
    }
    m_list.filter(text);
}

bool VendorFieldModel::controlDoCommandBySelector(Command command)
{
    switch (command) {
    case Command::MoveDown:
        showVendorViewPopover();
        Q_EMIT listEntered();
        if (rowCount() > 0) {
            selectRow(0);
            m_choice.updateVendorTableSelectionWithRow(0);
        }
        break;
    case Command::Other:
        break;
    }
    return false;
}

bool VendorFieldModel::tableViewShouldSelectRow(qsizetype row)
{
    m_choice.updateVendorTableSelectionWithRow(row);
    if (row >= 0 && row < rowCount()) {
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
        return true;
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
    m_state.update([&](State &state) { state.popoverShown = true; });
}

void VendorFieldModel::closeVendorViewPopover()
{
    m_state.update([&](State &state) { state.popoverShown = false; });
}

void VendorFieldModel::showText(const QString &text)
{
    const bool canChoose = m_choice.canChoose();
    m_state.update([&](State &state) {
        state.text = text;
        state.enabled = canChoose;
        state.whyDisabled =
            canChoose ? QString()
                      : localized("No interface is selected: there is none to choose a vendor for");
    });
}

void VendorFieldModel::selectRow(const std::optional<qsizetype> &row)
{
    m_selectedEntry = row ? m_list.entry(*row) : QString();
    m_state.update([&](State &state) { state.selectedRow = row; });
    if (row) {
        Q_EMIT rowSelected(*row);
    }
}

void VendorFieldModel::showVendorButton(bool shown)
{
    m_state.update([&](State &state) { state.vendorButtonVisible = shown; });
}

void VendorFieldModel::rearrange()
{
    Q_EMIT rowsChanged();
    m_state.update([&](State &state) {
        if (state.selectedRow) {
            const qsizetype row = m_list.rowOf(m_selectedEntry);
            state.selectedRow = row >= 0 ? std::optional(row) : std::nullopt;
        }
    });
}

} // namespace quillon
