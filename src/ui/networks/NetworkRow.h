// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

class QGridLayout;
class QLabel;

namespace quillon {

class HeartButton;
class LiveGraph;
class NetworkInfoModel;
class PopoverHead;

/// The Wi-Fi network that the computer is on; its popover tells what the radio knows of it.
class NetworkRow : public PopoverRow
{
    Q_OBJECT

public:
    NetworkRow(NetworkInfoModel &model, const Theme &theme, QWidget *parent = nullptr);

private:
    void makeContent();
    void refresh();
    void refreshDetails();

    NetworkInfoModel &m_model;
    PopoverHead *m_head;
    HeartButton *m_heart;
    QGridLayout *m_grid;
    QList<QLabel *> m_values;
    LiveGraph *m_graph;
};

} // namespace quillon
