// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryDeletion.h"

#include "unit/presentation/history/HistoryFixture.h"

#include <QFile>

namespace quillon::test {

class HistoryDeletionTest : public HistoryWindowFixture
{
protected:
    HistoryDeletionTest()
    {
        fill(4);
        open();
        QObject::connect(&deletion, &HistoryDeletion::undoLost, &deletion, [this] { ++losses; });
        QObject::connect(&deletion, &HistoryDeletion::failed, &deletion,
            [this](const QString &message) { failure = message; });
    }
    QList<qint64> allKeys() const
    {
        QList<qint64> keys;
        for (qsizetype row = 0; row < controller.rows().size(); ++row) {
            keys << controller.rows().keyAt(row);
        }
        return keys;
    }

    HistoryDeletion &deletion = controller.deletion();
    int losses = 0;
    QString failure;
};

TEST_F(HistoryDeletionTest, IsUndoneAsAWhole)
{
    const QList<qint64> before = allKeys();
    select(0, 2);
    controller.deleteSelected();
    endTurn();
    EXPECT_EQ(controller.rows().size(), 1);
    EXPECT_TRUE(canUndoSaid);
    deletion.undo();
    endTurn();
    EXPECT_EQ(allKeys(), before);
    EXPECT_EQ(losses, 0);
    deletion.undo();
    endTurn();
    EXPECT_EQ(allKeys(), before) << "once";
}

TEST_F(HistoryDeletionTest, IsUndoneAlsoWhenItWasSaved)
{
    const QList<qint64> before = allKeys();
    select(0, 2);
    controller.deleteSelected();
    save();
    EXPECT_EQ(losses, 0);
    deletion.undo();
    save();
    EXPECT_EQ(allKeys(), before);
}

TEST_F(HistoryDeletionTest, WhatWasDoneSinceIsNotUndoneInItsPlace)
{
    select(0, 0);
    controller.deleteSelected();
    endTurn();
    controller.editNote(0);
    controller.note().type(u"typed"_s);
    controller.note().end();
    EXPECT_EQ(losses, 1);
    endTurn();
    deletion.undo();
    endTurn();
    EXPECT_EQ(controller.rows().size(), 3);
    EXPECT_EQ(controller.text(0, HistoryColumn::Notes), u"typed"_s);
}

TEST_F(HistoryDeletionTest, UndoneElsewhereItIsNotOfferedAnyMore)
{
    select(0, 0);
    controller.deleteSelected();
    endTurn();
    store.undo();
    EXPECT_EQ(losses, 1);
}

TEST_F(HistoryDeletionTest, AnotherContextKnowsNothingOfIt)
{
    select(0, 0);
    controller.deleteSelected();
    endTurn();
    store.refreshPersistentContainer();
    endTurn();
    EXPECT_EQ(losses, 1);
    deletion.undo();
    EXPECT_EQ(controller.rows().size(), 3);
}

TEST_F(HistoryDeletionTest, ForGoodItAsksFirst)
{
    alerts.answer = 1;
    deletion.removeForGood(allKeys());
    endTurn();
    EXPECT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(controller.rows().size(), 4);
    alerts.answer = 0;
    deletion.removeForGood(allKeys());
    EXPECT_TRUE(deletion.progress());
    endTurn();
    EXPECT_FALSE(deletion.progress());
    EXPECT_EQ(controller.rows().size(), 0);
    EXPECT_FALSE(canUndoSaid);
}

TEST_F(HistoryDeletionTest, TheKeyAgainWhileItAsksIsHeardOnce)
{
    alerts.whileShown = [this] {
        alerts.whileShown = nullptr;
        deletion.removeForGood(allKeys());
    };
    deletion.removeForGood(allKeys());
    endTurn();
    EXPECT_EQ(said.size(), 1);
}

TEST_F(HistoryDeletionTest, StoppedItSaysNothingWhereNothingWasDone)
{
    deletion.removeForGood(allKeys());
    deletion.stop();
    endTurn();
    EXPECT_EQ(controller.rows().size(), 4);
    EXPECT_TRUE(said.isEmpty());
    EXPECT_FALSE(deletion.progress());
}

TEST_F(HistoryDeletionTest, AFailureIsTold)
{
    QFile::rename(path, path + u".away"_s);
    deletion.removeForGood(allKeys());
    endTurn();
    EXPECT_EQ(failure, u"The records could not be deleted."_s);
    EXPECT_EQ(state().failure, failure);
}

} // namespace quillon::test
