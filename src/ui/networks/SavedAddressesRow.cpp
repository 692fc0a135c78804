// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedAddressesRow.h"

#include "base/Localized.h"
#include "presence/Presence.h"
#include "presentation/networks/SavedListsModel.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/networks/SavedAddressesDetails.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Of hundreds the row says what its tool tip has room for.
constexpr qsizetype mostNamed = 20;

} // namespace

SavedAddressesRow::SavedAddressesRow(const Models &models, const Theme &theme)
    : PopoverRow(theme, localized("Saved addresses"))
    , m_models(models)
{
    setObjectName(u"softwareButton"_s);
    connect(this, &RowButton::clicked, &m_models.saved, &SavedListsModel::toggleSoftwarePopover);
    connect(this, &PopoverRow::popoverClosed, &m_models.saved,
        &SavedListsModel::softwarePopoverWillClose);
    connect(&m_models.saved, &SavedListsModel::changed, this, &SavedAddressesRow::refresh);
    connect(&m_models.window, &MainWindowModel::changed, this, &SavedAddressesRow::refresh);
    refresh();
}

PopoverDetails *SavedAddressesRow::makeDetails()
{
    auto *details = new SavedAddressesDetails(m_models.saved, m_models.window, theme());
    connect(details, &SavedAddressesDetails::filled, this, &SavedAddressesRow::leaveForField);
    connect(details, &SavedAddressesDetails::editChosen, this, &SavedAddressesRow::editSavedItems);
    // The popover is what is dragged from: it must be there until the drag has ended.
    connect(details, &SavedAddressesDetails::dragBegan, this, [this] { popover().stepAside(); });
    connect(details, &SavedAddressesDetails::dragEnded, &m_models.saved,
        &SavedListsModel::softwarePopoverWillClose);
    return details;
}

void SavedAddressesRow::leaveForField()
{
    m_models.saved.softwarePopoverWillClose();
    Q_EMIT filled();
}

void SavedAddressesRow::editSavedItems()
{
    m_models.saved.softwarePopoverWillClose();
    m_models.presence.goTo(Destination::SavedItems);
}

void SavedAddressesRow::refresh()
{
    const auto &saved = m_models.saved.state().quickAddresses;
    QStringList names;
    for (const auto &token : saved.first(std::min(saved.size(), mostNamed))) {
        names.append(token.text);
    }
    if (saved.size() > mostNamed) {
        names.append(u"…"_s);
    }
    if (names.isEmpty()) {
        setValue(localized("None"), ValueLook::Muted);
    } else {
        setValue(names.join(u", "_s));
    }
    setHasPopover(m_models.window.state().softwareButtonVisible);
    setPopoverShown(m_models.saved.state().softwarePopoverShown);
}

} // namespace quillon
