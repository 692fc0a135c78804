// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QGridLayout;
class QLabel;

namespace quillon {

class MainWindowModel;

/// What is known of the selected interface: its addresses, and whether the address in use is the
/// factory address.
class InterfaceDetails : public QFrame
{
    Q_OBJECT

public:
    explicit InterfaceDetails(MainWindowModel &model, QWidget *parent = nullptr);

    void refresh();

private:
    QLabel *addRow(QGridLayout &grid, const QString &caption);
    static void showValue(QLabel &label, const QString &value);

    MainWindowModel &m_model;
    QLabel *m_current;
    QLabel *m_factory;
    QLabel *m_ipAddress;
    QLabel *m_changed;
};

} // namespace quillon
