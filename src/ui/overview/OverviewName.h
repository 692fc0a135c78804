// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/overview/OverviewCell.h"

#include <QWidget>

namespace quillon {

class OneLineLabel;
class Sign;
class Theme;

/// Which interface a card is about, and what its link is like. Port and device stand on one line
/// where there is room for both, else on two: a device is known by the end of its name.
class OverviewName : public QWidget
{
    Q_OBJECT

public:
    explicit OverviewName(const Theme &theme);

    void mirror(const OverviewCell::State &state);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    OneLineLabel *m_title;
    OneLineLabel *m_device;
    Sign *m_dot;
    OneLineLabel *m_link;
    QString m_whole; ///< port and device
    QString m_port;
};

} // namespace quillon
