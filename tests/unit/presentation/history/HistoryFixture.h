// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/SettingsKeys.h"
#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeSettingsStore.h"
#include "history/Connection.h"
#include "presentation/history/HistoryController.h"
#include "unit/store/RecordStoreFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

/// A history and the model of its window, which is open when open() was called.
class HistoryWindowFixture : public RecordStoreTest
{
protected:
    HistoryWindowFixture()
    {
        settings.registerDefaults({{keys::historySearchType, u"all"_s}});
        QObject::connect(&controller.deletion(), &HistoryDeletion::deleted, &controller,
            [this](const QString &message, bool canUndo) {
                said << message;
                canUndoSaid = canUndo;
            });
        QObject::connect(&controller, &HistoryController::said, &controller,
            [this](const QString &message) { said << message; });
    }

    /// A record `minutes` after the first moment.
    Connection insert(int minutes, const QString &address = u"02:AA:bb:00:00:01"_s)
    {
        const ManagedObjectContext::UndoDisabled facts(context());
        Connection record(context().insertNewObject(model::Connection));
        record.setDate(first.addSecs(60 * minutes));
        record.setDevice(u"wlp2s0"_s);
        record.setInterface(u"Wi-Fi"_s);
        record.setAddress(address);
        record.setSsid(u"Harbor"_s);
        record.setBssid(u"a4:2b:b0:11:22:33"_s);
        return record;
    }
    void save()
    {
        ASSERT_FALSE(context().save());
        endTurn();
    }
    void fill(int count)
    {
        for (int number = 0; number < count; ++number) {
            insert(number, u"02:00:00:00:00:%1"_s.arg(number));
        }
        save();
    }
    void open()
    {
        controller.windowDidLoad();
        controller.windowDidOpen();
        endTurn();
    }
    void search(const QString &text)
    {
        controller.controlTextDidChange(text);
        endTurn();
    }
    void select(qsizetype from, qsizetype to)
    {
        controller.select({{from, to}});
        endTurn();
    }
    QStringList texts(HistoryColumn column) const
    {
        QStringList all;
        for (qsizetype row = 0; row < controller.rows().size(); ++row) {
            all << controller.text(row, column);
        }
        return all;
    }
    const HistoryController::State &state() const { return controller.state(); }

    const QDateTime first = QDateTime::fromSecsSinceEpoch(1'749'900'000, Qt::UTC);
    FakeSettingsStore settings{scheduler};
    FakeAlertPresenter alerts;
    HistoryController controller{{store, settings, scheduler, alerts}};
    QStringList said;
    bool canUndoSaid = false;
};

} // namespace quillon::test
