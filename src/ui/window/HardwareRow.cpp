// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/HardwareRow.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/window/HardwareDetails.h"

#include <QLayout>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

HardwareRow::HardwareRow(MainWindowModel &model, const Theme &theme, MakeFurther makeFurther)
    : PopoverRow(theme, localized("Hardware address"))
    , m_model(model)
    , m_makeFurther(std::move(makeFurther))
{
    setObjectName(u"hardwareButton"_s);
    connect(this, &RowButton::clicked, &m_model, &MainWindowModel::toggleHardwarePopover);
    connect(this, &PopoverRow::popoverClosed, &m_model, &MainWindowModel::hardwarePopoverWillClose);
    connect(&m_model, &MainWindowModel::changed, this, &HardwareRow::refresh);
    refresh();
}

PopoverDetails *HardwareRow::makeDetails()
{
    auto *details = new HardwareDetails(m_model, theme());
    if (m_makeFurther) {
        details->layout()->addWidget(m_makeFurther(details));
    }
    return details;
}

void HardwareRow::refresh()
{
    setValue(m_model.state().hardwareAddress, ValueLook::Address);
    setPopoverShown(m_model.state().hardwarePopoverShown);
}

} // namespace quillon
