// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedAddressPopover.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

SavedAddressPopover::SavedAddressPopover(
    SavedEntryPopoverModel &model, const Theme &theme, QWidget *parent)
    : SavedEntryPopover(model, Kind::Address, theme, parent)
    , m_address(plainLabel())
{
    m_address->setObjectName(u"savedAddress"_s);
    m_address->setFont(Theme::font(Theme::Type::Address));
    m_address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *caption = plainLabel(localized("Address"));
    caption->setProperty("look", u"caption"_s);
    caption->setBuddy(m_address);
    auto *details = new QWidget;
    auto *column = new QVBoxLayout(details);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    column->addWidget(caption);
    column->addWidget(m_address);
    add(details);
}

void SavedAddressPopover::refreshDetails()
{
    // As it is stored: that may be anything.
    constexpr int widest = usualWidth - 2 * Theme::popoverMargin;
    showLine(*m_address, state().address, widest);
    const bool isWhole = m_address->text() == state().address;
    m_address->setToolTip(plainToolTip(isWhole ? QString() : state().address));
}

} // namespace quillon
