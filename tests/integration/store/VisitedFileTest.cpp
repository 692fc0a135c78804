// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Another process opens the file and closes it while we use it. Whoever closes a file that nobody
// else has locked takes the log away: our locks have to be there.
#include "RecordsOnDisk.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "store/RecordStore.h"
#include "store/file/RecordFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

/// Another process, which opens the file, counts its rules and closes it when it is told to. Is to
/// be made before this process opens the file: SQLite does not go through a fork.
class Visitor
{
public:
    explicit Visitor(const QString &path)
    {
        EXPECT_EQ(::pipe(m_question), 0);
        EXPECT_EQ(::pipe(m_answer), 0);
        m_process = ::fork();
        if (m_process == 0) {
            await(path);
        }
        ::close(m_question[0]);
        ::close(m_answer[1]);
    }
    ~Visitor()
    {
        ::close(m_question[1]);
        ::close(m_answer[0]);
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }
    Visitor(const Visitor &) = delete;
    Visitor &operator=(const Visitor &) = delete;

    /// How many rules the file has; below zero when it cannot be read.
    int visit()
    {
        signed char count = -2;
        const bool isAnswered =
            ::write(m_question[1], "?", 1) == 1 && ::read(m_answer[0], &count, 1) == 1;
        return isAnswered ? count : -2;
    }

private:
    [[noreturn]] void await(const QString &path)
    {
        char question = 0;
        if (::read(m_question[0], &question, 1) == 1) {
            const signed char count = rules(path);
            std::_Exit(::write(m_answer[1], &count, 1) == 1 ? 0 : 1);
        }
        std::_Exit(1);
    }
    static signed char rules(const QString &path)
    {
        try {
            SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
            return static_cast<signed char>(
                database.execAndGet("SELECT count(*) FROM Rule").getInt());
        } catch (const SQLite::Exception &) {
            return -1;
        }
    }

    pid_t m_process = 0;
    int m_question[2] = {};
    int m_answer[2] = {};
};

class VisitedFile : public ::testing::Test
{
protected:
    void saveOneMore()
    {
        store.managedObjectContext().insertNewObject(model::Rule);
        const auto error = store.managedObjectContext().save();
        EXPECT_FALSE(error.has_value()) << error->message.toStdString();
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Quillon.sqlite"_s);
    Visitor first{path};
    Visitor second{path};
    test::FakeScheduler scheduler;
    RecordStore store{scheduler, folder.path()};
};

TEST_F(VisitedFile, KeepsItsLogWhileWeHaveItOpen)
{
    saveOneMore();
    EXPECT_EQ(first.visit(), 1);
    EXPECT_TRUE(QFile::exists(path + u"-wal"_s));
    saveOneMore();
    EXPECT_EQ(second.visit(), 2);
}

TEST_F(VisitedFile, KeepsItsLogAfterItWasOpenedAgain)
{
    saveOneMore();
    store.refreshPersistentContainer();
    EXPECT_EQ(first.visit(), 1);
    EXPECT_TRUE(QFile::exists(path + u"-wal"_s));
    saveOneMore();
    EXPECT_EQ(second.visit(), 2);
}

TEST_F(VisitedFile, KeepsItsLogWhenASecondOneOfOursIsRefused)
{
    saveOneMore();
    RecordSchema later = quillonSchema();
    later.steps << "UPDATE NoSuchTable SET x = 1";
    EXPECT_FALSE(RecordFile::open(quillonModel(), path, later));
    EXPECT_EQ(first.visit(), 1);
    saveOneMore();
    EXPECT_EQ(second.visit(), 2);
}

} // namespace
} // namespace quillon
