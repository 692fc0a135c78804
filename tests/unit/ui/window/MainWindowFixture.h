// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/Theme.h"
#include "ui/widgets/RowButton.h"
#include "ui/window/FactsCard.h"
#include "ui/window/HardwareRow.h"
#include "ui/window/MainWindow.h"
#include "unit/ui/WindowFixture.h"

#include <QAction>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

/// The main window, open, with the row of the hardware address as its only fact.
class MainWindowFixture : public WindowFixture
{
protected:
    MainWindowFixture()
    {
        theme.apply();
        makeView();
    }

    void makeView()
    {
        view = std::make_unique<MainWindow>(models(), theme, taskBar);
        auto *row = new HardwareRow(window, theme);
        view->facts().add(row);
        row->popover(); // not only once it is opened: its parts are looked for
        presence.openWindow();
    }

    MainWindow::Models models() { return {window, readMe, presence}; }

    QString shownIn(const char *row) const
    {
        return view->findChild<RowButton *>(QString::fromLatin1(row))->value();
    }

    template <typename T>
    T *named(const char *accessibleName) const
    {
        for (T *widget : view->findChildren<T *>()) {
            if (widget->accessibleName() == QLatin1String(accessibleName)) {
                return widget;
            }
        }
        ADD_FAILURE() << "nothing is called " << accessibleName;
        return nullptr;
    }

    void trigger(const QKeySequence &keys)
    {
        for (QAction *action : view->actions()) {
            if (action->shortcut() == keys) {
                action->trigger();
                return;
            }
        }
        ADD_FAILURE() << "no such shortcut";
    }

    Theme theme;
    FakeTaskBar taskBar;
    std::unique_ptr<MainWindow> view;
};

} // namespace quillon::test
