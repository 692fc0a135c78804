// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/TextHistory.h"

#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class TextHistoryTest : public ::testing::Test
{
protected:
    TextHistoryTest() { history.begin({u"00"_s, 2}); }
    void type(const QString &characters)
    {
        for (const QChar character : characters) {
            text.insert(cursor, character);
            history.note({text, ++cursor});
        }
    }
    void erase(int count)
    {
        for (; count > 0; --count) {
            text.remove(--cursor, 1);
            history.note({text, cursor});
        }
    }

    TextHistory history;
    QString text = u"00"_s;
    int cursor = 2;
};

TEST_F(TextHistoryTest, HasNothingToUndoAtFirst)
{
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undo().text, u"00"_s);
    EXPECT_EQ(history.redo().text, u"00"_s);
}

TEST_F(TextHistoryTest, TakesTypingOnAsOneStepAndErasingOnAsAnother)
{
    type(u"abc"_s);
    erase(2);
    EXPECT_EQ(history.undo(), (TextHistory::Moment{u"00abc"_s, 5}));
    EXPECT_EQ(history.undo(), (TextHistory::Moment{u"00"_s, 2}));
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.redo().text, u"00abc"_s);
    EXPECT_EQ(history.redo().text, u"00a"_s);
    EXPECT_FALSE(history.canRedo());
}

TEST_F(TextHistoryTest, KeepsWhatTheProgramMadeOfAnEditInItsStep)
{
    type(u"ab"_s);
    history.note({u"00ABC"_s, 5});
    EXPECT_EQ(history.undo().text, u"00"_s);
    EXPECT_EQ(history.redo().text, u"00ABC"_s);
}

TEST_F(TextHistoryTest, TypingOverASelectionIsOneStepWithWhatIsTypedOn)
{
    history.begin({u"00:11:22"_s, 8});
    history.note({u"00a22"_s, 3});
    history.note({u"00ab22"_s, 4});
    EXPECT_EQ(history.undo().text, u"00:11:22"_s);
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.redo().text, u"00ab22"_s);
}

TEST_F(TextHistoryTest, BeginsAStepWhereTheCursorWasMoved)
{
    type(u"ab"_s);
    cursor = 1;
    history.moveCursor({text, cursor});
    type(u"c"_s);
    EXPECT_EQ(text, u"0c0ab"_s);
    EXPECT_EQ(history.undo(), (TextHistory::Moment{u"00ab"_s, 1}));
    EXPECT_EQ(history.undo().text, u"00"_s);
}

TEST_F(TextHistoryTest, ForgetsWhatWasUndoneWhenSomethingElseIsTyped)
{
    type(u"ab"_s);
    history.undo();
    history.note({u"00c"_s, 3});
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undo().text, u"00"_s);
}

TEST_F(TextHistoryTest, BeginsAnew)
{
    type(u"ab"_s);
    history.begin({u"11"_s, 0});
    EXPECT_FALSE(history.canUndo());
    history.note({u"11"_s, 1});
    EXPECT_FALSE(history.canUndo()) << "the same text is no step";
}

} // namespace
} // namespace quillon::test
