// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace quillon {

class InlineLine;
class Theme;
class VendorPaneModel;

/// "Vendor Data": when the registry of manufacturers was last refreshed, how many it holds, and the
/// buttons that refresh it and bring back what was before. A pane of the preferences.
class VendorPreferencesView : public QWidget
{
    Q_OBJECT

public:
    VendorPreferencesView(VendorPaneModel &model, const Theme &theme);

private:
    void refresh();

    VendorPaneModel &m_model;
    InlineLine *m_updated;
    QLabel *m_count;
    QProgressBar *m_progress;
    QPushButton *m_button;
    QPushButton *m_restore;
};

} // namespace quillon
