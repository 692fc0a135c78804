// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/SettingsKeys.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "platform/TaskBar.h"
#include "platform/TrayHost.h"
#include "presentation/menu/StatusMenuModel.h"
#include "presentation/window/MainWindowModel.h"
#include "presentation/window/Presence.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <gmock/gmock.h>

namespace quillon::test {

/// A machine with a wired and a Wi-Fi interface, the wired one selected and with an address that is
/// not its factory address, and the models that windows show.
class WindowMachine : public ::testing::Test
{
protected:
    WindowMachine()
    {
        host.plug({QStringLiteral("Ethernet"), QStringLiteral("enp1s0"),
            QStringLiteral("3c:22:fb:00:00:01"), QStringLiteral("02:00:00:00:00:01"),
            {QStringLiteral("192.0.2.10")}});
        host.plug({QStringLiteral("Wi-Fi"), QStringLiteral("wlp2s0"),
            QStringLiteral("3c:22:fb:00:00:02"), QStringLiteral("3c:22:fb:00:00:02"), {}, false});
        devices.updateNetWorkInterfaces();
        select(QStringLiteral("enp1s0"));
        window.prepareWindow();
        window.setHelperInstalled(true);
        menu.menuWillOpen();
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

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNetworkHost host;
    FakeInterfaceAddresses addresses{host};
    DeviceTable devices{settings, host, addresses};
    CurrentInterface current{settings, scheduler, devices};
    bool helperInstalled = true;
    MainWindowModel window{settings, scheduler, devices, current};
    StatusMenuModel menu{settings, devices, current, [this] { return helperInstalled; }};
    Presence presence{settings};
};

/// A task bar that remembers.
class FakeTaskBar : public TaskBar
{
public:
    void setSkipped(quintptr, bool isSkipped) override { skipped = isSkipped; }

    bool skipped = false;
};

/// A desktop whose tray host comes and goes.
class FakeTrayHost : public TrayHost
{
public:
    void watch(std::function<void(bool)> observer) override { m_observer = std::move(observer); }
    void become(bool available) { m_observer(available); }

private:
    std::function<void(bool)> m_observer;
};

} // namespace quillon::test
