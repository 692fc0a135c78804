// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RuleSwitchLine.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Badge.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/ToggleSwitch.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quillon {

namespace {

constexpr int widestName = 22; ///< in characters of average width

} // namespace

RuleSwitchLine::RuleSwitchLine(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_switch(new ToggleSwitch(theme))
    , m_name(plainLabel())
    , m_active(new Badge(theme, localized("Active")))
{
    setMinimumHeight(Theme::rowHeight);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::unit + 4);
    line->addWidget(m_switch);
    line->addWidget(m_name, 1);
    line->addWidget(m_active);
    // Not its click: assistive technology toggles it without one.
    connect(m_switch, &QCheckBox::toggled, this, [this](bool isOn) {
        if (isOn != m_isOn) {
            Q_EMIT switched(isOn);
        }
    });
}

QWidget *RuleSwitchLine::control() const
{
    return m_switch;
}

void RuleSwitchLine::setRule(const RulesListModel::Row &rule)
{
    m_objID = rule.objID;
    const QString name = plainLine(rule.name);
    showLine(*m_name, rule.name, widestName * m_name->fontMetrics().averageCharWidth());
    m_name->setToolTip(plainToolTip(rule.name));
    m_isOn = rule.enabled;
    m_switch->setChecked(rule.enabled);
    m_switch->setAccessibleName(name);
    m_switch->setAccessibleDescription(rule.active ? localized("Active") : QString());
    m_active->setVisible(rule.active);
}

} // namespace quillon
