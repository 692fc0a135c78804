// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/vendors/VendorFieldModel.h"

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
    if (!m_state.popoverShown) {
        showVendorViewPopover();
        Q_EMIT insertionPointDue();
    }
    m_list.filter(text);
}

bool VendorFieldModel::controlDoCommandBySelector(Command command)
{
    switch (command) {
    case Command::MoveDown:
        showVendorViewPopover();
        Q_EMIT listFocusDue();
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
    if (m_state.popoverShown) {
        closeVendorViewPopover();
    } else {
        showVendorViewPopover();
    }
}

void VendorFieldModel::showVendorViewPopover()
{
    State state = m_state;
    state.popoverShown = true;
    update(state);
}

void VendorFieldModel::closeVendorViewPopover()
{
    State state = m_state;
    state.popoverShown = false;
    update(state);
}

void VendorFieldModel::showText(const QString &text)
{
    State state = m_state;
    state.text = text;
    update(state);
}

void VendorFieldModel::selectRow(const std::optional<qsizetype> &row)
{
    State state = m_state;
    state.selectedRow = row;
    m_selectedEntry = row ? m_list.entry(*row) : QString();
    update(state);
    if (row) {
        Q_EMIT scrollDue(*row);
    }
}

void VendorFieldModel::showVendorButton(bool shown)
{
    State state = m_state;
    state.vendorButtonVisible = shown;
    update(state);
}

void VendorFieldModel::rearrange()
{
    Q_EMIT rowsChanged();
    State state = m_state;
    if (state.selectedRow) {
        const qsizetype row = m_list.rowOf(m_selectedEntry);
        state.selectedRow = row >= 0 ? std::optional(row) : std::nullopt;
        update(state);
    }
}

void VendorFieldModel::update(const State &state)
{
    if (state == m_state) {
        return;
    }
    m_state = state;
    Q_EMIT changed();
}

} // namespace quillon
