// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/SecondaryWindow.h"

class QPushButton;

namespace quillon {

class EmptyState;
class InlineLine;
class Overview;
class OverviewTable;
class ReadMeModel;
class Strip;
class Theme;

/// Every interface at once, with what can be done to each. It mirrors Overview: what it shows is
/// read when it is opened, and released when it is closed. Main thread.
class OverviewWindow : public SecondaryWindow
{
    Q_OBJECT

public:
    struct Models
    {
        Overview &overview;
        ReadMeModel &readMe;
        Presence &presence;
    };

    OverviewWindow(const Models &models, const Theme &theme, TaskBar &taskBar);
    ~OverviewWindow() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeFooter();
    void takeController();
    void dropController();
    void refreshRows();
    void refreshAge();
    void refreshHelper();

    Overview &m_overview;
    ReadMeModel &m_readMe;
    const Theme &m_theme;
    Strip *m_helper;
    OverviewTable *m_table;
    EmptyState *m_empty;
    InlineLine *m_age;
    QPushButton *m_reload;
    bool m_wasShown = false;
};

} // namespace quillon
