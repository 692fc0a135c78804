// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/WiredTraces.h"

#include "presentation/networks/NetworkInfoModel.h"
#include "ui/networks/TracesView.h"

#include <QVBoxLayout>

namespace quillon {

WiredTraces::WiredTraces(TracesModel &traces, NetworkInfoModel &network, QWidget *parent)
    : QWidget(parent)
    , m_network(network)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new TracesView(traces));
    connect(&m_network, &NetworkInfoModel::changed, this, &WiredTraces::refresh);
    refresh();
}

void WiredTraces::refresh()
{
    setVisible(!m_network.state().buttonVisible);
}

} // namespace quillon
