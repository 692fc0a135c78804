// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/StatusRows.h"

#include "base/Localized.h"
#include "presentation/networks/ExternalAddressModel.h"
#include "presentation/rules/CountdownModel.h"
#include "presentation/rules/RuleStatusModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"
#include "ui/window/InterfaceDetails.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int ruleDotSize = 10;

QToolButton *makeButton(const QString &objectName, const QString &name, const QIcon &icon)
{
    auto *button = new QToolButton;
    button->setObjectName(objectName);
    button->setProperty("look", u"row"_s);
    button->setIcon(icon);
    button->setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    // As high as the row, whatever a style adds.
    button->setFixedSize(Theme::rowHeight, Theme::rowHeight);
    button->setAccessibleName(name);
    button->setToolTip(plainToolTip(name));
    return button;
}

} // namespace

StatusRows::StatusRows(const Models &models, const Theme &theme, InterfaceDetails &details)
    : QObject(&details)
    , m_models(models)
    , m_theme(theme)
{
    addExternalAddress(details);
    addRules(details);
    addCountdown(details);

    connect(&m_models.externalAddress, &ExternalAddressModel::changed, this,
        &StatusRows::refreshExternalAddress);
    connect(&m_models.rules, &RuleStatusModel::changed, this, &StatusRows::refreshRules);
    connect(&m_models.countdown, &CountdownModel::changed, this, &StatusRows::refreshCountdown);
    connect(&m_theme, &Theme::changed, this, &StatusRows::refreshRules);
    refreshExternalAddress();
    refreshRules();
    refreshCountdown();
}

void StatusRows::addExternalAddress(InterfaceDetails &details)
{
    m_externalAddress = InterfaceDetails::makeValue(u"externalAddress"_s);
    auto *button = makeButton(u"refreshExternalIP"_s, localized("Refresh external address"),
        m_theme.icon(u"refresh"_s, Theme::Ink::Muted));
    button->setToolTip(
        plainToolTip(localized("Asks a public service under which address it sees you")));
    connect(button, &QToolButton::clicked, this,
        [this] { m_models.externalAddress.refreshExternalIP(); });
    details.addRow(localized("External address"), m_externalAddress, {nullptr, button});
}

void StatusRows::addRules(InterfaceDetails &details)
{
    m_rulesImage = plainLabel();
    m_rulesImage->setFixedSize(ruleDotSize, ruleDotSize);
    m_rules = plainLabel();
    m_rules->setObjectName(u"rulesLabel"_s);
    details.addRow(localized("Rules"), m_rules, {m_rulesImage, nullptr});
}

void StatusRows::addCountdown(InterfaceDetails &details)
{
    m_countdown = plainLabel();
    m_countdown->setObjectName(u"timerLabel"_s);
    // A text that is too long takes a second line instead of widening the window.
    m_countdown->setWordWrap(true);
    m_pause = makeButton(
        u"pauseButton"_s, localized("Pause"), m_theme.icon(u"pause"_s, Theme::Ink::Text));
    m_resume = makeButton(
        u"resumeButton"_s, localized("Resume"), m_theme.icon(u"resume"_s, Theme::Ink::Text));
    connect(
        m_pause, &QToolButton::clicked, this, [this] { m_models.countdown.pauseCountdownTimer(); });
    connect(m_resume, &QToolButton::clicked, this,
        [this] { m_models.countdown.resumeCountdownTimer(); });
    auto *content = new QWidget;
    auto *layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::unit / 2);
    layout->addWidget(m_countdown, 1);
    layout->addWidget(m_pause);
    layout->addWidget(m_resume);
    m_countdownRow = details.addWideRow(content);
}

void StatusRows::refreshExternalAddress()
{
    InterfaceDetails::showValue(*m_externalAddress, m_models.externalAddress.text());
}

void StatusRows::refreshRules()
{
    const auto &state = m_models.rules.state();
    const bool available = state.image == "NSStatusAvailable"_L1;
    const bool partially = state.image == "NSStatusPartiallyAvailable"_L1;
    const Theme::Ink ink = available   ? Theme::Ink::Positive
                           : partially ? Theme::Ink::Notice
                                       : Theme::Ink::Muted;
    const QString name = available ? u"link-active"_s : u"link-inactive"_s;
    m_rulesImage->setPixmap(m_theme.icon(name, ink).pixmap(
        QSize(ruleDotSize, ruleDotSize), m_rulesImage->devicePixelRatioF()));
    const QString text = available   ? localized("Active rule")
                         : partially ? localized("No active rules")
                                     : localized("No rules");
    showLine(*m_rules, text);
    m_rules->setToolTip(plainToolTip(state.toolTip));
    m_rulesImage->setToolTip(plainToolTip(state.toolTip));
}

void StatusRows::refreshCountdown()
{
    const auto &state = m_models.countdown.state();
    showLine(*m_countdown, state.label);
    m_countdownRow->setVisible(state.buttonsVisible || !state.label.isEmpty());
    m_pause->setVisible(state.buttonsVisible);
    m_resume->setVisible(state.buttonsVisible);
    m_pause->setEnabled(state.pauseEnabled);
    m_resume->setEnabled(state.resumeEnabled);
}

} // namespace quillon
