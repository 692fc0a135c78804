// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/Theme.h"

#include <QColor>
#include <QIconEngine>
#include <QPixmap>
#include <QPointer>

namespace quillon {

/// An icon of one color, drawn from a vector image of the resources at whatever size is asked for,
/// in the color that the theme has at that moment.
class SymbolicIcon : public QIconEngine
{
public:
    SymbolicIcon(const Theme &theme, QString name, Theme::Ink ink);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    /// `size` in device pixels.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QString key() const override { return QStringLiteral("SymbolicIcon"); }

private:
    QPixmap draw(const QSize &size, const QColor &color) const;

    QPointer<const Theme> m_theme;
    QString m_name;
    Theme::Ink m_ink;
    /// As it was drawn last: most are drawn again and again as they are.
    QPixmap m_drawn;
    QSize m_askedSize;
    QColor m_drawnColor;
};

} // namespace quillon
