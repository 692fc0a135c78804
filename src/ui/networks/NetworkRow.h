// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class NetworkInfoModel;
class TracesModel;

/// The network that the selected interface is on.
class NetworkRow : public PopoverRow
{
    Q_OBJECT

public:
    NetworkRow(NetworkInfoModel &model, TracesModel &traces, const Theme &theme);

protected:
    PopoverDetails *makeDetails() override;

private:
    void refresh();

    NetworkInfoModel &m_model;
    TracesModel &m_traces;
};

} // namespace quillon
