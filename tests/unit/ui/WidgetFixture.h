// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeCompositing.h"
#include "fakes/QtPrinting.h"
#include "ui/theme/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWidget>
#include <gmock/gmock.h>

namespace quillon::test {

/// What a signal said so far.
class SignalLog
{
public:
    template <typename Sender, typename Signal>
    SignalLog(Sender *sender, Signal signal)
    {
        QObject::connect(sender, signal, &m_context, [this](const auto &...values) {
            m_calls.append(QVariantList{QVariant::fromValue(values)...});
        });
    }

    qsizetype size() const { return m_calls.size(); }
    const QVariantList &operator[](qsizetype index) const { return m_calls[index]; }

private:
    QObject m_context;
    QList<QVariantList> m_calls;
};

/// A window with the theme, without motion, on a display that blends windows.
class WidgetFixture : public ::testing::Test
{
protected:
    WidgetFixture()
    {
        theme.setCompositing(compositing);
        theme.setAnimated(false);
        theme.apply();
        // There is room for a popover on its right.
        window.setGeometry(20, 200, 300, 300);
        column = new QVBoxLayout(&window);
    }

    /// Shows the window and gives it the keyboard.
    void show()
    {
        window.show();
        window.activateWindow();
        settle();
    }

    static void settle()
    {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }

    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *widget = QApplication::focusWidget();
        ASSERT_NE(widget, nullptr);
        QKeyEvent down(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(widget, &down);
        QKeyEvent up(QEvent::KeyRelease, key, modifiers);
        QApplication::sendEvent(widget, &up);
    }

    static void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &position)
    {
        const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(
            type, position, widget.mapToGlobal(position), Qt::LeftButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
    static void click(QWidget &widget, const QPoint &position)
    {
        sendMouse(widget, QEvent::MouseButtonPress, position);
        sendMouse(widget, QEvent::MouseButtonRelease, position);
    }
    static void click(QWidget &widget) { click(widget, widget.rect().center()); }

    static QAccessibleInterface &accessible(QWidget &widget)
    {
        return *QAccessible::queryAccessibleInterface(&widget);
    }

    FakeCompositing compositing;
    Theme theme;
    QWidget window;
    QVBoxLayout *column = nullptr;
};

} // namespace quillon::test
