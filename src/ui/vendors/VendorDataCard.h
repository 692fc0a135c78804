// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace quillon {

class Theme;
class VendorPaneModel;

/// "Vendor Data": when the registry of manufacturers was last refreshed, how many it holds, and the
/// buttons that refresh it and bring back what was before. Folded until its title is chosen.
class VendorDataCard : public QFrame
{
    Q_OBJECT

public:
    VendorDataCard(VendorPaneModel &model, const Theme &theme, QWidget *parent = nullptr);

private:
    QWidget *makeContent();
    void fold(bool folded);
    void refresh();

    VendorPaneModel &m_model;
    const Theme &m_theme;
    QToolButton *m_title;
    QWidget *m_content;
    QLabel *m_updated;
    QLabel *m_count;
    QProgressBar *m_progress;
    QPushButton *m_button;
    QPushButton *m_restore;
};

} // namespace quillon
