// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Several programs of one user make the record file at the same moment.
#include "RecordsOnDisk.h"
#include "WatchedFileSystem.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "store/file/RecordFile.h"
#include "store/model/RecordFileError.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// One of the programs. It ends when this dies.
class RecordsProgram
{
public:
    explicit RecordsProgram(const QString &path)
        : m_opened(openedContext(path, m_scheduler))
    {
    }
    /// What prevented the opening, or nothing.
    QString fault() const { return m_opened ? QString() : m_opened.error().message; }
    /// Saves a rule; what prevents it, or nothing.
    QString save(const QString &name)
    {
        if (!m_opened) {
            return fault();
        }
        ManagedObjectContext &context = *m_opened.value();
        context.insertNewObject(model::Rule)->setValue(model::rule::name, name);
        auto error = context.save();
        // A busy disk may hold up the others for longer than a save waits, which loses nothing. An
        // opening is made once.
        while (mayBeLocked && error && isRecordFileError(*error, RecordFileError::Locked)) {
            error = context.save();
        }
        return error ? error->message : QString();
    }
    QStringList names()
    {
        QStringList names;
        const auto rules = m_opened.value()->fetch({model::Rule, {}, {}});
        for (const auto &rule : rules ? rules.value() : ManagedObjectList()) {
            names << rule->value(model::rule::name).toString();
        }
        names.sort();
        return names;
    }

    bool mayBeLocked = false;

private:
    FakeScheduler m_scheduler;
    OpenedContext m_opened;
};

class TwoPrograms : public ::testing::Test
{
protected:
    /// What is done once, when the file is about to be locked for the `moment`th time.
    void at(int moment, const std::function<void()> &interlude)
    {
        hasCome = false;
        fileSystem.watch.beforeLock = [=, this, locks = 0](const std::string &) mutable {
            if (!hasCome && locks++ == moment) {
                hasCome = true;
                interlude();
            }
        };
    }
    /// Ends the other program when it has been waited for so often.
    void releaseAfter(int waits, std::optional<SQLite::Database> &other)
    {
        fileSystem.watch.waits = [&other, waits, waited = 0]() mutable {
            if (++waited == waits) {
                other.reset();
            }
        };
    }
    QString newPath() { return folder.filePath(u"%1.sqlite"_s.arg(++files)); }

    /// Of 50 to 100 milliseconds each, as a rule.
    static constexpr int waitsOfSeconds = 100;

    QTemporaryDir folder;
    WatchedFileSystem fileSystem;
    bool hasCome = false;
    int files = 0;
};

TEST_F(TwoPrograms, MayMakeTheFileBetweenAnyTwoStepsOfEachOther)
{
    int moment = 0;
    for (const bool staysOpen : {true, false}) {
        for (moment = 0, hasCome = true; hasCome; ++moment) {
            const QString path = newPath();
            std::optional<RecordsProgram> other;
            QString othersFault;
            at(moment, [&] {
                other.emplace(path);
                othersFault = other->save(u"other"_s);
                if (!staysOpen) {
                    other.reset();
                }
            });
            RecordsProgram one(path);
            EXPECT_EQ(one.save(u"one"_s), QString()) << "moment " << moment;
            EXPECT_EQ(othersFault, QString()) << "moment " << moment;
            if (hasCome) {
                EXPECT_EQ(one.names(), QStringList({u"one"_s, u"other"_s})) << moment;
            }
        }
    }
    EXPECT_GT(moment, 4) << "there are steps in between";
}

TEST_F(TwoPrograms, WaitForAReaderWhateverTheyAreAbout)
{
    for (const int waits : {3, waitsOfSeconds}) {
        int moment = 0;
        for (hasCome = true; hasCome; ++moment) {
            const QString path = newPath();
            std::optional<SQLite::Database> reader;
            releaseAfter(waits, reader);
            at(moment, [&] {
                reader.emplace(path.toStdString(), SQLite::OPEN_READONLY);
                reader->exec("BEGIN; SELECT count(*) FROM sqlite_master");
            });
            RecordsProgram one(path);
            EXPECT_EQ(one.save(u"one"_s), QString()) << "moment " << moment;
        }
        EXPECT_GT(moment, 4);
    }
}

TEST_F(TwoPrograms, WaitForOneThatMakesTheFileOnASlowDisk)
{
    int moment = 0;
    for (hasCome = true; hasCome; ++moment) {
        const QString path = newPath();
        std::optional<SQLite::Database> writer;
        releaseAfter(waitsOfSeconds, writer);
        at(moment, [&] {
            writer.emplace(path.toStdString(), SQLite::OPEN_READWRITE);
            writer->exec("BEGIN EXCLUSIVE");
        });
        EXPECT_EQ(RecordsProgram(path).fault(), QString()) << "moment " << moment;
    }
    EXPECT_GT(moment, 3);
}

TEST_F(TwoPrograms, GiveUpInBoundedTimeWhenTheReaderStays)
{
    const QString path = newPath();
    std::optional<SQLite::Database> reader;
    int waited = 0;
    fileSystem.watch.waits = [&waited] { ++waited; };
    QString fault;
    for (int moment = 0; fault.isEmpty() && moment < 10; ++moment) {
        const QString place = newPath();
        reader.reset();
        waited = 0;
        at(moment, [&] {
            reader.emplace(place.toStdString(), SQLite::OPEN_READONLY);
            reader->exec("BEGIN; SELECT count(*) FROM sqlite_master");
        });
        RecordsProgram one(place);
        fault = one.save(u"one"_s);
    }
    EXPECT_TRUE(fault.contains(u"locked"_s)) << fault.toStdString();
    EXPECT_GT(waited, 5);
    EXPECT_LT(waited, 1000);
}

TEST_F(TwoPrograms, GiveUpInBoundedTimeWhenTheOtherKeepsTheFile)
{
    int waited = 0;
    fileSystem.watch.waits = [&waited] { ++waited; };
    const QString path = newPath();
    EXPECT_EQ(RecordsProgram(path).save(u"one"_s), QString());
    RecordSchema newer = quillonSchema();
    newer.steps.push_back("CREATE TABLE Extra (x)");
    for (const bool isKept : {true, false}) {
        SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
        // Older and being written, it cannot be brought up to date.
        other.exec(isKept ? "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE" : "BEGIN IMMEDIATE");
        waited = 0;
        const auto opened =
            RecordFile::open(quillonModel(), path, isKept ? quillonSchema() : newer);
        ASSERT_FALSE(opened);
        EXPECT_TRUE(isRecordFileError(opened.error(), RecordFileError::Locked));
        EXPECT_GT(waited, 5);
        EXPECT_LT(waited, 1000);
    }
}

/// Real processes, which begin at the same moment.
TEST(TwoProgramsAtOnce, AllMakeTheFileAndSave)
{
    const QTemporaryDir folder;
    for (int round = 0; round < 120; ++round) {
        const int programs = round % 3 == 0 ? 4 : 2;
        const QString path = folder.filePath(u"%1.sqlite"_s.arg(round));
        int start[2] = {};
        ASSERT_EQ(::pipe(start), 0);
        QList<pid_t> children;
        for (int number = 0; number < programs; ++number) {
            const pid_t child = ::fork();
            if (child == 0) {
                ::close(start[1]);
                char none = 0;
                // Ends when the last of the other end closes.
                const bool begins = ::read(start[0], &none, 1) == 0;
                RecordsProgram program(path);
                program.mayBeLocked = true;
                const QString fault = program.save(QString::number(number));
                if (!fault.isEmpty()) {
                    std::fprintf(stderr, "%s\n", qUtf8Printable(fault));
                }
                std::_Exit(begins && fault.isEmpty() ? 0 : 1);
            }
            children << child;
        }
        ::close(start[0]);
        ::close(start[1]);
        for (const pid_t child : children) {
            int status = -1;
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            EXPECT_EQ(status, 0) << "round " << round << " of " << programs << " programs";
        }
        EXPECT_EQ(RecordsProgram(path).names().size(), programs);
    }
}

} // namespace
} // namespace quillon::test
