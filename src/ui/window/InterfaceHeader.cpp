// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/InterfaceHeader.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"
#include "ui/window/InterfaceSelector.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int portIconSize = 32;
constexpr int linkDotSize = 10;

} // namespace

InterfaceHeader::InterfaceHeader(MainWindowModel &model, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_theme(theme)
    , m_selector(new InterfaceSelector(model))
    , m_selectorCaption(plainLabel(localized("&Interface")))
    , m_portIcon(plainLabel())
    , m_portName(plainLabel())
    , m_linkDot(plainLabel())
    , m_linkText(plainLabel())
{
    setMinimumWidth(Theme::windowWidth - 2 * Theme::windowMargin);
    m_portIcon->setFixedSize(portIconSize, portIconSize);
    m_selectorCaption->setProperty("look", u"caption"_s);
    m_selectorCaption->setBuddy(m_selector);
    m_portName->setObjectName(u"portName"_s);
    m_portName->setFont(Theme::textFont(1.0, QFont::DemiBold));
    m_linkDot->setFixedSize(linkDotSize, linkDotSize);
    m_linkText->setObjectName(u"linkState"_s);

    auto *link = new QHBoxLayout;
    link->setSpacing(6);
    link->addWidget(m_linkDot);
    link->addWidget(m_linkText);
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
    row->addWidget(m_selectorCaption);
    row->addWidget(m_selector);
    connect(&m_theme, &Theme::changed, this, &InterfaceHeader::refreshLink);
    refresh();
}

void InterfaceHeader::refresh()
{
    const auto &state = m_model.state();
    m_selector->refresh();
    m_selectorCaption->setVisible(state.selectionVisible);
    showLine(*m_portName, state.interfaceName, Theme::windowWidth / 2);
    refreshLink();
}

void InterfaceHeader::refreshLink()
{
    const auto &state = m_model.state();
    const bool known = !state.interfaceName.isEmpty();
    const bool active = state.linkActive;
    const auto picture = [this](const QString &name, Theme::Ink ink, int size) {
        return m_theme.icon(name, ink).pixmap(QSize(size, size), devicePixelRatioF());
    };
    m_linkDot->setVisible(known);
    m_linkDot->setPixmap(active ? picture(u"link-active"_s, Theme::Ink::Positive, linkDotSize)
                                : picture(u"link-inactive"_s, Theme::Ink::Muted, linkDotSize));
    m_linkText->setText(!known ? QString() : active ? localized("Active") : localized("Inactive"));
    m_linkText->setAccessibleName(active ? localized("Link active") : localized("Link inactive"));
    m_linkText->setProperty("look", active ? u"active"_s : u"inactive"_s);
    style()->unpolish(m_linkText);
    style()->polish(m_linkText);
    const bool wireless = state.interfaceName == localized("Wi-Fi");
    m_portIcon->setPixmap(
        picture(wireless ? u"wireless"_s : u"wired"_s, Theme::Ink::Accent, portIconSize));
}

} // namespace quillon
