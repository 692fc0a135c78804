// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/overview/OverviewName.h"

#include "ui/overview/LabelLook.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/OneLineLabel.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Sign.h"

#include <QHBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int dotSize = 10;
constexpr int dotGap = 6;
constexpr int lineGap = 2;
/// There is room for them beside the addresses: the name of most interfaces, and of those whose
/// device is called by its address.
const QString usualName = u"Ethernet · enp1s0"_s;
const QString usualLongDevice = u"enx00005e005310"_s;

} // namespace

OverviewName::OverviewName(const Theme &theme)
    : m_title(new OneLineLabel(Qt::ElideMiddle))
    , m_device(new OneLineLabel(Qt::ElideMiddle))
    , m_dot(new Sign(theme, dotSize))
    , m_link(new OneLineLabel)
{
    m_title->label().setFont(Theme::font(Theme::Type::Strong));
    auto *link = new QHBoxLayout;
    link->setSpacing(dotGap);
    link->addWidget(m_dot, 0, Qt::AlignVCenter);
    link->addWidget(m_link, 1);
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(lineGap);
    lines->addWidget(m_title);
    lines->addWidget(m_device);
    lines->addLayout(link);
    m_device->hide();
    setMinimumWidth(std::max(m_title->label().fontMetrics().horizontalAdvance(usualName),
                        m_device->label().fontMetrics().horizontalAdvance(usualLongDevice)) +
                    2);
}

void OverviewName::mirror(const OverviewCell::State &state)
{
    m_whole = state.title;
    m_port = state.row.interface;
    m_device->setLine(state.row.device);
    m_dot->setSign(state.linkActive ? u"link-active"_s : u"link-inactive"_s,
        state.linkActive ? Theme::Ink::Positive : Theme::Ink::Muted);
    m_link->setLine(state.linkText);
    setLook(m_link->label(), state.linkActive ? u"value"_s : u"caption"_s);
    fit();
}

void OverviewName::fit()
{
    const int needed = m_title->label().fontMetrics().horizontalAdvance(plainEntry(m_whole));
    const bool isOneLine = needed <= width() || m_port.isEmpty();
    m_title->setLine(isOneLine ? m_whole : m_port);
    m_device->setVisible(!isOneLine);
}

void OverviewName::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fit();
}

} // namespace quillon
