// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/InterfaceHeader.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Sign.h"
#include "ui/window/InterfaceSelector.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QStyle>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int linkDotSize = 10;

QString shownOfLink(const MainWindowModel::State &state)
{
    const QString ofLink = state.linkActive ? localized("Active") : localized("Inactive");
    return state.isGone ? localized("Not there") : ofLink;
}

QString saidOfLink(const MainWindowModel::State &state)
{
    const QString ofLink = state.linkActive ? localized("Link active") : localized("Link inactive");
    return state.isGone ? localized("Not there") : ofLink;
}

} // namespace

InterfaceHeader::InterfaceHeader(MainWindowModel &model, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_selector(new InterfaceSelector(model))
    , m_portIcon(new Sign(theme, Theme::headerIconSize))
    , m_portName(plainLabel())
    , m_linkDot(new Sign(theme, linkDotSize))
    , m_linkText(plainLabel())
    , m_separator(plainLabel(u"·"_s))
    , m_ipAddress(plainLabel())
{
    setAccessibleRole(*this, QAccessible::Grouping);
    setMinimumWidth(Theme::windowWidth - 2 * Theme::windowMargin);
    // Nobody sees it: it names the button, whose own name is its value, to assistive technology.
    auto *caption = plainLabel(localized("Interface"));
    caption->setParent(this);
    caption->setBuddy(m_selector);
    caption->hide();
    m_portName->setObjectName(u"portName"_s);
    m_portName->setFont(Theme::font(Theme::Type::Strong));
    m_linkText->setObjectName(u"linkState"_s);
    m_ipAddress->setObjectName(u"ipAddress"_s);
    m_ipAddress->setProperty("look", u"caption"_s);
    m_ipAddress->setToolTip(plainToolTip(localized("IPv4 address")));
    m_separator->setProperty("look", u"caption"_s);
    m_ipAddress->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *link = new QHBoxLayout;
    link->setSpacing(6);
    link->addWidget(m_linkDot);
    link->addWidget(m_linkText);
    link->addWidget(m_separator);
    link->addWidget(m_ipAddress);
    link->addStretch(1);
    auto *port = new QVBoxLayout;
    port->setSpacing(2);
    port->addWidget(m_portName);
    port->addLayout(link);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::unit + Theme::unit / 2);
    row->addWidget(m_portIcon);
    row->addLayout(port);
    row->addStretch(1);
    row->addWidget(m_selector);
    refresh();
}

void InterfaceHeader::addAtEnd(QWidget *control)
{
    layout()->addWidget(control);
}

void InterfaceHeader::refresh()
{
    const auto &state = m_model.state();
    m_selector->refresh();
    showLine(*m_portName, state.interfaceName, Theme::windowWidth / 2);
    m_separator->setVisible(!state.ipAddress.isEmpty());
    m_ipAddress->setVisible(!state.ipAddress.isEmpty());
    showLine(*m_ipAddress, state.ipAddress, Theme::windowWidth / 3);
    refreshLink();
    announceState();
}

void InterfaceHeader::announceState()
{
    const auto &state = m_model.state();
    if (state.selectedDevice.isEmpty()) {
        return;
    }
    QStringList said{state.interfaceName, state.selectedDevice, saidOfLink(state)};
    if (!state.ipAddress.isEmpty()) {
        said.append(state.ipAddress);
    }
    const QString line = plainLine(said.join(u", "_s));
    if (line == accessibleName()) {
        return;
    }
    if (isVisible() && !accessibleName().isEmpty()) {
        announce(*this, line);
    } else {
        setAccessibleName(line);
    }
}

void InterfaceHeader::refreshLink()
{
    const auto &state = m_model.state();
    const bool known = !state.interfaceName.isEmpty();
    const bool active = state.linkActive;
    m_linkDot->setVisible(known);
    m_linkDot->setSign(active ? u"link-active"_s : u"link-inactive"_s,
        active ? Theme::Ink::Positive : Theme::Ink::Muted);
    m_linkText->setText(plainLine(known ? shownOfLink(state) : QString()));
    m_linkText->setAccessibleName(saidOfLink(state));
    m_linkText->setProperty("look", active ? u"active"_s : u"inactive"_s);
    style()->unpolish(m_linkText);
    style()->polish(m_linkText);
    const bool wireless = state.interfaceName == localized("Wi-Fi");
    m_portIcon->setVisible(known);
    m_portIcon->setSign(wireless ? u"wireless"_s : u"wired"_s, Theme::Ink::Accent);
}

} // namespace quillon
