// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/SymbolicIcon.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

SymbolicIcon::SymbolicIcon(const Theme &theme, QString name, Theme::Ink ink)
    : m_theme(&theme)
    , m_name(std::move(name))
    , m_ink(ink)
{
}

void SymbolicIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
}

QPixmap SymbolicIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    const Theme *theme = m_theme.data();
    if (theme == nullptr || size.isEmpty()) {
        return {};
    }
    const QColor color = mode == QIcon::Disabled ? theme->colors().disabledText : theme->ink(m_ink);
    if (m_askedSize != size || m_drawnColor != color) {
        m_drawn = draw(size, color);
        m_askedSize = size;
        m_drawnColor = color;
    }
    return m_drawn;
}

QPixmap SymbolicIcon::draw(const QSize &size, const QColor &color) const
{
    QFile file(u":/icons/%1.svg"_s.arg(m_name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name().toLatin1());
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(reader.size().scaled(size, Qt::KeepAspectRatio));
    return QPixmap::fromImage(reader.read());
}

QIconEngine *SymbolicIcon::clone() const
{
    return new SymbolicIcon(*this);
}

QList<QSize> SymbolicIcon::availableSizes(QIcon::Mode, QIcon::State)
{
    // A tray host picks from these; windows ask for the size that they need.
    return {
        QSize(16, 16), QSize(22, 22), QSize(24, 24), QSize(32, 32), QSize(48, 48), QSize(64, 64)};
}

} // namespace quillon
