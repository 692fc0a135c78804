// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/HeartButton.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

namespace quillon {

using namespace Qt::StringLiterals;

HeartButton::HeartButton(const Theme &theme, QWidget *parent)
    : QToolButton(parent)
    , m_theme(theme)
{
    setProperty("look", u"quiet"_s);
    setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    setFixedSize(Theme::target, Theme::target);
    setFocusPolicy(Qt::StrongFocus);
    setFavorite(false, QString());
}

void HeartButton::setFavorite(bool isFavorite, const QString &action)
{
    m_isFavorite = isFavorite;
    setIcon(isFavorite ? m_theme.icon(u"heart-filled"_s, Theme::Ink::Heart)
                       : m_theme.icon(u"heart"_s, Theme::Ink::Muted));
    setToolTip(plainToolTip(action));
    setAccessibleName(plainLine(action));
}

} // namespace quillon
