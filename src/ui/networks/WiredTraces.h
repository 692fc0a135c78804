// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

class NetworkInfoModel;
class TracesModel;

/// What the network still sees, for where there is no network information because no radio has
/// joined a network: nothing where there is.
class WiredTraces : public QWidget
{
    Q_OBJECT

public:
    WiredTraces(TracesModel &traces, NetworkInfoModel &network, QWidget *parent);

private:
    void refresh();

    NetworkInfoModel &m_network;
};

} // namespace quillon
