// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryExport.h"

#include "history/HistorySearch.h"
#include "store/RecordListing.h"
#include "unit/history/HistoryFixture.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// While it lives, no file of this process grows beyond so many bytes.
class SmallFiles
{
public:
    explicit SmallFiles(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    SmallFiles(const SmallFiles &) = delete;
    SmallFiles &operator=(const SmallFiles &) = delete;

private:
    rlimit m_before{};
};

} // namespace

class HistoryExportTest : public HistoryFixture
{
protected:
    HistoryExportTest()
    {
        QObject::connect(&exporting, &HistoryExport::written, &exporting,
            [this](qsizetype count) { written = count; });
        QObject::connect(
            &exporting, &HistoryExport::cancelled, &exporting, [this] { ++cancelled; });
        QObject::connect(&exporting, &HistoryExport::failed, &exporting,
            [this](const QString &reason) { failure = reason; });
        QObject::connect(&exporting, &HistoryExport::progressed, &exporting,
            [this](qsizetype count, qsizetype of) { progress << std::pair(count, of); });
    }
    void fill(int count)
    {
        const ManagedObjectContext::UndoDisabled facts(context());
        for (int number = 0; number < count; ++number) {
            Connection record(context().insertNewObject(model::Connection));
            record.setDate(QDateTime::fromSecsSinceEpoch(number, Qt::UTC));
            record.setDevice(QString::number(number));
        }
        ASSERT_FALSE(context().save());
        scheduler.runPending();
    }
    RecordSnapshot shown()
    {
        listing.show(historyRequest({}, HistoryColumn::Date, false));
        scheduler.runPending();
        return listing.snapshot();
    }
    static QByteArray content(const QString &path)
    {
        QFile opened(path);
        return opened.open(QFile::ReadOnly) ? opened.readAll() : QByteArray("(none)");
    }

    RecordListing listing{*records, scheduler};
    HistoryExport exporting{scheduler};
    const QString path = folder.filePath(u"history.csv"_s);
    qsizetype written = -1;
    int cancelled = 0;
    QString failure;
    QList<std::pair<qsizetype, qsizetype>> progress;
};

TEST_F(HistoryExportTest, WritesWhatIsShownInItsOrder)
{
    fill(3);
    exporting.write(shown(), path);
    EXPECT_TRUE(exporting.isRunning());
    EXPECT_FALSE(QFile::exists(path)) << "in the background";
    scheduler.runPending();
    EXPECT_FALSE(exporting.isRunning());
    EXPECT_EQ(written, 3);
    const QByteArrayList lines = content(path).split('\n');
    ASSERT_EQ(lines.size(), 5);
    EXPECT_TRUE(lines[0].startsWith("Date,Interface"));
    EXPECT_TRUE(lines[1].endsWith(",,2,,,,\r"));
    EXPECT_TRUE(lines[3].endsWith(",,0,,,,\r"));
    EXPECT_EQ(lines[4], "");
}

TEST_F(HistoryExportTest, TakesThePlaceOfAnOlderFile)
{
    QFile old(path);
    ASSERT_TRUE(old.open(QFile::WriteOnly));
    old.write(QByteArray(100'000, 'x'));
    old.close();
    fill(1);
    exporting.write(shown(), path);
    scheduler.runPending();
    EXPECT_LT(content(path).size(), 200);
}

TEST_F(HistoryExportTest, SaysHowFarItIs)
{
    fill(12'000);
    exporting.write(shown(), path);
    scheduler.runPending();
    EXPECT_EQ(written, 12'000);
    ASSERT_EQ(progress.size(), 2);
    EXPECT_EQ(progress.first(), std::pair(qsizetype{5000}, qsizetype{12'000}));
}

TEST_F(HistoryExportTest, CancelledItLeavesNoFile)
{
    fill(3);
    exporting.write(shown(), path);
    exporting.cancel();
    scheduler.runPending();
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(written, -1);
    EXPECT_FALSE(QFile::exists(path));
    exporting.write(shown(), path);
    scheduler.runPending();
    EXPECT_EQ(written, 3) << "and can be asked for anew";
}

TEST_F(HistoryExportTest, OneAtATime)
{
    fill(1);
    const auto picture = shown();
    exporting.write(picture, path);
    exporting.write(picture, path + u"2"_s);
    scheduler.runPending();
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_FALSE(QFile::exists(path + u"2"_s));
}

TEST_F(HistoryExportTest, AFolderThatDoesNotExistIsAFailure)
{
    fill(1);
    exporting.write(shown(), folder.filePath(u"missing/history.csv"_s));
    scheduler.runPending();
    EXPECT_FALSE(failure.isEmpty());
    EXPECT_EQ(written, -1);
}

TEST_F(HistoryExportTest, WhatIsNotWrittenWholeIsAFailureAndNoFile)
{
    fill(5000);
    const auto picture = shown();
    {
        const SmallFiles limit(20'000);
        exporting.write(picture, path);
        scheduler.runPending();
    }
    EXPECT_FALSE(failure.isEmpty());
    EXPECT_EQ(written, -1);
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(HistoryExportTest, APipeOrAFolderIsLeftAlone)
{
    fill(1);
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &place : {pipe, folder.path()}) {
        failure.clear();
        exporting.write(shown(), place);
        scheduler.runPending();
        EXPECT_FALSE(failure.isEmpty());
        EXPECT_TRUE(QFileInfo::exists(place) && !QFileInfo(place).isFile());
    }
}

TEST_F(HistoryExportTest, RecordsThatCannotBeReadAreAFailure)
{
    fill(1);
    const auto picture = shown();
    QFile::rename(file(), file() + u".away"_s);
    exporting.write(picture, path);
    scheduler.runPending();
    EXPECT_FALSE(failure.isEmpty());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(HistoryExportTest, ItMayGoInTheMiddle)
{
    fill(3);
    {
        HistoryExport brief(scheduler);
        brief.write(shown(), path);
    }
    scheduler.runPending();
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace quillon::test
