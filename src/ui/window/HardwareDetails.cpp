// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/HardwareDetails.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

HardwareDetails::HardwareDetails(MainWindowModel &model, const Theme &theme)
    : m_model(model)
    , m_address(plainLabel())
    , m_restore(new BusyButton(theme, Theme::Ink::OnAccent, localized("Restore")))
{
    m_address->setObjectName(u"hardwareAddress"_s);
    m_address->setFont(Theme::font(Theme::Type::AddressField));
    m_address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *explanation = plainLabel(localized("The address the device was made with."));
    explanation->setProperty("look", u"caption"_s);
    explanation->setWordWrap(true);
    m_restore->setObjectName(u"restoreButton"_s);
    m_restore->setProperty("look", u"primary"_s);
    m_restore->setAccessibleName(localized("Restore hardware address"));
    m_restore->setBusyText(localized("Restoring…"));
    m_restore->setAutoDefault(true);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(m_address);
    column->addWidget(explanation);
    column->addSpacing(Theme::unit / 2);
    column->addWidget(m_restore, 0, Qt::AlignRight);

    connect(m_restore, &QPushButton::clicked, &m_model, &MainWindowModel::restoreDefaultAddress);
    connect(&m_model, &MainWindowModel::changed, this, &HardwareDetails::refresh);
}

void HardwareDetails::refresh()
{
    const auto &state = m_model.state();
    showLine(*m_address, state.hardwareAddress);
    m_restore->setBusy(state.busyButton == ChangeRequest::Restore);
    m_restore->setUsable(state.restoreEnabled);
    const QString hint =
        state.restoreEnabled
            ? localized("Gives the interface the address back that it was made with")
            : state.whyNoRestore;
    m_restore->setToolTip(plainToolTip(hint));
    m_restore->setAccessibleDescription(hint);
}

} // namespace quillon
