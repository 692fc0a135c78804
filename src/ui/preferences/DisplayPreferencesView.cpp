// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/DisplayPreferencesView.h"

#include "base/Localized.h"
#include "presentation/preferences/DisplayPreferencesViewController.h"
#include "ui/preferences/PaneLayout.h"
#include "ui/preferences/SettingCheckBox.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

DisplayPreferencesView::DisplayPreferencesView(
    DisplayPreferencesViewController &controller, const Theme &theme)
    : m_controller(controller)
    , m_capital(makeChoice(u"upperCase"_s, localized("Capital letters"), u"62:AB"_s))
    , m_small(makeChoice(u"lowerCase"_s, localized("Small letters"), u"62:ab"_s))
{
    QVBoxLayout *pane = makePaneColumn(*this);
    QVBoxLayout *letters = addCard(*pane, localized("Letters of addresses"));
    auto *choices = new QHBoxLayout;
    choices->setContentsMargins(0, 0, 0, 0);
    choices->setSpacing(3 * Theme::unit);
    choices->addWidget(m_capital);
    choices->addWidget(m_small);
    choices->addStretch();
    letters->addLayout(choices);
    QVBoxLayout *external = addCard(*pane);
    external->addWidget(new SettingCheckBox(m_controller.shouldUpdateExternalIP,
        u"shouldUpdateExternalIP"_s, localized("Look up the external address")));
    auto *line = new InlineLine(theme);
    line->say(localized("Asks a public service whenever the network changes."));
    addUnderCheckBox(*external, line);
    connect(m_small, &QRadioButton::toggled, this,
        [this](bool isOn) { m_controller.lowerCaseHEX.set(isOn); });
    connect(
        &m_controller.lowerCaseHEX, &BoundSetting::changed, this, &DisplayPreferencesView::refresh);
    refresh();
}

QRadioButton *DisplayPreferencesView::makeChoice(
    const QString &name, const QString &title, const QString &example)
{
    // As addresses, which a mirrored window does not turn round, by U+2066 and U+2069.
    auto *choice = new QRadioButton(u"\u2066"_s + example + u"\u2069"_s);
    choice->setObjectName(name);
    choice->setFont(Theme::font(Theme::Type::Address));
    choice->setAccessibleName(filled(u"%@, %@"_s, {title, example}));
    choice->setToolTip(plainToolTip(title));
    return choice;
}

void DisplayPreferencesView::refresh()
{
    // Of the two one is always checked: checking one unchecks the other.
    (m_controller.lowerCaseHEX.state().isOn ? m_small : m_capital)->setChecked(true);
}

} // namespace quillon
