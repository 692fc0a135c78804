// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>

namespace quillon {

class BoundSetting;

/// A check box that is a setting. Why it cannot be used is its description.
class SettingCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    /// `name` finds it in tests; `title` is in the user's language.
    SettingCheckBox(BoundSetting &setting, const QString &name, const QString &title);

Q_SIGNALS:
    /// By the user; the setting is so already.
    void switched(bool isOn);

protected:
    /// Return switches it as Space does.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void take(bool isOn);
    void refresh();

    BoundSetting &m_setting;
};

} // namespace quillon
