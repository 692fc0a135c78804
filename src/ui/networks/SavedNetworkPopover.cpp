// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedNetworkPopover.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int widestChoice = 260;

QRadioButton *makeChoice(const QString &name)
{
    auto *choice = new QRadioButton;
    choice->setObjectName(name);
    choice->setMinimumHeight(Theme::target);
    // Qt overlooks what takes no keyboard when it is told an order.
    choice->setFocusPolicy(Qt::TabFocus);
    return choice;
}

void showChoice(
    QRadioButton &choice, const QString &text, const SavedEntryPopoverModel::TickButton &tick)
{
    const QString line = plainLine(text);
    choice.setAccessibleName(line);
    choice.setToolTip(plainToolTip(text));
    const QString shown = choice.fontMetrics().elidedText(line, Qt::ElideMiddle, widestChoice);
    choice.setText(plainLine(shown).replace(u'&', u"&&"_s));
    choice.setChecked(tick.on);
    // Tab comes to the one that is on, the arrow keys to the other. A click on either does not end
    // the editing of the name.
    choice.setFocusPolicy(tick.on ? Qt::TabFocus : Qt::NoFocus);
}

} // namespace

SavedNetworkPopover::SavedNetworkPopover(
    SavedEntryPopoverModel &model, const Theme &theme, QWidget *parent)
    : SavedEntryPopover(model, Kind::Network, theme, parent)
    , m_bySsid(makeChoice(u"ssidbutton"_s))
    , m_byBssid(makeChoice(u"bssidbutton"_s))
{
    auto *choices = new QWidget;
    choices->setAccessibleName(localized("Recognize by"));
    setAccessibleRole(*choices, QAccessible::Grouping);
    auto *caption = plainLabel(localized("Recognize by"));
    caption->setProperty("look", u"caption"_s);
    auto *column = new QVBoxLayout(choices);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(caption);
    // Room for the ring of what has the keyboard.
    column->addSpacing(Theme::unit / 2);
    column->addWidget(m_bySsid, 0, Qt::AlignLeading);
    column->addWidget(m_byBssid, 0, Qt::AlignLeading);
    add(choices, {m_bySsid, m_byBssid});
    // Assistive technology toggles them without a click. What is on already has no action.
    connect(m_bySsid, &QRadioButton::toggled, &model, [&model](bool isOn) {
        if (isOn) {
            model.chooseSsidTickButton();
        }
    });
    connect(m_byBssid, &QRadioButton::toggled, &model, [&model](bool isOn) {
        if (isOn) {
            model.chooseBssidTickButton();
        }
    });
}

void SavedNetworkPopover::refreshDetails()
{
    showChoice(*m_bySsid, filled(localized("Name %@"), {state().ssid}), state().ssidTickButton);
    showChoice(
        *m_byBssid, filled(localized("Access point %@"), {state().bssid}), state().bssidTickButton);
}

} // namespace quillon
