// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Termination.h"

#include "fakes/FakeAlertPresenter.h"
#include "fakes/LogCapture.h"
#include "unit/app/OpenField.h"
#include "unit/store/RecordStoreFixture.h"
#include "unit/store/RefusingFile.h"

#include <QFile>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class TerminationTest : public RecordStoreTest
{
protected:
    TerminationTest()
    {
        QObject::connect(&termination, &Termination::granted, [this] { ++granted; });
    }
    /// Whether one more wish to end is granted at once.
    bool isGranted()
    {
        const int before = granted;
        termination.terminate();
        return granted == before + 1;
    }

    const QString home = u"Home"_s;
    FakeAlertPresenter alerts;
    Termination termination{store, alerts};
    int granted = 0;
};

TEST_F(TerminationTest, IsGrantedAtOnceWhenNobodyUsedTheRecords)
{
    EXPECT_TRUE(isGranted());
    EXPECT_TRUE(alerts.alerts.isEmpty());
    EXPECT_FALSE(store.hasManagedObjectContext()) << "no file is opened for quitting";
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(TerminationTest, IsGrantedAtOnceWithoutChanges)
{
    context();
    const RefusingFile refusal(path);
    EXPECT_TRUE(isGranted());
    EXPECT_TRUE(alerts.errors.isEmpty());
}

TEST_F(TerminationTest, IsNotGrantedWhileAnEditCannotBeTaken)
{
    insertRule(home);
    OpenField field(context());
    field.accepts = false;
    const LogCapture log;
    EXPECT_FALSE(isGranted());
    EXPECT_EQ(
        log.taken(), QStringList(u"quillon.records: QuillonAppDelegate:applicationShouldTerminate: "
                                 "unable to commit editing to terminate"_s));
    EXPECT_EQ(savedNames(), QStringList()) << "nothing is saved then";
    EXPECT_TRUE(alerts.errors.isEmpty());
}

TEST_F(TerminationTest, TakesOpenEditsAndSavesBeforeItIsGranted)
{
    OpenField field(context());
    field.rule = insertRule(home);
    field.text = u"Office"_s;
    QObject::connect(&termination, &Termination::granted,
        [this] { EXPECT_EQ(savedNames(), QStringList(u"Office"_s)); });
    EXPECT_TRUE(isGranted());
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

class TerminationThatCannotSave : public TerminationTest
{
protected:
    TerminationThatCannotSave()
    {
        insertRule(home);
        refusal.emplace(path);
    }
    bool isRefusalPresented() const
    {
        return alerts.errors.size() == 1 &&
               alerts.errors.first().message.contains(u"refused by the file"_s);
    }

    static constexpr int quitAnyway = 0;
    static constexpr int cancel = 1;
    const Alert question{u"Could not save changes while quitting. Quit anyway?"_s,
        u"Quitting now will lose any changes you have made since the last successful save"_s,
        {u"Quit anyway"_s, u"Cancel"_s}};
    std::optional<RefusingFile> refusal;
};

TEST_F(TerminationThatCannotSave, IsNotGrantedWhenTheUserResolvedTheFailure)
{
    alerts.resolvesErrors = true;
    EXPECT_FALSE(isGranted());
    EXPECT_TRUE(isRefusalPresented());
    EXPECT_TRUE(alerts.alerts.isEmpty()) << "no second question";
    EXPECT_TRUE(context().hasChanges());
}

TEST_F(TerminationThatCannotSave, IsGrantedWhenTheUserDoesWithout)
{
    alerts.answer = quitAnyway;
    EXPECT_TRUE(isGranted());
    EXPECT_TRUE(isRefusalPresented());
    EXPECT_EQ(alerts.alerts, QList<Alert>{question});
}

TEST_F(TerminationThatCannotSave, KeepsTheProgramAndTheChangesWhenTheUserCancels)
{
    alerts.answer = cancel;
    EXPECT_FALSE(isGranted());
    EXPECT_TRUE(isRefusalPresented());
    EXPECT_EQ(alerts.alerts, QList<Alert>{question});
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(namesIn(context()), QStringList(home));

    refusal.reset();
    EXPECT_TRUE(isGranted()) << "the next wish is asked anew";
    EXPECT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(savedNames(), QStringList(home));
}

TEST_F(TerminationThatCannotSave, DoesNotTouchAContextThatWasReplacedWhileTheUserReads)
{
    alerts.answer = cancel;
    alerts.whileShown = [this] { store.refreshPersistentContainer(); };
    EXPECT_FALSE(isGranted());
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(TerminationThatCannotSave, TakesFurtherWishesForTheSameOneWhileTheUserIsAsked)
{
    alerts.answer = cancel;
    alerts.whileShown = [this] {
        termination.terminate();
        termination.terminate();
    };
    EXPECT_FALSE(isGranted());
    EXPECT_EQ(alerts.alerts.size(), 1);

    alerts.answer = quitAnyway;
    EXPECT_TRUE(isGranted());
    EXPECT_EQ(alerts.alerts.size(), 2);
}

} // namespace
} // namespace quillon::test
