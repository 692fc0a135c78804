// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/FocusRing.h"

#include "ui/theme/Theme.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int ringMargin = 2 * Theme::ringWidth;

/// Tells a focus frame how far outside it lies, and that no sibling covers it.
class RingStyle : public QProxyStyle
{
public:
    RingStyle()
        : QProxyStyle(u"Fusion"_s)
    {
    }
    int pixelMetric(
        PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin
                   ? ringMargin
                   : QProxyStyle::pixelMetric(metric, option, widget);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *returnData) const override
    {
        return hint == SH_FocusFrame_AboveWidget
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

class RingFrame : public QFocusFrame
{
public:
    explicit RingFrame(const Theme &theme)
        : m_theme(theme)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        auto *style = new RingStyle;
        style->setParent(this);
        setStyle(style);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(m_theme.colors().accent, Theme::ringWidth));
        const QVariant rounder = widget()->property("ringRadius");
        const int radius = rounder.isValid() ? rounder.toInt() : Theme::controlRadius;
        const qreal inset = Theme::ringWidth / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
            radius + ringMargin - inset, radius + ringMargin - inset);
    }

private:
    const Theme &m_theme;
};

bool takesLetters(const QWidget &widget)
{
    const auto *edit = qobject_cast<const QLineEdit *>(&widget);
    return (edit != nullptr && !edit->isReadOnly()) ||
           qobject_cast<const QAbstractSpinBox *>(&widget) != nullptr;
}

bool cameByKeyboard(Qt::FocusReason reason, bool keyboardUsedLast)
{
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason) {
        return true;
    }
    return reason != Qt::MouseFocusReason && keyboardUsedLast;
}

/// The list of a combo box is a window of its own, without room for a ring and with a selection.
bool hasRoom(const QWidget &widget)
{
    return !widget.isWindow() && !widget.window()->inherits("QComboBoxPrivateContainer");
}

} // namespace

FocusRing::FocusRing(const Theme &theme)
    : m_theme(theme)
{
    qApp->installEventFilter(this);
}

FocusRing::~FocusRing()
{
    delete m_frame;
}

QWidget *FocusRing::widget() const
{
    return m_frame && m_frame->isVisible() ? m_frame->widget() : nullptr;
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    auto *const widget = qobject_cast<QWidget *>(watched);
    if (type == QEvent::KeyPress) {
        m_keyboardUsedLast = true;
    } else if (type == QEvent::MouseButtonPress) {
        m_keyboardUsedLast = false;
    } else if (type == QEvent::FocusIn && widget != nullptr) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        const bool isShown = takesLetters(*widget) || cameByKeyboard(reason, m_keyboardUsedLast);
        surround(isShown && hasRoom(*widget) ? widget : nullptr);
    } else if (type == QEvent::FocusOut && m_frame && watched == m_frame->widget()) {
        surround(nullptr);
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::surround(QWidget *widget)
{
    if (!m_frame) {
        if (widget == nullptr) {
            return;
        }
        m_frame = new RingFrame(m_theme);
    }
    m_frame->setWidget(widget);
    if (widget == nullptr) {
        // Out of a window that may be on its way out.
        m_frame->hide();
        m_frame->setParent(nullptr);
    }
}

} // namespace quillon
