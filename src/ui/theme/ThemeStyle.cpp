// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/ThemeStyle.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QWidget>

namespace quillon {

using namespace Qt::StringLiterals;

ThemeStyle::ThemeStyle()
    : QProxyStyle(u"Fusion"_s)
{
    qApp->installEventFilter(this);
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
    QStyleHintReturn *returnData) const
{
    if (hint == SH_UnderlineShortcut) {
        return m_altHeld ? 1 : 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
    QPainter *painter, const QWidget *widget) const
{
    if (element != PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

bool ThemeStyle::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt) {
            setAltHeld(type == QEvent::KeyPress);
        }
    } else if (type == QEvent::Wheel && qobject_cast<QComboBox *>(watched) != nullptr) {
        // For what it stands in, which may scroll.
        event->ignore();
        return true;
    } else if (type == QEvent::ApplicationStateChange || type == QEvent::WindowDeactivate) {
        // Who switches windows with Alt lets it go elsewhere.
        setAltHeld(false);
    }
    return QProxyStyle::eventFilter(watched, event);
}

void ThemeStyle::setAltHeld(bool held)
{
    if (held == m_altHeld) {
        return;
    }
    m_altHeld = held;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            window->update();
            for (QWidget *widget : window->findChildren<QWidget *>()) {
                widget->update();
            }
        }
    }
}

} // namespace quillon
