// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordFile.h"

#include "Places.h"
#include "fakes/QtPrinting.h"
#include "store/model/QuillonModel.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <sys/stat.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

class RecordFileOpeningTest : public ::testing::Test
{
protected:
    using Opened = Result<std::unique_ptr<RecordFile>>;

    Opened open(const RecordSchema &schema = quillonSchema()) const
    {
        return RecordFile::open(quillonModel(), path, schema);
    }
    void sql(const std::string &script) const
    {
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
            .exec(script);
    }
    std::string answer(const std::string &query) const
    {
        return SQLite::Database(path.toStdString()).execAndGet(query).getString();
    }
    QByteArray bytes() const { return bytes(path); }
    static QByteArray bytes(const QString &of)
    {
        QFile file(of);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    void write(const QByteArray &content) const { write(path, content); }
    static void write(const QString &to, const QByteArray &content)
    {
        QFile file(to);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }
    void makeWithOneRule() const
    {
        auto file = open();
        ASSERT_TRUE(file);
        const Entity &rule = quillonModel().entities.first();
        QVariantList values(rule.attributes().size());
        values[rule.indexOf(model::rule::name)] = u"Home"_s;
        const RecordRow row{firstUnsavedKey, QUuid::createUuid(), values};
        ASSERT_TRUE(file.value()->write({{RowChange::Kind::Insert, rule, row, {}}}));
    }
    static RecordSchema withStep(const std::string &script)
    {
        RecordSchema schema = quillonSchema();
        schema.steps << script;
        return schema;
    }
    void expectRefused(const Opened &opened, RecordFileError code, const QString &message) const
    {
        ASSERT_FALSE(opened);
        EXPECT_EQ(opened.error().domain, recordFileErrorDomain);
        EXPECT_EQ(opened.error().code, static_cast<int>(code));
        EXPECT_TRUE(opened.error().message.contains(message))
            << opened.error().message.toStdString();
        EXPECT_EQ(isRecordFileError(opened.error(), RecordFileError::Newer),
            code == RecordFileError::Newer);
    }

    /// From now on the file is as a program leaves it that was killed while it filled "Notes": the
    /// journal has what the file had before.
    void leaveHalfDone()
    {
        const QString copy = folder.filePath(u"copy.sqlite"_s);
        SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
        other.exec("PRAGMA cache_size = 1; PRAGMA cache_spill = 1; BEGIN;"
                   "WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n LIMIT 200)"
                   "INSERT INTO Notes SELECT hex(randomblob(500)) FROM n");
        write(copy, bytes(path));
        write(copy + u"-journal"_s, bytes(path + u"-journal"_s));
        path = copy;
    }
    void expectHalfDoneRefused(RecordFileError code, const QString &message)
    {
        leaveHalfDone();
        const QByteArray before = bytes();
        const QByteArray journal = bytes(path + u"-journal"_s);
        ASSERT_GT(journal.size(), 512);
        expectRefused(open(), code, message);
        EXPECT_TRUE(bytes() == before);
        EXPECT_TRUE(bytes(path + u"-journal"_s) == journal);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Quillon.sqlite"_s);
};

TEST_F(RecordFileOpeningTest, MakesAMissingFileForItsOwnerAlone)
{
    ASSERT_TRUE(open());
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther |
                                             QFile::WriteOther | QFile::ExeOwner),
        QFile::Permissions());
    EXPECT_EQ(answer("PRAGMA user_version"), "3");
    EXPECT_EQ(answer("PRAGMA journal_mode"), "wal");
    EXPECT_EQ(answer("SELECT count(*) FROM Rule"), "0");
    EXPECT_EQ(answer("SELECT count(*) FROM Connection"), "0");
}

TEST_F(RecordFileOpeningTest, TheLogBesideTheFileIsForItsOwnerToo)
{
    const auto file = open();
    const auto permissions = QFile::permissions(path + u"-wal"_s);
    EXPECT_TRUE(permissions & QFile::ReadOwner);
    EXPECT_FALSE(permissions & (QFile::ReadGroup | QFile::ReadOther));
}

TEST_F(RecordFileOpeningTest, AnEmptyFileIsANewOne)
{
    write({});
    ASSERT_TRUE(open());
    EXPECT_EQ(answer("PRAGMA user_version"), "3");
}

TEST_F(RecordFileOpeningTest, AnOlderFileIsBroughtUpToDate)
{
    makeWithOneRule();
    RecordSchema later = withStep("ALTER TABLE Rule ADD COLUMN colour TEXT;"
                                  "UPDATE Rule SET colour = 'green' WHERE name = 'Home';");
    later.steps << "CREATE INDEX byDate ON Connection (date)";
    ASSERT_TRUE(open(later));
    EXPECT_EQ(answer("PRAGMA user_version"), "5");
    EXPECT_EQ(answer("SELECT colour FROM Rule"), "green");
    EXPECT_EQ(answer("SELECT count(*) FROM sqlite_master WHERE name = 'byDate'"), "1");
    ASSERT_TRUE(open(later)) << "a step runs once";
}

TEST_F(RecordFileOpeningTest, AFileOfVersion1KeepsItsRecordsAndGetsTheIndexByDate)
{
    write(bytes(testData() + u"/records/version-1.sqlite"_s));
    EXPECT_EQ(answer("PRAGMA user_version"), "1");
    const auto file = open();
    ASSERT_TRUE(file) << file.error().message.toStdString();
    EXPECT_EQ(answer("PRAGMA user_version"), "3");
    EXPECT_EQ(answer("PRAGMA integrity_check"), "ok");

    const Entity &connection = *quillonModel().entity(model::Connection);
    const FetchRequest newest{model::Connection, {}, {{model::connection::date, false}}, true};
    const auto keys = file.value()->keys(connection, newest);
    ASSERT_TRUE(keys);
    EXPECT_EQ(keys.value(), std::vector<qint64>({2, 1, 4})) << "what has no date comes last";
    const auto rows = file.value()->rows(connection, {1});
    ASSERT_EQ(rows.value().size(), 1);
    EXPECT_EQ(rows.value().first().values,
        QVariantList({QDateTime::fromMSecsSinceEpoch(1'600'000'000'000, Qt::UTC), u"wlp2s0"_s,
            u"Wi-Fi"_s, u"62:68:66:48:DC:27"_s, u"Harbor-Guest"_s, u"a4:2b:b0:11:22:33"_s,
            u"by the window"_s}));
    const auto rules =
        file.value()->keys(*quillonModel().entity(model::Rule), {model::Rule, {}, {}});
    EXPECT_EQ(rules.value().size(), 1U);

    const std::string schemaOf = "SELECT group_concat(sql) FROM (SELECT sql FROM sqlite_master "
                                 "WHERE name NOT LIKE 'sqlite_%' ORDER BY name)";
    const std::string migrated = answer(schemaOf);
    path = folder.filePath(u"new.sqlite"_s);
    ASSERT_TRUE(open());
    EXPECT_EQ(answer(schemaOf), migrated) << "an old file is what a new one is";
}

TEST_F(RecordFileOpeningTest, AFileOfVersion2KeepsItsRecordsAndNotesNoEditUntilItIsMirrored)
{
    write(bytes(testData() + u"/records/version-2.sqlite"_s));
    EXPECT_EQ(answer("PRAGMA user_version"), "2");
    ASSERT_TRUE(open());
    EXPECT_EQ(answer("PRAGMA user_version"), "3");
    EXPECT_EQ(answer("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(answer("SELECT group_concat(pk || ' ' || ifnull(address, ''), ', ') FROM Connection"),
        "1 62:68:66:48:DC:27, 2 02:00:5e:00:53:01, 4 ");
    const std::string edits = "SELECT count(*) FROM MirrorEdit";
    sql("UPDATE Connection SET notes = 'x' WHERE pk = 1");
    EXPECT_EQ(answer(edits), "0");
    sql("UPDATE Mirror SET isRecording = 1");
    sql("UPDATE Connection SET notes = 'y' WHERE pk = 1");
    EXPECT_EQ(answer(edits), "1");
    sql("UPDATE Connection SET notes = 'y' WHERE pk = 1");
    sql("UPDATE Rule SET active = 1 - ifnull(active, 0)");
    EXPECT_EQ(answer(edits), "1") << "neither is an edit that others are to hear of";
    const std::string schemaOf = "SELECT group_concat(sql) FROM (SELECT sql FROM sqlite_master "
                                 "WHERE name NOT LIKE 'sqlite_%' ORDER BY name)";
    const std::string migrated = answer(schemaOf);
    path = folder.filePath(u"new.sqlite"_s);
    ASSERT_TRUE(open());
    EXPECT_EQ(answer(schemaOf), migrated) << "an old file is what a new one is";
}

TEST_F(RecordFileOpeningTest, EveryAttributeThatIsSentHasItsBitInTheNotedEdit)
{
    makeWithOneRule();
    sql("INSERT INTO Connection (uuid) VALUES (randomblob(16)); UPDATE Mirror SET isRecording = 1");
    for (const Entity &entity : quillonModel().entities) {
        for (qsizetype index = 0; index < entity.attributes().size(); ++index) {
            const Attribute &attribute = entity.attributes()[index];
            const std::string value = attribute.type == AttributeType::String ? "'new'" : "77";
            sql("DELETE FROM MirrorEdit; UPDATE " + entity.name().toStdString() + " SET \"" +
                attribute.name.toStdString() + "\" = " + value);
            const bool isSent = attribute.name != model::rule::active.name;
            EXPECT_EQ(answer("SELECT ifnull(sum(columns), 0) FROM MirrorEdit"),
                std::to_string(isSent ? qint64{1} << index : 0))
                << attribute.name.toStdString();
        }
    }
}

TEST_F(RecordFileOpeningTest, TheNewestRecordsAreFoundWithoutSortingTheRest)
{
    ASSERT_TRUE(open());
    SQLite::Database database(path.toStdString());
    SQLite::Statement plan(database, "EXPLAIN QUERY PLAN SELECT pk, date FROM Connection "
                                     "WHERE instr(notes, 'x') > 0 ORDER BY date DESC, pk DESC");
    QString steps;
    while (plan.executeStep()) {
        steps += QString::fromStdString(plan.getColumn(3).getString());
    }
    EXPECT_TRUE(steps.contains(u"Connection by date"_s)) << steps.toStdString();
    EXPECT_FALSE(steps.contains(u"TEMP B-TREE"_s)) << steps.toStdString();
}

TEST_F(RecordFileOpeningTest, AStepThatFailsLeavesTheFileAsItWas)
{
    makeWithOneRule();
    const QByteArray before = bytes();
    RecordSchema later = withStep("ALTER TABLE Rule ADD COLUMN colour TEXT");
    later.steps << "UPDATE NoSuchTable SET x = 1";
    expectRefused(open(later), RecordFileError::Failed, u"NoSuchTable"_s);
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(answer("PRAGMA user_version"), "3");
    EXPECT_TRUE(open());
}

TEST_F(RecordFileOpeningTest, AStepThatLosesAnAttributeIsTakenBack)
{
    makeWithOneRule();
    expectRefused(
        open(withStep("DROP TRIGGER \"Rule updated\"; ALTER TABLE Rule DROP COLUMN vendor")),
        RecordFileError::Damaged, u"\"Rule\" lacks \"vendor\""_s);
    EXPECT_TRUE(open());
}

TEST_F(RecordFileOpeningTest, AFileOfANewerVersionIsRefusedAndUntouched)
{
    ASSERT_TRUE(open(withStep("CREATE TABLE Extra (x)")));
    const QByteArray before = bytes();
    expectRefused(open(), RecordFileError::Newer,
        u"were written by a newer version of Quillon (version 4 of the file; this "
        u"program knows versions up to 3)"_s);
    EXPECT_EQ(bytes(), before);
    EXPECT_TRUE(open(withStep("CREATE TABLE Extra (x)")));
}

TEST_F(RecordFileOpeningTest, WhatANewerProgramLeftInItsLogStaysThere)
{
    {
        // As a program leaves it that was killed: the log has what the file does not have yet.
        auto newer = open(withStep("CREATE TABLE Extra (x)"));
        ASSERT_TRUE(newer);
        const QString copy = folder.filePath(u"copy.sqlite"_s);
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
            .exec("INSERT INTO Extra VALUES (1)");
        QFile::copy(path, copy);
        QFile::copy(path + u"-wal"_s, copy + u"-wal"_s);
        path = copy;
    }
    const QByteArray before = bytes();
    expectRefused(open(), RecordFileError::Newer, u"newer version"_s);
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(answer("SELECT count(*) FROM Extra"), "1");
}

TEST_F(RecordFileOpeningTest, WhatIsNoDatabaseIsRefusedAndUntouched)
{
    const QByteArray text("Dear diary, this is not a database at all.");
    write(text);
    expectRefused(open(), RecordFileError::NotARecordFile, u"is not a database"_s);
    EXPECT_EQ(bytes(), text);
    write(QByteArray("SQLite format 3\0", 16) + QByteArray(5000, 'x'));
    EXPECT_FALSE(open());
}

TEST_F(RecordFileOpeningTest, AFileTooShortForADatabaseIsRefusedAndUntouched)
{
    const QByteArray header("SQLite format 3\0", 16);
    for (const QByteArray &text : {QByteArray("x"), QByteArray("scribble"), header.left(1), header,
             header + QByteArray(83, '\0')}) {
        write(text);
        expectRefused(open(), RecordFileError::NotARecordFile, u"is not a database"_s);
        EXPECT_EQ(bytes(), text);
    }
}

TEST_F(RecordFileOpeningTest, WhatIsNoDatabaseIsNotReadFromALogBesideIt)
{
    {
        const auto other = open();
        ASSERT_TRUE(other);
        const QString copy = folder.filePath(u"copy.sqlite"_s);
        const QByteArray log = bytes(path + u"-wal"_s);
        write(copy, QByteArray(5000, 'x'));
        write(copy + u"-wal"_s, log);
        path = copy;
    }
    const QByteArray log = bytes(path + u"-wal"_s);
    expectRefused(open(), RecordFileError::NotARecordFile, u"is not a database"_s);
    EXPECT_EQ(bytes(), QByteArray(5000, 'x'));
    EXPECT_EQ(bytes(path + u"-wal"_s), log);
}

TEST_F(RecordFileOpeningTest, WhatAnotherProgramDidNotFinishIsLeftToIt)
{
    sql("CREATE TABLE Notes (text); INSERT INTO Notes VALUES ('before')");
    expectHalfDoneRefused(RecordFileError::NotARecordFile, u"does not hold records of"_s);
}

TEST_F(RecordFileOpeningTest, WhatANewerProgramDidNotFinishIsLeftToIt)
{
    ASSERT_TRUE(open(withStep("CREATE TABLE Notes (text)")));
    sql("PRAGMA journal_mode = DELETE");
    expectHalfDoneRefused(RecordFileError::Newer, u"newer version"_s);
}

TEST_F(RecordFileOpeningTest, TheDatabaseOfAnotherProgramIsRefusedAndUntouched)
{
    sql("CREATE TABLE Rule (x); INSERT INTO Rule VALUES (1)");
    const QByteArray before = bytes();
    expectRefused(open(), RecordFileError::NotARecordFile, u"does not hold records of"_s);
    EXPECT_EQ(bytes(), before);
    sql("PRAGMA user_version = 1");
    expectRefused(open(), RecordFileError::NotARecordFile, u"does not hold records of"_s);
}

TEST_F(RecordFileOpeningTest, AMissingColumnOrTableIsDamage)
{
    makeWithOneRule();
    sql("DROP TRIGGER \"Rule updated\"; ALTER TABLE Rule DROP COLUMN ssid");
    const QByteArray before = bytes();
    expectRefused(open(), RecordFileError::Damaged, u"\"Rule\" lacks \"ssid\""_s);
    EXPECT_EQ(bytes(), before);
    sql("DROP TABLE Rule");
    expectRefused(open(), RecordFileError::Damaged, u"\"Rule\" lacks \"pk\""_s);
}

TEST_F(RecordFileOpeningTest, ADamagedPageIsNoticedAndUntouched)
{
    makeWithOneRule();
    const QByteArray whole = bytes();
    ASSERT_GT(whole.size(), 4096 * 2);
    QByteArray damaged = whole;
    for (qsizetype at = 4096; at < damaged.size(); ++at) {
        damaged[at] = static_cast<char>(at * 31);
    }
    write(damaged);
    expectRefused(open(), RecordFileError::Damaged, QString());
    EXPECT_EQ(bytes(), damaged);
}

TEST_F(RecordFileOpeningTest, ATruncatedFileIsNoticedAndUntouched)
{
    makeWithOneRule();
    const QByteArray part = bytes().left(4096 * 2);
    write(part);
    expectRefused(open(), RecordFileError::Damaged, QString());
    EXPECT_EQ(bytes(), part);
}

TEST_F(RecordFileOpeningTest, NoByteThatIsWrongEndsTheProgram)
{
    makeWithOneRule();
    const QByteArray whole = bytes();
    for (qsizetype at = 0; at < 4096; at += 29) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        write(damaged);
        const auto opened = open();
        EXPECT_TRUE(opened || !opened.error().message.isEmpty());
    }
}

TEST_F(RecordFileOpeningTest, IsNotHeldUpBySomebodyWhoWrites)
{
    makeWithOneRule();
    SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    EXPECT_TRUE(open());
}

TEST_F(RecordFileOpeningTest, AFolderOrAMissingFolderCannotBeOpened)
{
    QDir(folder.path()).mkdir(u"Quillon.sqlite"_s);
    expectRefused(open(), RecordFileError::CannotOpen, u"cannot be opened"_s);
    path = folder.filePath(u"missing/Quillon.sqlite"_s);
    expectRefused(open(), RecordFileError::CannotOpen, u"cannot be opened"_s);
}

TEST_F(RecordFileOpeningTest, APipeIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    expectRefused(open(), RecordFileError::CannotOpen, u"cannot be opened"_s);
}

TEST_F(RecordFileOpeningTest, ANameWithAnyCharacterIsAFile)
{
    path = folder.filePath(u"Ä ?mode=memory%41'\".sqlite"_s);
    ASSERT_TRUE(open());
    EXPECT_TRUE(QFile::exists(path));
}

} // namespace quillon::test
