// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/NetworkRow.h"

#include "base/Localized.h"
#include "presentation/networks/NetworkInfoModel.h"
#include "ui/networks/NetworkDetails.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int popoverWidth = 330;

} // namespace

NetworkRow::NetworkRow(NetworkInfoModel &model, TracesModel &traces, const Theme &theme)
    : PopoverRow(theme, localized("Network"), popoverWidth)
    , m_model(model)
    , m_traces(traces)
{
    setObjectName(u"networkButton"_s);
    connect(this, &RowButton::clicked, &m_model, &NetworkInfoModel::toggleNetworkInfoPopover);
    connect(this, &PopoverRow::popoverClosed, &m_model, &NetworkInfoModel::popoverWillClose);
    connect(&m_model, &NetworkInfoModel::changed, this, &NetworkRow::refresh);
    refresh();
}

PopoverDetails *NetworkRow::makeDetails()
{
    return new NetworkDetails(m_model, m_traces, theme());
}

void NetworkRow::refresh()
{
    const auto &state = m_model.state();
    setVisible(state.hasRadio);
    setHasPopover(state.buttonVisible);
    setValue(state.name, state.buttonVisible ? ValueLook::Text : ValueLook::Muted);
    setPopoverShown(state.popoverShown);
}

} // namespace quillon
