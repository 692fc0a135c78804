// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorDetails.h"

#include "base/Localized.h"
#include "presentation/vendors/VendorInfoModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/ContentScrollArea.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/PopoverHead.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// No address of the registry is as long.
constexpr int tallest = 320;

QLabel *makeValue()
{
    auto *value = plainLabel();
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return value;
}

} // namespace

VendorDetails::VendorDetails(VendorInfoModel &model, const Theme &theme)
    : m_model(model)
    , m_head(new PopoverHead(theme))
    , m_address(makeValue())
    , m_identifier(makeValue())
    , m_registry(makeValue())
    , m_facts(makeFacts())
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(m_head);
    column->addWidget(m_facts);
    connect(&m_model, &VendorInfoModel::changed, this, &VendorDetails::refresh);
}

ContentScrollArea *VendorDetails::makeFacts()
{
    m_identifier->setFont(Theme::font(Theme::Type::Address));
    auto *facts = new QWidget;
    auto *form = new QFormLayout(facts);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(Theme::unit + 4);
    form->setVerticalSpacing(Theme::unit / 2);
    const auto add = [form](const QString &caption, QLabel *value) {
        auto *label = plainLabel(caption);
        label->setProperty("look", u"caption"_s);
        label->setBuddy(value);
        label->setAlignment((label->alignment() & ~Qt::AlignVertical_Mask) | Qt::AlignTop);
        form->addRow(label, value);
    };
    add(localized("Address"), m_address);
    add(localized("Identifier"), m_identifier);
    add(localized("Registry"), m_registry);
    return new ContentScrollArea(facts, tallest);
}

void VendorDetails::refresh()
{
    const auto &state = m_model.state();
    m_head->setTitle(state.name);
    showBroken(*m_address, plainParagraphs(state.address));
    showBroken(*m_identifier, plainLine(state.identifier));
    showBroken(*m_registry, plainLine(state.registry));
    m_facts->updateGeometry();
}

} // namespace quillon
