// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordReader.h"

#include "store/model/RecordFileError.h"
#include "unit/store/RecordsFixture.h"

#include <atomic>

namespace quillon::test {

using namespace std::chrono_literals;

class RecordReaderTest : public RecordsTest
{
protected:
    void fill(int count)
    {
        const ManagedObjectContext::UndoDisabled facts(context());
        for (int number = 0; number < count; ++number) {
            rule(QString::number(number));
        }
        save();
    }
    std::unique_ptr<RecordReader> reader() const
    {
        auto opened = RecordReader::open(path);
        EXPECT_TRUE(opened);
        return std::move(opened.value());
    }
    std::optional<Error> read(const FetchRequest &request = {model::Rule, {}, {}})
    {
        return reader()->keys(*quillonModel().entity(model::Rule), request,
            context().unsavedChanges(model::Rule), {isCancelled, [this] { return time += step; }},
            [this](const QList<qint64> &keys) {
                parts << keys.size();
                all << keys;
                isCancelled = cancelAfterPart;
            });
    }

    std::atomic_bool isCancelled = false;
    bool cancelAfterPart = false;
    std::chrono::milliseconds time = 0ms;
    std::chrono::milliseconds step = 0ms; ///< how long each look at the clock takes
    QList<qsizetype> parts;
    QList<qint64> all;
};

TEST_F(RecordReaderTest, GivesAPageFirstAndThenLargerParts)
{
    fill(400);
    EXPECT_FALSE(read());
    EXPECT_EQ(parts, QList<qsizetype>({50, 100, 250}));
    EXPECT_TRUE(std::ranges::is_sorted(all));
}

TEST_F(RecordReaderTest, WhatIsFoundDoesNotWaitForARestThatTakesLong)
{
    fill(20'000);
    step = RecordReader::longestWait;
    EXPECT_FALSE(read({model::Rule, Predicate::equal(model::rule::name, u"7"_s), {}}));
    EXPECT_EQ(parts, QList<qsizetype>({1}));
    parts.clear();
    cancelAfterPart = true;
    EXPECT_FALSE(read({model::Rule, Predicate::equal(model::rule::name, u"7"_s), {}}));
    EXPECT_EQ(parts, QList<qsizetype>({1})) << "handed on in the middle, where it could be ended";
}

TEST_F(RecordReaderTest, CancelledItEndsWithoutAnError)
{
    fill(400);
    cancelAfterPart = true;
    EXPECT_FALSE(read());
    EXPECT_EQ(all.size(), 50);
    parts.clear();
    EXPECT_FALSE(read()) << "cancelled before it began";
    EXPECT_TRUE(parts.isEmpty());
}

TEST_F(RecordReaderTest, UnsavedChangesStandOverTheFile)
{
    fill(3);
    const auto rules = context().fetch({model::Rule, {}, {}}).value();
    context().deleteObject(rules[0]);
    rules[1]->setValue(model::rule::name, u"renamed"_s);
    rule(u"new"_s);
    EXPECT_FALSE(read({model::Rule, Predicate::contains(model::rule::name, u"n"_s), {}}));
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all.first(), rules[1]->key());
    const auto count =
        reader()->count(*quillonModel().entity(model::Rule), context().unsavedChanges(model::Rule));
    ASSERT_TRUE(count);
    EXPECT_EQ(count.value(), 3);
}

TEST_F(RecordReaderTest, NeitherWaitsForAWriterNorHoldsOneUp)
{
    fill(1);
    const auto held = reader();
    rule(u"new"_s);
    bool isSaved = false;
    EXPECT_FALSE(held->keys(*quillonModel().entity(model::Rule), {model::Rule, {}, {}}, {},
        {isCancelled, [] { return 0ms; }}, [&](const QList<qint64> &keys) {
            parts << keys.size();
            isSaved = !context().save();
        }));
    EXPECT_TRUE(isSaved);
    EXPECT_EQ(parts, QList<qsizetype>({1}));
    EXPECT_FALSE(read());
    EXPECT_EQ(all.size(), 2);
}

TEST_F(RecordReaderTest, AMissingFileIsAnErrorAndStaysMissing)
{
    const auto opened = RecordReader::open(path);
    ASSERT_FALSE(opened);
    EXPECT_TRUE(isRecordFileError(opened.error(), RecordFileError::CannotOpen));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(RecordReaderTest, AnUnknownAttributeIsAnError)
{
    fill(1);
    const auto error = read({model::Rule, Predicate::contains(u"colour"_s, u"red"_s), {}});
    ASSERT_TRUE(error);
    EXPECT_TRUE(isRecordFileError(*error, RecordFileError::UnknownName));
}

} // namespace quillon::test
