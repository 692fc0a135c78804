// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;

namespace quillon {

class BusyButton;
class InlineLine;
class OfferedVersion;
class Theme;
class UpdatePreferencesViewController;

/// "Updates" of the preferences: whether and how often to look for new versions, how the last look
/// went, and the version that can be had. In a build that does not look it says so.
class UpdatePreferencesView : public QWidget
{
    Q_OBJECT

public:
    UpdatePreferencesView(UpdatePreferencesViewController &model, const Theme &theme);

private:
    QFrame *makeAbsence();
    QFrame *makeSettings();
    QWidget *makeLook(const Theme &theme);
    void refresh();

    UpdatePreferencesViewController &m_model;
    QLabel *m_lastCheck;
    BusyButton *m_checkNow;
    InlineLine *m_result;
    QCheckBox *m_check;
    QComboBox *m_interval;
    QCheckBox *m_autoInstall;
    QWidget *m_absence;
    QWidget *m_look;
    OfferedVersion *m_offer;
    QWidget *m_settings;
};

} // namespace quillon
