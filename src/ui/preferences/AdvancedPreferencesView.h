// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;
class QVBoxLayout;

namespace quillon {

class AdvancedPreferencesViewController;
class BoundSetting;
class BusyButton;
class DefaultMinutes;
class InterfaceOwners;
class Theme;

/// The advanced preferences: the helper, what changes are like, and who manages the interfaces.
class AdvancedPreferencesView : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        AdvancedPreferencesViewController &helper;
        DefaultMinutes &defaultMinutes;
        BoundSetting &driftAlarm;
        InterfaceOwners &owners;
    };

    AdvancedPreferencesView(const Models &models, const Theme &theme);
    ~AdvancedPreferencesView() override;

    /// What is typed counts: the program ends.
    void endEditing();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addHelper(QVBoxLayout &card);
    void addMinutes(QVBoxLayout &card);
    void refreshHelper();
    void refreshMinutes();
    void refreshOwners();

    Models m_models;
    QLabel *m_status;
    BusyButton *m_install;
    BusyButton *m_uninstall;
    QLineEdit *m_minutes;
    QListWidget *m_owners;
};

} // namespace quillon
