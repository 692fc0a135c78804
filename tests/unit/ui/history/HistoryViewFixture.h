// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeTaskBar.h"
#include "presence/Presence.h"
#include "presentation/menu/EditMenuModel.h"
#include "ui/history/HistoryTable.h"
#include "ui/history/HistoryWindow.h"
#include "ui/widgets/SearchField.h"
#include "ui/widgets/Toast.h"
#include "unit/presentation/history/HistoryFixture.h"
#include "unit/ui/WidgetFixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace quillon::test {

/// The window of a history, not yet open.
class HistoryViewFixture : public HistoryWindowFixture
{
protected:
    HistoryViewFixture()
    {
        theme.setAnimated(false);
        theme.apply();
    }

    /// Opens the window, and lets happen what that brings about.
    void show()
    {
        window.bringUp();
        settle();
    }
    void settle()
    {
        for (int round = 0; round < 4; ++round) {
            endTurn();
            WidgetSettling::settle();
        }
    }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        WidgetSettling::press(key, modifiers);
    }
    template <typename T>
    T &part(const QString &name) const
    {
        auto *found = window.findChild<T *>(name);
        if (found == nullptr) {
            qFatal("no %s", qUtf8Printable(name));
        }
        return *found;
    }
    HistoryTable &table() const { return part<HistoryTable>(u"historyTable"_s); }
    SearchField &field() const { return part<SearchField>(u"historySearch"_s); }
    QLineEdit *editor() const { return window.findChild<QLineEdit *>(u"noteEditor"_s); }
    QString shown(int row, HistoryColumn column) const
    {
        return table().model()->index(row, static_cast<int>(column)).data().toString();
    }
    QList<int> selectedRows() const
    {
        QList<int> rows;
        for (const QModelIndex &index : table().selectionModel()->selectedRows()) {
            rows << index.row();
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }
    void trigger(const QKeySequence &keys) const
    {
        for (QAction *action : window.actions()) {
            if (action->shortcut() == keys) {
                action->trigger();
                return;
            }
        }
        ADD_FAILURE() << "no such shortcut";
    }

    struct WidgetSettling : WidgetFixture
    {
        using WidgetFixture::press;
        using WidgetFixture::sendMouse;
        using WidgetFixture::settle;
        void TestBody() override {}
    };

    Theme theme;
    FakeTaskBar taskBar;
    Presence presence{settings};
    EditMenuModel edit{store};
    HistoryWindow window{{controller, edit, presence}, theme, scheduler, taskBar};
};

} // namespace quillon::test
