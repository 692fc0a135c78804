// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/overview/OverviewFacts.h"

#include "base/Localized.h"
#include "ui/overview/LabelLook.h"
#include "ui/overview/OverviewName.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Badge.h"
#include "ui/widgets/OneLineLabel.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Sign.h"

#include <QHBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = Theme::unit;
constexpr int columnGap = Theme::spacing;
constexpr int lineGap = 2;
const QString widestAddress = u"00:00:00:00:00:00"_s;

} // namespace

OverviewFacts::OverviewFacts(const Theme &theme)
    : m_port(new Sign(theme, Theme::headerIconSize))
    , m_name(new OverviewName(theme))
    , m_addressSign(new Sign(theme, Theme::iconSize))
    , m_address(plainLabel())
    , m_badge(new Badge(theme, localized("Hardware"), Badge::Tone::Neutral))
    , m_hardware(new OneLineLabel)
    , m_vendor(new OneLineLabel(Qt::ElideMiddle))
    , m_columns(new QBoxLayout(QBoxLayout::LeftToRight))
    , m_addresses(makeAddresses())
{
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::spacing);
    line->addWidget(m_port, 0, Qt::AlignTop);
    m_columns->setSpacing(columnGap);
    m_columns->addWidget(m_name, 2, Qt::AlignTop);
    m_columns->addWidget(m_addresses, 3, Qt::AlignTop);
    line->addLayout(m_columns, 1);
}

QWidget *OverviewFacts::makeAddresses()
{
    auto *addresses = new QWidget;
    m_address->setFont(Theme::font(Theme::Type::Address));
    auto *address = new QHBoxLayout;
    address->setSpacing(gap);
    for (QWidget *part : std::initializer_list<QWidget *>{m_addressSign, m_address, m_badge}) {
        address->addWidget(part, 0, Qt::AlignVCenter);
    }
    address->addStretch(1);
    auto *lines = new QVBoxLayout(addresses);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(lineGap);
    lines->addLayout(address);
    for (OneLineLabel *label : {m_hardware, m_vendor}) {
        label->label().setProperty("look", u"caption"_s);
        label->label().setFont(Theme::font(Theme::Type::Caption));
        auto *below = new QHBoxLayout;
        below->addSpacing(Theme::iconSize + gap);
        below->addWidget(label, 1);
        lines->addLayout(below);
    }
    // The same in every card, whatever it shows.
    const QFontMetrics word = m_badge->fontMetrics();
    const int badge = std::max(word.horizontalAdvance(localized("Changed")),
                          word.horizontalAdvance(localized("Hardware"))) +
                      2 * gap;
    addresses->setMinimumWidth(Theme::iconSize + gap +
                               m_address->fontMetrics().horizontalAdvance(widestAddress) + 2 + gap +
                               badge);
    return addresses;
}

int OverviewFacts::widthInOneRow() const
{
    return Theme::headerIconSize + Theme::spacing + m_name->minimumWidth() + columnGap +
           m_addresses->minimumWidth();
}

int OverviewFacts::leastWidth() const
{
    return Theme::headerIconSize + Theme::spacing + m_addresses->minimumWidth();
}

void OverviewFacts::setInOneRow(bool inOneRow)
{
    m_columns->setDirection(inOneRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_columns->setSpacing(inOneRow ? columnGap : gap);
}

void OverviewFacts::mirror(const OverviewCell::State &state)
{
    m_port->setSign(state.row.isWifi() ? u"wireless"_s : u"wired"_s, Theme::Ink::Accent);
    m_name->mirror(state);
    showAddress(state);
    m_hardware->setLine(filled(localized("Hardware %@"), {state.hardwareText}));
    m_vendor->setLine(filled(localized("Vendor %@"), {state.vendorText}));
}

void OverviewFacts::showAddress(const OverviewCell::State &state)
{
    const bool isOld = !state.addressNow.isEmpty();
    const bool isDefault = state.row.addressIsDefault;
    m_addressSign->setSign(isDefault ? u"viewfinder-dot"_s : u"viewfinder"_s,
        isDefault || isOld ? Theme::Ink::Muted : Theme::Ink::Accent);
    showLine(*m_address, state.currentText.isEmpty() ? u"–"_s : state.currentText,
        m_address->fontMetrics().horizontalAdvance(widestAddress) * 2);
    m_address->setToolTip(
        plainToolTip(isOld ? filled(localized("The address is now %@."), {state.addressNow})
                           : localized("Current address")));
    setLook(*m_address, isOld ? u"caption"_s : u"value"_s);
    // After the look, which brings a font of its own.
    QFont font = Theme::font(Theme::Type::Address);
    font.setStrikeOut(isOld);
    m_address->setFont(font);
    // It would be about the address of before.
    m_badge->setVisible(!isOld && !state.currentText.isEmpty());
    m_badge->setWord(isDefault ? localized("Hardware") : localized("Changed"));
    m_badge->setTone(isDefault ? Badge::Tone::Neutral : Badge::Tone::Tint);
}

} // namespace quillon
