// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/Footer.h"

#include "base/Localized.h"
#include "presence/Presence.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>

namespace quillon {

using namespace Qt::StringLiterals;

Footer::Footer(Presence &presence, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_presence(presence)
    , m_theme(theme)
    , m_version(plainLabel())
{
    m_version->setProperty("look", u"caption"_s);
    m_version->setFont(Theme::font(Theme::Type::Caption));
    m_version->setAccessibleName(localized("Version"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    addWay(u"overview"_s, localized("Overview"), Qt::Key_O, Destination::Overview);
    addWay(u"history"_s, localized("History"), Qt::Key_H, Destination::History);
    addWay(u"preferences"_s, localized("Preferences"), Qt::Key_Comma, Destination::Preferences);
    row->addStretch();
    row->addWidget(m_version);
}

void Footer::addWay(
    const QString &symbol, const QString &title, Qt::Key key, Destination destination)
{
    auto *button = new QPushButton(m_theme.icon(symbol, Theme::Ink::Muted), title);
    button->setObjectName(symbol + u"Button"_s);
    button->setAccessibleName(title);
    const QString keys = QKeySequence(Qt::CTRL | key).toString(QKeySequence::NativeText);
    const QString hint = filled(u"%@ (%@)"_s, {title, keys});
    button->setToolTip(plainToolTip(hint));
    button->setAccessibleDescription(hint);
    button->setIconSize(QSize(Theme::inlineIconSize, Theme::inlineIconSize));
    button->setProperty("look", u"quiet"_s);
    button->setAutoDefault(true);
    const auto follow = [this, button, title, destination] {
        button->setVisible(m_presence.isOffered(destination));
    };
    connect(&m_presence, &Presence::destinationOffered, button, follow);
    connect(button, &QPushButton::clicked, button,
        [this, destination] { m_presence.goTo(destination); });
    layout()->addWidget(button);
    follow();
}

void Footer::showVersion(const QString &version)
{
    m_version->setText(plainLine(version));
}

} // namespace quillon
