// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QLabel;
class QToolButton;
class QWidget;

namespace quillon {

class CountdownModel;
class ExternalAddressModel;
class InterfaceDetails;
class RuleStatusModel;
class Theme;

/// How the selected interface stands, as rows of its details: the address that the internet sees,
/// whether a rule is in force, and the countdown to its next change with the buttons that pause and
/// resume it.
class StatusRows : public QObject
{
    Q_OBJECT

public:
    struct Models
    {
        ExternalAddressModel &externalAddress;
        RuleStatusModel &rules;
        CountdownModel &countdown;
    };

    /// Adds the rows to `details`, and ends with it.
    StatusRows(const Models &models, const Theme &theme, InterfaceDetails &details);

private:
    void addExternalAddress(InterfaceDetails &details);
    void addRules(InterfaceDetails &details);
    void addCountdown(InterfaceDetails &details);
    void refreshExternalAddress();
    void refreshRules();
    void refreshCountdown();

    Models m_models;
    const Theme &m_theme;
    QLabel *m_externalAddress = nullptr;
    QLabel *m_rulesImage = nullptr;
    QLabel *m_rules = nullptr;
    QWidget *m_countdownRow = nullptr;
    QLabel *m_countdown = nullptr;
    QToolButton *m_pause = nullptr;
    QToolButton *m_resume = nullptr;
};

} // namespace quillon
