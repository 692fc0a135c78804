// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/ContrastCheck.h"

#include "face/TextRegions.h"
#include "ui/theme/ThemeColors.h"

#include <QHash>
#include <QImage>
#include <QLayout>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// So large that the strokes of a letter have pixels without any ground in them.
constexpr int scale = 4;
/// A color on less than this is an accident.
constexpr int leastPixels = scale * scale;
constexpr double leastForText = 4.5;
constexpr double leastForDisabled = 3.0;

QImage drawn(QWidget &window)
{
    QImage image(window.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    window.render(&painter, {}, {}, QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return image;
}

struct Reading
{
    QColor ground;
    QColor ink;
    double contrast = 1;
};

Reading read(const QImage &image, const QRect &place)
{
    QHash<QRgb, int> pixels;
    const QRect part =
        QRect(place.topLeft() * scale, place.size() * scale).intersected(image.rect());
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = part.left(); x <= part.right(); ++x) {
            ++pixels[line[x]];
        }
    }
    Reading reading;
    int most = 0;
    for (auto pixel = pixels.cbegin(); pixel != pixels.cend(); ++pixel) {
        if (pixel.value() > most) {
            most = pixel.value();
            reading.ground = QColor(pixel.key());
        }
    }
    for (auto pixel = pixels.cbegin(); pixel != pixels.cend(); ++pixel) {
        const double contrast = contrastRatio(QColor(pixel.key()), reading.ground);
        if (pixel.value() >= leastPixels && contrast > reading.contrast) {
            reading.contrast = contrast;
            reading.ink = QColor(pixel.key());
        }
    }
    return reading;
}

/// What is in no layout of a window lies over the others, by intention.
const QWidget *overlayAt(const QWidget &window, const QRect &place)
{
    for (const QObject *object : window.children()) {
        const auto *child = qobject_cast<const QWidget *>(object);
        if (child != nullptr && child->isVisible() && !child->isWindow() &&
            !child->testAttribute(Qt::WA_TransparentForMouseEvents) && window.layout() != nullptr &&
            window.layout()->indexOf(child) < 0 && child->geometry().intersects(place)) {
            return child;
        }
    }
    return nullptr;
}

bool isCovered(const QWidget &widget, const QWidget &window, const QRect &place)
{
    const QWidget *over = overlayAt(window, place);
    return over != nullptr && over != &widget && !over->isAncestorOf(&widget);
}

QStringList findingsOf(const QWidget &widget, const QWidget &window, const QImage &image)
{
    QStringList findings;
    const auto regions = textRegions(widget);
    for (const TextRegion &region : regions) {
        // What is scrolled out of sight has no color.
        const QRect seen = region.ink.intersected(widget.visibleRegion().boundingRect());
        if (seen.height() < region.ink.height() || seen.isEmpty()) {
            continue;
        }
        const QRect place(widget.mapTo(&window, seen.topLeft()), seen.size());
        if (isCovered(widget, window, place)) {
            continue;
        }
        const Reading reading = read(image, place);
        if (reading.contrast < (region.isEnabled ? leastForText : leastForDisabled)) {
            findings.append(u"%1 “%2”: %3 on %4 is %5 : 1"_s
                    .arg(QString::fromLatin1(widget.metaObject()->className()), region.text,
                        reading.ink.name(), reading.ground.name())
                    .arg(reading.contrast, 0, 'f', 2));
        }
    }
    return findings;
}

} // namespace

QStringList contrastFindings(QWidget &window)
{
    const QImage image = drawn(window);
    QStringList findings = findingsOf(window, window, image);
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget->window() == &window) {
            findings += findingsOf(*widget, window, image);
        }
    }
    return findings;
}

} // namespace quillon::test
