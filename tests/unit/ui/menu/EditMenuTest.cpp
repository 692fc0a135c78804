// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/EditMenu.h"

#include "fakes/FakeScheduler.h"
#include "presentation/menu/EditMenuModel.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"
#include "unit/ui/WidgetFixture.h"

#include <QClipboard>
#include <QLineEdit>
#include <QTemporaryDir>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class EditMenuTest : public WidgetFixture
{
protected:
    EditMenuTest()
    {
        column->addWidget(&field);
        column->addWidget(&elsewhere);
        elsewhere.setFocusPolicy(Qt::StrongFocus);
        QObject::connect(&records, &RecordStore::undoChanged, &model, [this] { model.refresh(); });
        QObject::connect(
            &records, &RecordStore::objectsDidChange, &model, [this] { model.refresh(); });
        show();
        elsewhere.setFocus();
        QGuiApplication::clipboard()->setText(u"copied"_s);
    }
    ~EditMenuTest() override
    {
        field.setParent(nullptr);
        elsewhere.setParent(nullptr);
    }

    QAction &item(const QString &title)
    {
        for (QAction *action : menu.actions()) {
            if (action->text() == title) {
                return *action;
            }
        }
        ADD_FAILURE() << "no item " << title.toStdString();
        return *menu.actions().first();
    }
    /// The titles of what can be chosen.
    QStringList enabled()
    {
        Q_EMIT menu.aboutToShow();
        QStringList titles;
        for (const QAction *action : menu.actions()) {
            if (action->isEnabled() && !action->isSeparator()) {
                titles << action->text();
            }
        }
        return titles;
    }
    ManagedObjectPtr addRule()
    {
        const auto rule = records.managedObjectContext().insertNewObject(model::Rule);
        scheduler.runPending();
        return rule;
    }

    FakeScheduler scheduler;
    QTemporaryDir folder;
    RecordStore records{scheduler, folder.path()};
    EditMenuModel model{records};
    QLineEdit field;
    QWidget elsewhere;
    EditMenu menu{model, &window};
};

TEST_F(EditMenuTest, ItsItemsSayTheUsualKeys)
{
    EXPECT_EQ(item(u"Undo"_s).shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Z));
    EXPECT_TRUE(
        item(u"Redo"_s).shortcuts().contains(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)));
    EXPECT_EQ(item(u"Save"_s).shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    for (const auto *title : {"Cut", "Copy", "Paste", "Delete", "Select All"}) {
        const QAction &action = item(QString::fromLatin1(title));
        EXPECT_FALSE(action.shortcut().isEmpty()) << title;
        EXPECT_EQ(action.shortcutContext(), Qt::WidgetShortcut) << "fields have it themselves";
    }
}

TEST_F(EditMenuTest, NothingCanBeDoneWithoutAFieldAndWithoutEdits)
{
    EXPECT_EQ(enabled(), QStringList());
}

TEST_F(EditMenuTest, ActsOnTheFieldThatHasTheKeyboard)
{
    field.setFocus();
    EXPECT_EQ(enabled(), QStringList{u"Paste"_s});
    item(u"Paste"_s).trigger();
    EXPECT_EQ(field.text(), u"copied"_s);
    EXPECT_EQ(enabled(), (QStringList{u"Undo"_s, u"Paste"_s, u"Select All"_s}));
    item(u"Select All"_s).trigger();
    EXPECT_EQ(enabled(),
        (QStringList{u"Undo"_s, u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Delete"_s, u"Select All"_s}));
    item(u"Delete"_s).trigger();
    EXPECT_EQ(field.text(), QString());
    item(u"Undo"_s).trigger();
    EXPECT_EQ(field.text(), u"copied"_s);
    EXPECT_TRUE(enabled().contains(u"Redo"_s));
    item(u"Redo"_s).trigger();
    EXPECT_EQ(field.text(), QString());
    field.setReadOnly(true);
    EXPECT_FALSE(enabled().contains(u"Paste"_s));
}

TEST_F(EditMenuTest, UndoesInTheFieldFirstThenInTheRecords)
{
    const auto rule = addRule();
    rule->setValue(model::rule::name, u"Home"_s);
    scheduler.runPending();
    field.setFocus();
    field.insert(u"typed"_s);
    item(u"Undo"_s).trigger();
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(rule->value(model::rule::name), u"Home"_s);
    item(u"Undo"_s).trigger();
    EXPECT_NE(rule->value(model::rule::name), u"Home"_s);
    // Redoing, too, begins where the keyboard is.
    item(u"Redo"_s).trigger();
    EXPECT_EQ(field.text(), u"typed"_s);
    item(u"Redo"_s).trigger();
    EXPECT_EQ(rule->value(model::rule::name), u"Home"_s);
}

TEST_F(EditMenuTest, FollowsTheRecordsWithoutBeingOpened)
{
    EXPECT_FALSE(item(u"Undo"_s).isEnabled());
    EXPECT_FALSE(item(u"Save"_s).isEnabled());
    addRule();
    EXPECT_TRUE(item(u"Undo"_s).isEnabled());
    EXPECT_TRUE(item(u"Save"_s).isEnabled());
    item(u"Undo"_s).trigger();
    EXPECT_FALSE(item(u"Undo"_s).isEnabled());
    EXPECT_TRUE(item(u"Redo"_s).isEnabled());
}

TEST_F(EditMenuTest, AsksForTheRecordsToBeSaved)
{
    int saves = 0;
    QObject::connect(&model, &EditMenuModel::saveRequested, [&] { ++saves; });
    addRule();
    item(u"Save"_s).trigger();
    EXPECT_EQ(saves, 1);
}

TEST_F(EditMenuTest, SurvivesTheFieldThatHadTheKeyboard)
{
    {
        QLineEdit passing(&window);
        passing.show();
        passing.setFocus();
        passing.insert(u"x"_s);
        Q_EMIT menu.aboutToShow();
    }
    item(u"Paste"_s).trigger();
    EXPECT_FALSE(enabled().contains(u"Paste"_s));
}

} // namespace
} // namespace quillon::test
