// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Termination.h"

#include "app/RecordSaving.h"
#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"
#include "unit/store/RefusingFile.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

class TerminationTest : public ::testing::Test
{
protected:
    TerminationTest()
    {
        QObject::connect(&termination, &Termination::granted, [this] { ++granted; });
    }
    void changeSomething() { store.managedObjectContext().insertNewObject(model::Rule); }

    static constexpr int quitAnyway = 0;
    static constexpr int cancel = 1;

    QTemporaryDir folder;
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeAlertPresenter alerts;
    RecordStore store{{settings, scheduler, alerts}, folder.path()};
    RecordSaving saving{store, alerts};
    Termination termination{saving};
    int granted = 0;
};

TEST_F(TerminationTest, IsGrantedAtOnceWhenThereIsNothingToSave)
{
    termination.terminate();
    EXPECT_EQ(granted, 1);
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(TerminationTest, SavesBeforeItIsGranted)
{
    changeSomething();
    QObject::connect(&termination, &Termination::granted,
        [this] { EXPECT_FALSE(store.managedObjectContext().hasChanges()); });
    termination.terminate();
    EXPECT_EQ(granted, 1);
}

class TerminationThatCannotSave : public TerminationTest
{
protected:
    TerminationThatCannotSave()
    {
        store.managedObjectContext();
        refusal.emplace(folder.filePath(QStringLiteral("Quillon.sqlite")));
        changeSomething();
    }

    std::optional<RefusingFile> refusal;
};

TEST_F(TerminationThatCannotSave, KeepsTheProgramRunningWhenTheUserCancels)
{
    alerts.answer = cancel;
    termination.terminate();
    EXPECT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(granted, 0);
    EXPECT_TRUE(store.managedObjectContext().hasChanges());

    refusal.reset();
    termination.terminate();
    EXPECT_EQ(granted, 1) << "the next wish is asked anew";
    EXPECT_EQ(alerts.alerts.size(), 1);
}

TEST_F(TerminationThatCannotSave, IsGrantedWhenTheUserDoesWithout)
{
    alerts.answer = quitAnyway;
    termination.terminate();
    EXPECT_EQ(granted, 1);
}

TEST_F(TerminationThatCannotSave, TakesFurtherWishesForTheSameOneWhileTheUserIsAsked)
{
    alerts.answer = cancel;
    alerts.whileShown = [this] {
        termination.terminate();
        termination.terminate();
    };
    termination.terminate();
    EXPECT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(granted, 0);

    alerts.answer = quitAnyway;
    termination.terminate();
    EXPECT_EQ(alerts.alerts.size(), 2);
    EXPECT_EQ(granted, 1);
}

} // namespace
} // namespace quillon::test
