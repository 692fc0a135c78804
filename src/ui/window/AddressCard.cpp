// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/AddressCard.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Badge.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"
#include "ui/window/AddressField.h"
#include "ui/window/ChangedTint.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

InlineLine::Kind kindOf(AddressFieldLine::Kind kind)
{
    switch (kind) {
    case AddressFieldLine::Kind::Done:
        return InlineLine::Kind::Positive;
    case AddressFieldLine::Kind::Notice:
        return InlineLine::Kind::Notice;
    case AddressFieldLine::Kind::Failure:
        return InlineLine::Kind::Danger;
    case AddressFieldLine::Kind::Hint:
        break;
    }
    return InlineLine::Kind::Muted;
}

/// Says what the button does, or why it does nothing.
void setUsable(BusyButton &button, bool isEnabled, const QString &whatItDoes, const QString &whyNot)
{
    const QString hint = whyNot.isEmpty() ? whatItDoes : whyNot;
    button.setUsable(isEnabled);
    button.setToolTip(plainToolTip(hint));
    button.setAccessibleDescription(hint);
}

} // namespace

AddressCard::AddressCard(MainWindowModel &model, const Theme &theme, QWidget *parent)
    : TextFieldBackgroundView(model, parent)
    , m_model(model)
    , m_changed(new Badge(theme, localized("Changed")))
    , m_field(new AddressField(model))
    , m_tint(new ChangedTint(theme, *m_field))
    , m_apply(new BusyButton(theme, Theme::Ink::Text, localized("&Apply")))
    , m_line(new InlineLine(theme))
    , m_randomize(new BusyButton(theme, Theme::Ink::OnAccent, localized("&Randomize")))
    , m_choices(new QHBoxLayout)
{
    makeField();
    makeRandomize(theme);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMargin);
    column->setSpacing(6);
    column->addWidget(makeHead());
    auto *field = new QHBoxLayout;
    field->setSpacing(Theme::unit);
    field->addWidget(m_field, 1);
    field->addWidget(m_apply);
    column->addLayout(field);
    column->addWidget(m_line);
    column->addSpacing(Theme::unit / 2);
    m_choices->setSpacing(Theme::unit);
    m_choices->addWidget(m_randomize);
    column->addLayout(m_choices);
    connect(&m_model, &MainWindowModel::changed, this, &AddressCard::refresh);
    connect(&m_model, &MainWindowModel::fieldRestored, m_field, &AddressField::refresh);
    refresh();
}

QWidget *AddressCard::makeHead()
{
    auto *head = new QWidget;
    auto *caption = plainLabel(localized("A&ddress"));
    caption->setProperty("look", u"caption"_s);
    caption->setBuddy(m_field);
    m_changed->setObjectName(u"hardwareIndicator"_s);
    m_changed->setToolTip(
        plainToolTip(localized("The address in use is not the hardware address")));
    auto *line = new QHBoxLayout(head);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(caption, 1);
    line->addWidget(m_changed);
    // As high without the badge.
    head->setMinimumHeight(m_changed->sizeHint().height());
    return head;
}

void AddressCard::makeField()
{
    m_apply->setObjectName(u"updateButton"_s);
    m_apply->setAccessibleName(localized("Apply address"));
    m_apply->setBusyName(localized("Applying…"));
    m_apply->setAutoDefault(true);
    // As high as the field, whose text is larger.
    m_apply->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    connect(m_apply, &QPushButton::clicked, &m_model, &MainWindowModel::changeMacAddress);
    connect(m_field, &QLineEdit::returnPressed, m_apply, &QPushButton::click);
}

void AddressCard::makeRandomize(const Theme &theme)
{
    m_randomize->setObjectName(u"randomizeButton"_s);
    m_randomize->setProperty("look", u"primary"_s);
    m_randomize->setBusyText(localized("Randomizing…"));
    m_randomize->setAccessibleName(localized("Randomize address"));
    m_randomize->setIcon(theme.icon(u"random"_s, Theme::Ink::OnAccent));
    m_randomize->setAutoDefault(true);
    m_randomize->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    connect(m_randomize, &QPushButton::clicked, &m_model, &MainWindowModel::randomizeAddress);
}

void AddressCard::addChoice(QWidget *control)
{
    m_choices->addWidget(control, 1);
}

void AddressCard::focusApply()
{
    QWidget *target = m_field;
    if (m_apply->isUsable()) {
        target = m_apply;
    }
    target->setFocus(Qt::OtherFocusReason);
}

void AddressCard::randomize()
{
    if (m_randomize->isUsable()) {
        m_randomize->click();
    }
}

void AddressCard::refresh()
{
    const auto &state = m_model.state();
    m_changed->setVisible(state.hardwareIndicatorVisible);
    m_field->refresh();
    m_field->setPlaceholderText(plainLine(state.fieldPlaceholder));
    m_field->setAccessibleDescription(
        state.hardwareIndicatorVisible
            ? localized("Changed: the address in use is not the hardware address")
            : localized("Twelve hexadecimal digits. Return applies the address."));
    m_line->say(state.fieldLine.text, kindOf(state.fieldLine.kind));
    m_apply->setBusy(state.busyButton == ChangeRequest::Apply);
    m_randomize->setBusy(state.busyButton == ChangeRequest::Randomize);
    setUsable(*m_apply, state.updateEnabled,
        localized("Gives the interface the address in the field"), state.whyNoUpdate);
    setUsable(*m_randomize, state.randomizeEnabled,
        localized("Gives the interface a random, locally administered address"),
        state.whyNoRandomize);
    // After them: it gives the keyboard to the next that can be used.
    m_field->setEnabled(state.fieldEnabled);
    flashIfChanged();
}

void AddressCard::flashIfChanged()
{
    const auto &state = m_model.state();
    const bool isSameDevice = m_device == state.selectedDevice && !m_device.isEmpty();
    if (isSameDevice && !m_address.isEmpty() && m_address != state.currentAddress) {
        m_tint->flash();
    }
    m_device = state.selectedDevice;
    m_address = state.currentAddress;
}

} // namespace quillon
