// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "unit/ui/UserInterfaceFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace quillon::test {

/// The whole program with the window of its preferences, which a test opens on a pane.
class PanesFixture : public UserInterfaceFixture
{
protected:
    PanesFixture()
    {
        createWithWindows();
        startWithWindows();
    }

    void open(PreferencesPane pane)
    {
        features().preferencesWindow.showPane(pane);
        features().preferencesWindow.openPreferencesWindow();
        settle();
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == QLatin1String("preferences")) {
                window = widget;
            }
        }
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(window->isActiveWindow());
    }
    /// Lets everything happen that follows.
    void settle()
    {
        machine.scheduler.runPending();
        QCoreApplication::processEvents();
        machine.scheduler.runPending();
        QCoreApplication::processEvents();
    }
    template <typename T>
    T &part(const char *name) const
    {
        auto *found = window->findChild<T *>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("no %s", name);
        }
        return *found;
    }
    QAbstractButton &box(const char *name) const { return part<QAbstractButton>(name); }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *widget = QApplication::focusWidget();
        ASSERT_NE(widget, nullptr);
        for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            QApplication::sendEvent(widget, &event);
        }
    }
    /// What somebody who does not see it needs to know of each control.
    void expectNamed() const
    {
        int controls = 0;
        for (const auto *control : window->findChildren<QWidget *>()) {
            if (control->isVisible() && (control->focusPolicy() & Qt::TabFocus) != 0) {
                ++controls;
                const auto *button = qobject_cast<const QAbstractButton *>(control);
                EXPECT_FALSE(control->accessibleName().isEmpty())
                    << control->metaObject()->className();
                EXPECT_TRUE(!control->toolTip().isEmpty() ||
                            !control->accessibleDescription().isEmpty() ||
                            (button != nullptr && !button->text().isEmpty()) ||
                            control->inherits("QListWidget"))
                    << control->accessibleName().toStdString();
            }
        }
        EXPECT_GE(controls, 2);
    }

    QWidget *window = nullptr;
};

} // namespace quillon::test
