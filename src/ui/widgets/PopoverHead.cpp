// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopoverHead.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Sign.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quillon {

using namespace Qt::StringLiterals;

PopoverHead::PopoverHead(const Theme &theme, const QString &icon, QWidget *parent)
    : QWidget(parent)
    , m_icon(new Sign(theme, Theme::iconSize))
    , m_text(plainLabel())
    , m_line(new QHBoxLayout(this))
{
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->setSpacing(Theme::unit);
    m_text->setFont(Theme::font(Theme::Type::Head));
    m_text->setProperty("look", u"head"_s);
    m_text->setWordWrap(true);
    m_line->addWidget(m_icon);
    m_line->addWidget(m_text, 1);
    setMinimumHeight(Theme::target);
    setIcon(icon);
}

void PopoverHead::setTitle(const QString &text)
{
    const QString line = plainLine(text);
    showBroken(*m_text, line);
    m_text->setToolTip(plainToolTip(line == text ? QString() : text));
}

void PopoverHead::setIcon(const QString &icon)
{
    m_icon->setVisible(!icon.isEmpty());
    if (!icon.isEmpty()) {
        m_icon->setSign(icon, Theme::Ink::Accent);
    }
}

void PopoverHead::addAtEnd(QWidget *control)
{
    m_line->addWidget(control);
}

} // namespace quillon
