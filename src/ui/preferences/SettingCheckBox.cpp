// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/SettingCheckBox.h"

#include "presentation/preferences/BoundSetting.h"
#include "ui/widgets/PlainText.h"

#include <QKeyEvent>

namespace quillon {

SettingCheckBox::SettingCheckBox(BoundSetting &setting, const QString &name, const QString &title)
    : QCheckBox(title)
    , m_setting(setting)
{
    setObjectName(name);
    setAccessibleName(title);
    // Not clicked(): assistive technology toggles it.
    connect(this, &QCheckBox::toggled, this, &SettingCheckBox::take);
    connect(&m_setting, &BoundSetting::changed, this, &SettingCheckBox::refresh);
    refresh();
}

void SettingCheckBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QCheckBox::keyPressEvent(event);
    }
}

void SettingCheckBox::take(bool isOn)
{
    if (isOn != m_setting.state().isOn) {
        m_setting.set(isOn);
        refresh();
        if (isChecked() == isOn) {
            Q_EMIT switched(isOn);
        }
    }
}

void SettingCheckBox::refresh()
{
    const auto &state = m_setting.state();
    setChecked(state.isOn);
    setEnabled(m_setting.isUsable());
    setAccessibleDescription(state.whyDisabled);
    setToolTip(plainToolTip(state.whyDisabled));
}

} // namespace quillon
