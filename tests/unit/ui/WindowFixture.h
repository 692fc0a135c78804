// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeTaskBar.h"
#include "fakes/FakeTrayHost.h"
#include "presentation/menu/StatusMenuModel.h"
#include "presentation/window/MainWindowModel.h"
#include "presentation/window/ReadMeModel.h"
#include "unit/presentation/DeviceModelsFixture.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace quillon::test {

/// A machine with a wired and a Wi-Fi interface, the wired one selected and with an address that is
/// not its factory address, and the models that windows show.
class WindowFixture : public DeviceModelsFixture
{
protected:
    WindowFixture()
    {
        host.giveAddress(wired, QStringLiteral("02:00:00:00:00:01"));
        devices.updateNetWorkInterfaces();
        select(wired);
        window.prepareWindow();
        window.setHelperInstalled(true);
        menu.menuWillOpen();
        menu.menuDidClose();
    }

    void select(const QString &device)
    {
        current.updateCurrentInterfaceDict(device);
        scheduler.runPending();
        window.populateSelectionButton();
        window.populateHexField();
        scheduler.runPending();
    }

    static void press(QWidget &widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
        const QString &text = QString())
    {
        QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&widget, &down);
        QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
        QCoreApplication::sendEvent(&widget, &up);
    }

    static void type(QWidget &widget, const QString &text)
    {
        for (const QChar character : text) {
            press(widget, Qt::Key_unknown, Qt::NoModifier, QString(character));
        }
    }

    MainWindowModel window{{settings, scheduler, devices, current, changer}};
    ReadMeModel readMe{helper};
    StatusMenuModel menu{{settings, devices, current, changer, helper, presence, timers}};
};

} // namespace quillon::test
