// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace quillon {

class PreferencesWindowModel;
class VendorPaneModel;

/// Says that the list of manufacturers is missing, and leads to where it is downloaded: there only
/// while it is.
class MissingVendors : public QWidget
{
    Q_OBJECT

public:
    MissingVendors(VendorPaneModel &model, PreferencesWindowModel &preferences);

private:
    void refresh();

    VendorPaneModel &m_model;
    QLabel *m_text;
    QPushButton *m_button;
};

} // namespace quillon
