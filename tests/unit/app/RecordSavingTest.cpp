// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecordSaving.h"

#include "fakes/FakeAlertPresenter.h"
#include "fakes/LogCapture.h"
#include "unit/app/OpenField.h"
#include "unit/store/RecordStoreFixture.h"
#include "unit/store/RefusingFile.h"

#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

class RecordSavingTest : public test::RecordStoreTest
{
protected:
    void refuse() { refusal.emplace(path); }
    bool isRefusalPresented() const
    {
        return alerts.errors.size() == 1 &&
               alerts.errors.first().message.contains(u"refused by the file"_s);
    }

    const QString home = u"Home"_s;
    test::FakeAlertPresenter alerts;
    RecordSaving saving{store, alerts};
    std::optional<test::RefusingFile> refusal;
};

TEST_F(RecordSavingTest, SavesWhatChanged)
{
    insertRule(home);
    saving.saveAction();
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(savedNames(), QStringList(home));
    EXPECT_TRUE(alerts.errors.isEmpty());
}

TEST_F(RecordSavingTest, TakesAnOpenEditBeforeItSaves)
{
    test::OpenField field(context());
    field.rule = insertRule(home);
    field.text = u"Office"_s;
    saving.saveAction();
    EXPECT_EQ(savedNames(), QStringList(u"Office"_s));
}

TEST_F(RecordSavingTest, WithoutChangesNothingIsWritten)
{
    context();
    refuse();
    saving.saveAction();
    EXPECT_TRUE(alerts.errors.isEmpty());
}

TEST_F(RecordSavingTest, AnEditThatCannotBeTakenIsLoggedAndTheRestIsSaved)
{
    insertRule(home);
    test::OpenField field(context());
    field.accepts = false;
    const test::LogCapture log;
    saving.saveAction();
    EXPECT_EQ(log.taken(), QStringList(u"quillon.records: QuillonAppDelegate:saveAction: unable to "
                                       "commit editing before saving"_s));
    EXPECT_EQ(savedNames(), QStringList(home));
}

TEST_F(RecordSavingTest, AFailureIsPresentedOnceAndEverythingStaysPending)
{
    insertRule(home);
    refuse();
    saving.saveAction();
    EXPECT_TRUE(isRefusalPresented());
    EXPECT_TRUE(alerts.alerts.isEmpty());
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(savedNames(), QStringList());
    refusal.reset();
    saving.saveAction();
    EXPECT_EQ(savedNames(), QStringList(home));
    EXPECT_EQ(alerts.errors.size(), 1);
}

} // namespace
} // namespace quillon
