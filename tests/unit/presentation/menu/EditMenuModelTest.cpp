// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/EditMenuModel.h"

#include "fakes/FakeScheduler.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class EditMenuModelTest : public ::testing::Test
{
protected:
    EditMenuModelTest()
    {
        const auto refresh = [this] { model.refresh(); };
        QObject::connect(&records, &RecordStore::objectsDidChange, &model, refresh);
        QObject::connect(&records, &RecordStore::saved, &model, refresh);
        QObject::connect(&records, &RecordStore::undoChanged, &model, refresh);
        QObject::connect(&model, &EditMenuModel::saveRequested, [this] { ++saves; });
    }

    const EditMenuModel::State &state() const { return model.state(); }
    ManagedObjectPtr addRule()
    {
        const auto rule = records.managedObjectContext().insertNewObject(model::Rule);
        scheduler.runPending();
        return rule;
    }
    QString nameOf(const ManagedObjectPtr &rule) const
    {
        return rule->value(model::rule::name).toString();
    }
    void rename(const ManagedObjectPtr &rule, const QString &name)
    {
        rule->setValue(model::rule::name, name);
        scheduler.runPending();
    }

    FakeScheduler scheduler;
    QTemporaryDir folder;
    RecordStore records{scheduler, folder.path()};
    EditMenuModel model{records};
    int saves = 0;
};

TEST_F(EditMenuModelTest, CanDoNothingWithoutRecordsAndMakesNone)
{
    EXPECT_EQ(state(), EditMenuModel::State());
    model.undo();
    model.redo();
    model.save();
    EXPECT_EQ(saves, 0);
    EXPECT_FALSE(records.hasManagedObjectContext());
}

TEST_F(EditMenuModelTest, UndoesAndRedoesTheLastEdit)
{
    const auto rule = addRule();
    rename(rule, u"Home"_s);
    rename(rule, u"Office"_s);
    EXPECT_TRUE(state().undoEnabled);
    EXPECT_FALSE(state().redoEnabled);
    model.undo();
    EXPECT_EQ(nameOf(rule), u"Home"_s);
    EXPECT_TRUE(state().redoEnabled);
    model.redo();
    EXPECT_EQ(nameOf(rule), u"Office"_s);
    EXPECT_FALSE(state().redoEnabled);
    model.undo();
    model.undo();
    model.undo();
    EXPECT_FALSE(state().undoEnabled);
}

TEST_F(EditMenuModelTest, AsksToSaveWhatIsNotInTheFile)
{
    addRule();
    EXPECT_TRUE(state().saveEnabled);
    model.save();
    EXPECT_EQ(saves, 1);
    ASSERT_FALSE(records.managedObjectContext().save());
    EXPECT_FALSE(state().saveEnabled);
    model.save();
    EXPECT_EQ(saves, 1);
    model.undo();
    scheduler.runPending();
    EXPECT_TRUE(state().saveEnabled) << "what was undone is not in the file either";
}

TEST_F(EditMenuModelTest, FollowsTheRecordsThatStandInPlaceOfTheOthers)
{
    addRule();
    records.refreshPersistentContainer();
    model.refresh();
    EXPECT_EQ(state(), EditMenuModel::State());
    rename(addRule(), u"Home"_s);
    EXPECT_TRUE(state().undoEnabled);
}

} // namespace
} // namespace quillon::test
