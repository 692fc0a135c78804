// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"
#include "fakes/LogCapture.h"

#include <QDateTime>

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

class Saving : public RecordsTest
{
protected:
    /// What the file gives back for a value set before.
    QVariant roundTrip(const QString &entity, const QString &attribute, const QVariant &value)
    {
        const auto object = context().insertNewObject(entity);
        object->setValue(attribute, value);
        save();
        const QVariant inMemory = object->value(attribute);
        const auto other = another();
        const auto again = other->context().objectWithURI(object->uriRepresentation());
        EXPECT_EQ(again->value(attribute), inMemory);
        return again->value(attribute);
    }
    QStringList savedNames() const { return names(another()->context(), {model::Rule, {}, {}}); }
};

TEST_F(Saving, IdentitySurvivesSavingAndReopening)
{
    const auto home = rule(u"Home"_s);
    const QString uri = home->uriRepresentation();
    EXPECT_TRUE(uri.startsWith(u"x-quillon-record://Quillon/Rule/"_s));
    EXPECT_EQ(context().objectWithURI(uri), home) << "before it is saved";
    save();
    EXPECT_EQ(home->uriRepresentation(), uri);
    quit();
    const auto again = context().objectWithURI(uri);
    EXPECT_EQ(nameOf(again), u"Home"_s);
    EXPECT_EQ(again->uriRepresentation(), uri);
}

TEST_F(Saving, WhatIsNoIdentityOfARecordGivesNone)
{
    const auto home = rule(u"Home"_s);
    save();
    const QString uri = home->uriRepresentation();
    const QString id = uri.section(u'/', -1);
    for (const QString &other :
        {QString(), u"Home"_s, id, uri + u'/', uri.toUpper(),
            u"x-quillon-record://Quillon/Connection/"_s + id,
            u"x-quillon-record://Quillon/History/"_s + id, u"x-quillon-record://Other/Rule/"_s + id,
            u"x-quillon-record://Quillon/Rule/{"_s + id + u"}"_s,
            u"x-quillon-record://Quillon/Rule/00000000-0000-0000-0000-000000000000"_s}) {
        EXPECT_EQ(context().objectWithURI(other), nullptr) << other.toStdString();
    }
    context().deleteObject(home);
    EXPECT_EQ(context().objectWithURI(uri), nullptr);
    save();
    EXPECT_EQ(context().objectWithURI(uri), nullptr);
}

TEST_F(Saving, NothingReachesTheFileBefore)
{
    rule(u"Home"_s);
    endTurn();
    EXPECT_EQ(savedNames(), QStringList());
    EXPECT_TRUE(context().hasChanges());
    save();
    EXPECT_EQ(savedNames(), QStringList(u"Home"_s));
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(Saving, ARecordTellsWhatIsUnsaved)
{
    const auto home = rule(u"Home"_s);
    EXPECT_TRUE(home->hasChanges() && home->isInserted() && !home->isDeleted());
    save();
    EXPECT_FALSE(home->hasChanges() || home->isInserted() || home->isDeleted());
    home->setValue(model::rule::enabled, true);
    EXPECT_TRUE(home->hasChanges() && !home->isInserted());
    context().deleteObject(home);
    EXPECT_TRUE(home->hasChanges() && !home->isInserted() && home->isDeleted());
    save();
    EXPECT_FALSE(home->hasChanges());
    EXPECT_TRUE(home->isDeleted());
    EXPECT_EQ(nameOf(home), u"Home"_s) << "a deleted record can still be read";
}

TEST_F(Saving, IsToldOnlyWhenSomethingWasWritten)
{
    int told = 0;
    QObject::connect(&context(), &ManagedObjectContext::saved, &context(), [&told] { ++told; });
    save();
    EXPECT_EQ(told, 0);
    rule(u"Home"_s);
    save();
    EXPECT_EQ(told, 1);
}

TEST_F(Saving, EachTypeKeepsItsLimits)
{
    const auto minutes = [this](const QVariant &value) {
        return roundTrip(model::Rule, model::rule::timerMins, value);
    };
    EXPECT_EQ(minutes(32767), qlonglong{32767});
    EXPECT_EQ(minutes(-32768), qlonglong{-32768});
    EXPECT_EQ(minutes(0), qlonglong{0});
    EXPECT_FALSE(minutes(QVariant()).isValid());
    EXPECT_EQ(roundTrip(model::Rule, model::rule::enabled, true), true);
    EXPECT_EQ(roundTrip(model::Rule, model::rule::enabled, false), false);
    const auto note = [this](const QVariant &value) {
        return roundTrip(model::Connection, model::connection::notes, value);
    };
    EXPECT_EQ(note(QString()), u""_s);
    EXPECT_TRUE(note(QString()).isValid());
    EXPECT_EQ(note(QString(QChar(u'\0'))), QString(QChar(u'\0')));
    EXPECT_EQ(note(u"a\n'\"\U0001F600"_s), u"a\n'\"\U0001F600"_s);
    EXPECT_EQ(note(QString(1'000'000, u'x')).toString().size(), 1'000'000);
    EXPECT_TRUE(note(QString(QChar(0xD83D))).toString().isValidUtf16()) << "half a character";
    const auto date = [this](const QDateTime &value) {
        return roundTrip(model::Connection, model::connection::date, value);
    };
    const auto moment = QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC);
    EXPECT_EQ(date(moment), moment);
    EXPECT_EQ(date(QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59, 999), Qt::UTC))
                  .toDateTime()
                  .toMSecsSinceEpoch(),
        253402300799999);
    const QDateTime elsewhere(QDate(2025, 6, 15), QTime(12, 0), Qt::OffsetFromUTC, 7200);
    EXPECT_EQ(date(elsewhere).toDateTime().timeSpec(), Qt::UTC);
    EXPECT_EQ(date(elsewhere).toDateTime(), elsewhere);
}

TEST_F(Saving, AValueThatDoesNotFitIsRefusedWithALine)
{
    const auto home = rule(u"Home"_s);
    const LogCapture log;
    home->setValue(model::rule::timerMins, 32768);
    home->setValue(model::rule::timerMins, u"5"_s);
    home->setValue(model::rule::enabled, 1);
    home->setValue(model::rule::name, 5);
    home->setValue(u"bssid"_s, u"x"_s);
    EXPECT_FALSE(home->value(model::rule::timerMins).isValid());
    EXPECT_FALSE(home->value(model::rule::enabled).isValid());
    EXPECT_FALSE(home->value(u"bssid"_s).isValid());
    EXPECT_EQ(nameOf(home), u"Home"_s);
    EXPECT_EQ(LogCapture::taken(),
        QStringList({u"quillon.records: A value of type int does not fit Rule.timerMins"_s,
            u"quillon.records: A value of type QString does not fit Rule.timerMins"_s,
            u"quillon.records: A value of type int does not fit Rule.enabled"_s,
            u"quillon.records: A value of type int does not fit Rule.name"_s,
            u"quillon.records: A value of type QString does not fit Rule.bssid"_s}));
}

TEST_F(Saving, AFailureKeepsEveryChangePending)
{
    const auto home = rule(u"Home"_s);
    const auto cafe = rule(u"Cafe"_s);
    save();
    home->setValue(model::rule::name, u"House"_s);
    context().deleteObject(cafe);
    rule(u"Office"_s);
    SQLite::Database reader(path.toStdString(), SQLite::OPEN_READWRITE);
    reader.exec("BEGIN IMMEDIATE");
    const auto error = context().save();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->domain, recordFileErrorDomain);
    EXPECT_EQ(error->code, static_cast<int>(RecordFileError::Locked));
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(names(), QStringList({u"House"_s, u"Office"_s}));
    EXPECT_EQ(savedNames(), QStringList({u"Home"_s, u"Cafe"_s}));
    reader.exec("ROLLBACK");
    save();
    EXPECT_EQ(savedNames(), QStringList({u"House"_s, u"Office"_s}));
}

TEST_F(Saving, ARowThatFailsTakesTheWholeSaveBack)
{
    const auto home = rule(u"Home"_s);
    save();
    {
        SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
        other.exec("CREATE TRIGGER refuse BEFORE INSERT ON Connection BEGIN "
                   "SELECT RAISE(ABORT, 'refused'); END");
    }
    home->setValue(model::rule::name, u"House"_s);
    const auto other = rule(u"Office"_s);
    const auto record = context().insertNewObject(model::Connection);
    EXPECT_TRUE(context().save());
    EXPECT_EQ(savedNames(), QStringList(u"Home"_s));
    EXPECT_TRUE(home->hasChanges() && other->isInserted() && record->isInserted());
    context().deleteObject(record);
    save();
    EXPECT_EQ(savedNames(), QStringList({u"House"_s, u"Office"_s}));
}

TEST_F(Saving, ObjectsOutliveTheirContextAndIgnoreWritesThen)
{
    const auto home = rule(u"Home"_s);
    const auto unsaved = rule(u"Office"_s);
    const QString uri = home->uriRepresentation();
    quit();
    home->setValue(model::rule::name, u"House"_s);
    unsaved->setPrimitiveValue(model::rule::name, u"House"_s);
    EXPECT_EQ(nameOf(home), u"Home"_s);
    EXPECT_EQ(nameOf(unsaved), u"Office"_s);
    EXPECT_EQ(home->uriRepresentation(), uri);
    EXPECT_TRUE(home->changedValuesForCurrentEvent().isEmpty());
    context().deleteObject(home);
    EXPECT_FALSE(home->isDeleted()) << "another context has no say";
}

TEST_F(Saving, ADeletedObjectIgnoresWrites)
{
    const auto home = rule(u"Home"_s);
    context().deleteObject(home);
    context().deleteObject(home);
    context().deleteObject(nullptr);
    home->setValue(model::rule::name, u"House"_s);
    EXPECT_EQ(nameOf(home), u"Home"_s);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(Saving, ObjectsWithChangesAreKeptThoughNobodyHoldsThem)
{
    rule(u"Home"_s);
    save();
    quit();
    context().fetch({model::Rule, {}, {}}).value().first()->setValue(model::rule::name, u"House"_s);
    context().undoManager().clear();
    endTurn();
    save();
    EXPECT_EQ(savedNames(), QStringList(u"House"_s));
}

TEST_F(Saving, AnObserverMayEndTheContextThatIsToBeSaved)
{
    rule(u"Home"_s);
    save();
    const auto office = rule(u"Office"_s);
    QObject observer;
    QObject::connect(
        &context(), &ManagedObjectContext::objectsDidChange, &observer, [this] { quit(); });
    EXPECT_FALSE(context().save());
    EXPECT_TRUE(office->isInserted()) << "whoever ends it drops what was not saved";
    EXPECT_EQ(savedNames(), QStringList(u"Home"_s));
}

TEST(SavingDeathTest, ARecordOfAnUnknownEntityEndsTheProgram)
{
    const QTemporaryDir folder;
    FakeScheduler scheduler;
    const auto opened =
        ManagedObjectContext::open(quillonModel(), folder.filePath(u"Quillon.sqlite"_s), scheduler);
    EXPECT_DEATH(opened.value()->insertNewObject(u"History"_s), "the model has the entity");
}

// MARK: editors

class OpenField : public ManagedObjectContext::Editor
{
public:
    bool commitEditing() override
    {
        ++asked;
        if (whenAsked) {
            whenAsked();
        }
        return accepts;
    }

    bool accepts = true;
    int asked = 0;
    std::function<void()> whenAsked;
};

class SavingEditors : public RecordsTest
{
};

TEST_F(SavingEditors, AreAskedUntilOneRefuses)
{
    EXPECT_TRUE(context().commitEditing());
    OpenField first;
    OpenField second;
    OpenField third;
    context().addEditor(first);
    context().addEditor(second);
    context().addEditor(third);
    second.accepts = false;
    EXPECT_FALSE(context().commitEditing());
    EXPECT_EQ(third.asked, 0);
    context().removeEditor(second);
    EXPECT_TRUE(context().commitEditing());
    EXPECT_EQ(third.asked, 1);
}

TEST_F(SavingEditors, MayEndWhileTheyAreAsked)
{
    OpenField first;
    OpenField second;
    context().addEditor(first);
    context().addEditor(second);
    first.whenAsked = [&] {
        context().removeEditor(first);
        context().removeEditor(second);
    };
    EXPECT_TRUE(context().commitEditing());
    EXPECT_EQ(second.asked, 0);
}

} // namespace quillon::test
