// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/overview/OverviewCell.h"

#include <QWidget>

class QBoxLayout;
class QLabel;

namespace quillon {

class Badge;
class OneLineLabel;
class OverviewName;
class Sign;
class Theme;

/// What a card says of its interface: which one it is, its link, its addresses and its vendor.
class OverviewFacts : public QWidget
{
    Q_OBJECT

public:
    explicit OverviewFacts(const Theme &theme);

    void mirror(const OverviewCell::State &state);
    /// The width that it needs with the addresses beside the name.
    int widthInOneRow() const;
    int leastWidth() const;
    /// Puts the addresses beside the name, or below it.
    void setInOneRow(bool inOneRow);

private:
    QWidget *makeAddresses();
    void showAddress(const OverviewCell::State &state);

    Sign *m_port;
    OverviewName *m_name;
    Sign *m_addressSign;
    QLabel *m_address;
    Badge *m_badge;
    OneLineLabel *m_hardware;
    OneLineLabel *m_vendor;
    QBoxLayout *m_columns;
    QWidget *m_addresses;
};

} // namespace quillon
