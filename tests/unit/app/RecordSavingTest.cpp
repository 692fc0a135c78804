// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecordSaving.h"

#include "fakes/LogCapture.h"
#include "unit/store/RecordStoreFixture.h"
#include "unit/store/RefusingFile.h"

#include <QFile>

#include <optional>

namespace quillon {
namespace {

using enum RecordSaving::TerminateReply;

/// A text field that is being edited.
class OpenField : public ManagedObjectContext::Editor
{
public:
    explicit OpenField(ManagedObjectContext &context)
        : m_context(context)
    {
        m_context.addEditor(*this);
    }
    ~OpenField() override { m_context.removeEditor(*this); }
    OpenField(const OpenField &) = delete;
    OpenField &operator=(const OpenField &) = delete;

    bool commitEditing() override
    {
        if (accepts && rule) {
            rule->setValue(model::rule::name, text);
        }
        return accepts;
    }

    bool accepts = true;
    ManagedObjectPtr rule;
    QString text;

private:
    ManagedObjectContext &m_context;
};

class RecordSavingTest : public test::RecordStoreTest
{
protected:
    void refuse() { refusal.emplace(path); }
    bool isRefusalPresented() const
    {
        return alerts.errors.size() == 1 &&
               alerts.errors.first().message.contains(QStringLiteral("refused by the file"));
    }

    const QString home = QStringLiteral("Home");
    const Alert quitAnyway{QStringLiteral("Could not save changes while quitting. Quit anyway?"),
        QStringLiteral(
            "Quitting now will lose any changes you have made since the last successful save"),
        {QStringLiteral("Quit anyway"), QStringLiteral("Cancel")}};
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
    OpenField field(context());
    field.rule = insertRule(home);
    field.text = QStringLiteral("Office");
    saving.saveAction();
    EXPECT_EQ(savedNames(), QStringList(QStringLiteral("Office")));
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
    OpenField field(context());
    field.accepts = false;
    const test::LogCapture log;
    saving.saveAction();
    EXPECT_EQ(log.taken(),
        QStringList(QStringLiteral("quillon.records: QuillonAppDelegate:saveAction: unable to "
                                   "commit editing before saving")));
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

TEST_F(RecordSavingTest, QuitsAtOnceWhenNobodyUsedTheRecords)
{
    EXPECT_EQ(saving.applicationShouldTerminate(), Now);
    EXPECT_FALSE(store.hasManagedObjectContext()) << "no file is opened for quitting";
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(RecordSavingTest, QuitsAtOnceWithoutChanges)
{
    context();
    refuse();
    EXPECT_EQ(saving.applicationShouldTerminate(), Now);
    EXPECT_TRUE(alerts.errors.isEmpty());
}

TEST_F(RecordSavingTest, DoesNotQuitWhileAnEditCannotBeTaken)
{
    insertRule(home);
    OpenField field(context());
    field.accepts = false;
    const test::LogCapture log;
    EXPECT_EQ(saving.applicationShouldTerminate(), Cancel);
    EXPECT_EQ(log.taken(), QStringList(QStringLiteral(
                               "quillon.records: QuillonAppDelegate:applicationShouldTerminate: "
                               "unable to commit editing to terminate")));
    EXPECT_EQ(savedNames(), QStringList()) << "nothing is saved then";
    EXPECT_TRUE(alerts.errors.isEmpty());
}

TEST_F(RecordSavingTest, SavesAndQuits)
{
    OpenField field(context());
    field.rule = insertRule(home);
    field.text = QStringLiteral("Office");
    EXPECT_EQ(saving.applicationShouldTerminate(), Now);
    EXPECT_EQ(savedNames(), QStringList(QStringLiteral("Office")));
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(RecordSavingTest, DoesNotQuitWhenTheUserResolvedTheFailure)
{
    insertRule(home);
    refuse();
    alerts.resolvesErrors = true;
    EXPECT_EQ(saving.applicationShouldTerminate(), Cancel);
    EXPECT_TRUE(isRefusalPresented());
    EXPECT_TRUE(alerts.alerts.isEmpty()) << "no second question";
    EXPECT_TRUE(context().hasChanges());
}

TEST_F(RecordSavingTest, QuitsWithUnsavedChangesWhenTheUserSaysSo)
{
    insertRule(home);
    refuse();
    alerts.answer = 0;
    EXPECT_EQ(saving.applicationShouldTerminate(), Now);
    EXPECT_TRUE(isRefusalPresented());
    EXPECT_EQ(alerts.alerts, QList<Alert>{quitAnyway});
}

TEST_F(RecordSavingTest, CancelKeepsTheProgramAndTheChanges)
{
    insertRule(home);
    refuse();
    alerts.answer = 1;
    EXPECT_EQ(saving.applicationShouldTerminate(), Cancel);
    EXPECT_TRUE(isRefusalPresented());
    EXPECT_EQ(alerts.alerts, QList<Alert>{quitAnyway});
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(namesIn(context()), QStringList(home));
    refusal.reset();
    EXPECT_EQ(saving.applicationShouldTerminate(), Now);
    EXPECT_EQ(savedNames(), QStringList(home));
}

TEST_F(RecordSavingTest, AContextReplacedWhileTheUserReadsIsNotTouched)
{
    insertRule(home);
    refuse();
    alerts.answer = 1;
    alerts.whileShown = [this] { store.refreshPersistentContainer(); };
    EXPECT_EQ(saving.applicationShouldTerminate(), Cancel);
    EXPECT_FALSE(context().hasChanges());
}

} // namespace
} // namespace quillon
