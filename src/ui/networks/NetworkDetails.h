// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverDetails.h"

class QGridLayout;
class QLabel;

namespace quillon {

class HeartButton;
class LiveGraph;
class NetworkInfoModel;
class PopoverHead;
class Theme;
class TracesModel;
class TracesView;

/// What the radio knows of its network: fields, signal and noise of the last minutes, and what that
/// of the selected interface knows it by.
class NetworkDetails : public PopoverDetails
{
    Q_OBJECT

public:
    NetworkDetails(NetworkInfoModel &model, TracesModel &traces, const Theme &theme);

    void refresh() override;

private:
    void makeFields();

    NetworkInfoModel &m_model;
    PopoverHead *m_head;
    HeartButton *m_heart;
    QGridLayout *m_grid;
    QList<QLabel *> m_values;
    LiveGraph *m_graph;
    TracesView *m_traces;
};

} // namespace quillon
