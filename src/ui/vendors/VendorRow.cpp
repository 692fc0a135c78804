// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorRow.h"

#include "base/Localized.h"
#include "presentation/vendors/VendorInfoModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/PopoverHead.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int popoverWidth = 330;

QLabel *makeValue()
{
    auto *value = plainLabel();
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return value;
}

} // namespace

VendorRow::VendorRow(VendorInfoModel &model, const Theme &theme, QWidget *parent)
    : PopoverRow(theme, localized("Vendor"), new QWidget, parent)
    , m_model(model)
    , m_head(new PopoverHead(theme))
    , m_address(makeValue())
    , m_identifier(makeValue())
    , m_registry(makeValue())
{
    setObjectName(u"vendorButton"_s);
    popover().setBodyWidth(popoverWidth);
    makeContent();
    connect(this, &RowButton::clicked, &m_model, &VendorInfoModel::toggleVendorPopover);
    connect(this, &PopoverRow::popoverClosed, &m_model, &VendorInfoModel::popoverWillClose);
    connect(&m_model, &VendorInfoModel::changed, this, &VendorRow::refresh);
    refresh();
}

void VendorRow::makeContent()
{
    m_identifier->setFont(Theme::font(Theme::Type::Address));
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(Theme::unit + 4);
    form->setVerticalSpacing(Theme::unit / 2);
    const auto add = [form](const QString &caption, QLabel *value) {
        auto *label = plainLabel(caption);
        label->setProperty("look", u"caption"_s);
        label->setBuddy(value);
        label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
        form->addRow(label, value);
    };
    add(localized("Address"), m_address);
    add(localized("Identifier"), m_identifier);
    add(localized("Registry"), m_registry);
    auto *column = new QVBoxLayout(popover().content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(m_head);
    column->addLayout(form);
}

void VendorRow::refresh()
{
    const auto &state = m_model.state();
    setHasPopover(state.buttonVisible);
    setValue(state.name, state.buttonVisible ? ValueLook::Text : ValueLook::Muted);
    m_head->setTitle(state.name);
    m_address->setText(plainLine(state.address));
    m_identifier->setText(plainLine(state.identifier));
    m_registry->setText(plainLine(state.registry));
    setPopoverShown(state.popoverShown);
}

} // namespace quillon
