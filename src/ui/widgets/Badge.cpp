// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Badge.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QStyle>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void dressAnew(QWidget &widget)
{
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

} // namespace

Badge::Badge(const QString &text, Tone tone, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setText(plainLine(text));
    setProperty("look", u"badge"_s);
    setFont(Theme::font(Theme::Type::Badge));
    setAlignment(Qt::AlignCenter);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setTone(tone);
}

void Badge::setTone(Tone tone)
{
    setProperty("tone", tone == Tone::Neutral ? u"neutral"_s : u"tint"_s);
    dressAnew(*this);
}

void Badge::setOnTint(bool onTint)
{
    setProperty("onTint", onTint);
    dressAnew(*this);
}

} // namespace quillon
