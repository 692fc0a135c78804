// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace quillon {

class InterfaceSelector;
class MainWindowModel;
class Sign;
class Theme;

/// The top of the main window: what the selected interface is, whether its link is active, and the
/// button that selects another.
class InterfaceHeader : public QWidget
{
    Q_OBJECT

public:
    InterfaceHeader(MainWindowModel &model, const Theme &theme, QWidget *parent = nullptr);

    InterfaceSelector &selector() { return *m_selector; }
    /// Puts a control at the end of the line.
    void addAtEnd(QWidget *control);
    void refresh();

private:
    void refreshLink();
    void announceState();

    MainWindowModel &m_model;
    InterfaceSelector *m_selector;
    Sign *m_portIcon;
    QLabel *m_portName;
    Sign *m_linkDot;
    QLabel *m_linkText;
    QLabel *m_separator;
    QLabel *m_ipAddress;
};

} // namespace quillon
