// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"
#include "fakes/LogCapture.h"

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

/// Another program has the file open, too.
class Merging : public RecordsTest
{
protected:
    void SetUp() override
    {
        home = rule(u"Home"_s);
        save();
        other = another();
        theirs = other->context().objectWithURI(home->uriRepresentation());
        QObject::connect(
            &context(), &ManagedObjectContext::recordsMerged, &context(), [this] { ++merged; });
    }
    QStringList savedNames() const { return names(another()->context(), {model::Rule, {}, {}}); }
    void theySave() { ASSERT_FALSE(other->context().save()); }
    void theySave(const QString &name, const QString &device)
    {
        theirs->setValue(model::rule::name, name);
        theirs->setValue(model::rule::device, device);
        theySave();
    }
    void expectInFile(const QString &name, const QString &device) const
    {
        const auto third = another();
        const auto inFile = third->context().objectWithURI(home->uriRepresentation());
        ASSERT_TRUE(inFile);
        EXPECT_EQ(nameOf(inFile), name);
        EXPECT_EQ(inFile->value(model::rule::device), device);
    }

    ManagedObjectPtr home;
    std::unique_ptr<Program> other;
    ManagedObjectPtr theirs;
    int merged = 0;
};

TEST_F(Merging, OurChangedAttributesWinAndTheirOthersAreTakenOver)
{
    theySave(u"Theirs"_s, u"eth9"_s);
    home->setValue(model::rule::name, u"Ours"_s);
    save();
    EXPECT_EQ(nameOf(home), u"Ours"_s);
    EXPECT_EQ(home->value(model::rule::device), u"eth9"_s);
    EXPECT_FALSE(home->hasChanges());
    EXPECT_EQ(merged, 1);
    expectInFile(u"Ours"_s, u"eth9"_s);
}

TEST_F(Merging, OnDemandTakesOverWhatIsNotChangedHere)
{
    theySave(u"Theirs"_s, u"eth9"_s);
    home->setValue(model::rule::name, u"Ours"_s);
    EXPECT_FALSE(home->value(model::rule::device).isValid());
    context().mergeChangesFromStore();
    EXPECT_EQ(merged, 1);
    EXPECT_EQ(nameOf(home), u"Ours"_s);
    EXPECT_EQ(home->value(model::rule::device), u"eth9"_s);
    EXPECT_TRUE(home->hasChanges());
    save();
    EXPECT_EQ(merged, 1) << "nobody else wrote since the merge";
}

TEST_F(Merging, OfWhatTheyWroteIsNotOurEdit)
{
    theirs->setValue(model::rule::name, u"Theirs"_s);
    theySave();
    int told = 0;
    QObject::connect(
        &context(), &ManagedObjectContext::objectsDidChange, &context(), [&told] { ++told; });
    const int steps = context().undoManager().count();
    context().mergeChangesFromStore();
    endTurn();
    EXPECT_EQ(nameOf(home), u"Theirs"_s);
    EXPECT_EQ(told, 0);
    EXPECT_EQ(context().undoManager().count(), steps);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(Merging, ARecordThatTheyDeletedGoesHereToo)
{
    other->context().deleteObject(theirs);
    theySave();
    context().mergeChangesFromStore();
    EXPECT_TRUE(home->isDeleted());
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(context().objectWithURI(home->uriRepresentation()), nullptr);
}

TEST_F(Merging, ARecordThatTheyDeletedAndWeChangedComesBackWhole)
{
    home->setValue(model::rule::device, u"eth0"_s);
    other->context().deleteObject(theirs);
    theySave();
    save();
    EXPECT_FALSE(home->isDeleted());
    expectInFile(u"Home"_s, u"eth0"_s);
}

TEST_F(Merging, ARecordThatTheyDeletedBeforeTheMergeAndWeChangedComesBackWhole)
{
    home->setValue(model::rule::device, u"eth0"_s);
    other->context().deleteObject(theirs);
    theySave();
    context().mergeChangesFromStore();
    EXPECT_TRUE(home->isInserted());
    save();
    EXPECT_EQ(savedNames(), QStringList(u"Home"_s));
}

TEST_F(Merging, WhatBothDeletedIsGoneOnce)
{
    context().deleteObject(home);
    other->context().deleteObject(theirs);
    theySave();
    save();
    EXPECT_EQ(savedNames(), QStringList());
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(Merging, ARecordThatTheyBroughtBackIsTheSameObjectHere)
{
    other->context().deleteObject(theirs);
    theySave();
    context().mergeChangesFromStore();
    other->context().undoManager().undo();
    theySave();
    EXPECT_EQ(context().objectWithURI(home->uriRepresentation()), home);
    EXPECT_FALSE(home->isDeleted() || home->hasChanges());
}

TEST_F(Merging, WhatBothBroughtBackIsThereOnce)
{
    other->context().deleteObject(theirs);
    theySave();
    context().mergeChangesFromStore();
    other->context().undoManager().undo();
    theySave();
    EXPECT_EQ(names(), QStringList(u"Home"_s)) << "it comes back to whoever still holds it";
    EXPECT_FALSE(home->isDeleted());
    endTurn();
    context().deleteObject(home);
    save();
    context().undoManager().undo();
    {
        // Theirs comes back to the file between our undo and our save.
        SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
        const QString id = home->uriRepresentation().section(u'/', -1);
        file.exec("INSERT INTO Rule (pk, uuid, name) VALUES (1, x'" +
                  id.toStdString().erase(23, 1).erase(18, 1).erase(13, 1).erase(8, 1) +
                  "', 'Theirs')");
    }
    EXPECT_EQ(names(), QStringList(u"Home"_s));
    save();
    EXPECT_EQ(savedNames(), QStringList(u"Home"_s));
}

TEST_F(Merging, WhatCouldNotBeReadIsReadAtTheNextSave)
{
    const auto record = context().insertNewObject(model::Connection);
    save();
    {
        SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
        file.exec("UPDATE Connection SET ssid = 'Theirs';"
                  "ALTER TABLE Connection RENAME TO Elsewhere");
    }
    const LogCapture log;
    for (int attempt = 0; attempt < 2; ++attempt) {
        home->setValue(model::rule::name, u"Ours"_s + QString::number(attempt));
        save();
        const QStringList lines = LogCapture::taken();
        ASSERT_EQ(lines.size(), 1) << "attempt " << attempt;
        EXPECT_TRUE(lines.first().startsWith(
            u"quillon.records: Changes of other programs cannot be read: "_s));
    }
    EXPECT_EQ(merged, 0);
    {
        SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
        file.exec("ALTER TABLE Elsewhere RENAME TO Connection");
    }
    context().mergeChangesFromStore();
    EXPECT_EQ(merged, 1);
    EXPECT_EQ(record->value(model::connection::ssid), u"Theirs"_s);
    home->setValue(model::rule::name, u"Ours"_s);
    save();
    EXPECT_EQ(merged, 1) << "nobody else wrote since the merge";
}

TEST_F(Merging, ManyRecordsAreTakenOver)
{
    ManagedObjectList rules;
    for (int number = 0; number < 250; ++number) {
        rules << rule(QString::number(number));
    }
    save();
    for (const auto &object : other->context().fetch({model::Rule, {}, {}}).value()) {
        object->setValue(model::rule::name, nameOf(object) + u"!"_s);
    }
    theySave();
    context().mergeChangesFromStore();
    for (int number = 0; number < 250; ++number) {
        EXPECT_EQ(nameOf(rules[number]), QString::number(number) + u"!"_s);
    }
}

} // namespace quillon::test
