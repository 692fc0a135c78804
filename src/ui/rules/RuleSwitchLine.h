// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/rules/RulesListModel.h"

#include <QWidget>

class QLabel;

namespace quillon {

class Badge;
class Theme;
class ToggleSwitch;

/// One rule in a list: its switch, its name, and whether it is the one that holds now.
class RuleSwitchLine : public QWidget
{
    Q_OBJECT

public:
    explicit RuleSwitchLine(const Theme &theme, QWidget *parent = nullptr);

    void setRule(const RulesListModel::Row &rule);
    /// Which rule it shows.
    const QString &objID() const { return m_objID; }
    /// What takes the keyboard in it.
    QWidget *control() const;

Q_SIGNALS:
    /// By the user.
    void switched(bool isOn);

private:
    QString m_objID;
    ToggleSwitch *m_switch;
    QLabel *m_name;
    Badge *m_active;
    bool m_isOn = false; ///< as the rule is
};

} // namespace quillon
