// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/TokenField.h"

#include "ui/widgets/Token.h"
#include "unit/ui/WidgetFixture.h"

#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class TokenFieldTest : public WidgetFixture
{
protected:
    TokenFieldTest()
    {
        column->addWidget(before);
        column->addWidget(field);
        column->addWidget(after);
        field->setEntries(entries);
        show();
    }

    QList<Token *> findTokens() const { return window.findChildren<Token *>(); }
    void focusToken(int index) const { field->token(index)->setFocus(); }
    int focused() const
    {
        for (int index = 0; index < field->entries().size(); ++index) {
            if (field->token(index)->hasFocus()) {
                return index;
            }
        }
        return -1;
    }

    /// Drags a token, and does `meanwhile` when it is on its way.
    void drag(QWidget &token, const std::function<void()> &meanwhile)
    {
        QObject::connect(field, &TokenField::dragBegan, &window, meanwhile);
        sendMouse(token, QEvent::MouseButtonPress, QPoint(5, 5));
        sendMouse(token, QEvent::MouseMove, QPoint(60, 30));
        settle();
    }

    const QList<TokenField::Entry> entries = {{u"Home"_s, u"02:00:00:00:00:01"_s},
        {u"Office"_s, u"02:00:00:00:00:02"_s}, {u"Guest"_s, u"02:00:00:00:00:03"_s}};
    QPushButton *before = new QPushButton(u"Before"_s);
    TokenField *field = new TokenField;
    QPushButton *after = new QPushButton(u"After"_s);
};

TEST_F(TokenFieldTest, IsAListOfButtons)
{
    EXPECT_EQ(accessible(*field).role(), QAccessible::List);
    EXPECT_EQ(accessible(*field->token(1)).role(), QAccessible::Button);
    EXPECT_EQ(accessible(*field->token(1)).text(QAccessible::Name), u"Office"_s);
    EXPECT_EQ(field->token(3), nullptr);
}

TEST_F(TokenFieldTest, IsOneStopForTab)
{
    before->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), 0);
    press(Qt::Key_Tab);
    EXPECT_TRUE(after->hasFocus());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), 0);
}

TEST_F(TokenFieldTest, ArrowsMoveAndTabComesBackToWhereItWas)
{
    focusToken(0);
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), 0);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), 2);
    press(Qt::Key_Home);
    EXPECT_EQ(focused(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(focused(), 2);
    press(Qt::Key_Left);
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), 1);
}

TEST_F(TokenFieldTest, ArrowsGoWhereTheyPointInAMirroredWindow)
{
    window.setLayoutDirection(Qt::RightToLeft);
    settle();
    EXPECT_GT(field->token(0)->x(), field->token(1)->x());
    focusToken(0);
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), 1);
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), 0);
}

TEST_F(TokenFieldTest, AClickReturnAndSpaceAct)
{
    const SignalLog acts(field, &TokenField::activated);
    focusToken(1);
    click(*field->token(1));
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    press(Qt::Key_Left);
    press(Qt::Key_Enter);
    ASSERT_EQ(acts.size(), 4);
    EXPECT_EQ(acts[0], QVariantList{1});
    EXPECT_EQ(acts[1], QVariantList{1});
    EXPECT_EQ(acts[2], QVariantList{1});
    EXPECT_EQ(acts[3], QVariantList{0});
}

TEST_F(TokenFieldTest, F2AndTheContextMenuOpen)
{
    const SignalLog acts(field, &TokenField::activated);
    const SignalLog opens(field, &TokenField::opened);
    focusToken(2);
    press(Qt::Key_F2);
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(field->token(1), &menu);
    ASSERT_EQ(opens.size(), 2);
    EXPECT_EQ(opens[0], QVariantList{2});
    EXPECT_EQ(opens[1], QVariantList{1});
    EXPECT_EQ(acts.size(), 0);
}

TEST_F(TokenFieldTest, GoesOnInTheNextLine)
{
    EXPECT_EQ(field->token(0)->y(), field->token(2)->y());
    field->setFixedWidth(field->token(0)->width() + field->token(1)->width());
    settle();
    EXPECT_GT(field->token(1)->y(), field->token(0)->y());
    EXPECT_GE(field->height(), field->token(2)->geometry().bottom());
}

TEST_F(TokenFieldTest, ChangedEntriesKeepTheKeyboard)
{
    focusToken(1);
    auto changed = entries;
    changed.prepend({u"New"_s, u"02:00:00:00:00:09"_s});
    field->setEntries(changed);
    settle();
    EXPECT_EQ(focused(), 2);
    field->setEntries({changed.first()});
    settle();
    EXPECT_EQ(focused(), 0);
}

TEST_F(TokenFieldTest, ATokenMayGoInTheMiddleOfItsClick)
{
    QObject::connect(field, &TokenField::activated, field, [this] { field->setEntries({}); });
    click(*field->token(1));
    settle();
    EXPECT_EQ(field->token(0), nullptr);
}

TEST_F(TokenFieldTest, SaysThatThereAreNone)
{
    field->setEmptyText(u"Add the current address with the heart."_s);
    auto *empty = field->findChild<QLabel *>();
    EXPECT_FALSE(empty->isVisible());
    field->setEntries({});
    settle();
    EXPECT_TRUE(empty->isVisible());
    EXPECT_GE(field->height(), empty->sizeHint().height());
    field->setEntries(entries);
    settle();
    EXPECT_FALSE(empty->isVisible());
    EXPECT_TRUE(field->token(0)->isVisible());
}

TEST_F(TokenFieldTest, AnAddressReadsTheSameInAMirroredWindow)
{
    const QString address = u"00:16:CB:7A:10:02"_s;
    field->setEntries({{address, address}});
    settle();
    const QImage usual = field->token(0)->grab().toImage();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    settle();
    EXPECT_EQ(field->token(0)->grab().toImage(), usual);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(TokenFieldTest, ALongNameIsCutAndSaidInFull)
{
    const QString name(100, u'n');
    field->setEntries({{name, u"02:00:00:00:00:01"_s}});
    settle();
    EXPECT_LE(field->token(0)->width(), Token::widest + 26);
    EXPECT_EQ(accessible(*field->token(0)).text(QAccessible::Name), name);
    EXPECT_TRUE(field->token(0)->toolTip().contains(u"02:00:00:00:00:01"_s));
}

TEST_F(TokenFieldTest, TokensSayWhyAClickDoesNothing)
{
    const QString why = u"Install the helper"_s;
    field->setWhyNot(why);
    QList<TokenField::Entry> more = entries;
    more.append({u"Later"_s, u"02:00:00:00:00:09"_s});
    field->setEntries(more);
    for (int index = 0; index < more.size(); ++index) {
        EXPECT_TRUE(field->token(index)->toolTip().contains(why)) << index;
        EXPECT_TRUE(field->token(index)->toolTip().contains(more[index].text)) << index;
        EXPECT_EQ(field->token(index)->accessibleDescription(), why);
    }
    field->setWhyNot(QString());
    EXPECT_FALSE(field->token(0)->toolTip().contains(why));
    EXPECT_EQ(field->token(0)->accessibleDescription(), QString());
}

TEST_F(TokenFieldTest, ATokenThatIsRenamedStaysTheSame)
{
    QWidget *const office = field->token(1);
    focusToken(1);
    field->setEntries({{u"Bakery"_s, u"02:00:00:00:00:00"_s}, entries[0],
        {u"Work"_s, entries[1].text}, entries[2]});
    settle();
    EXPECT_EQ(field->token(2), office);
    EXPECT_EQ(focused(), 2);
    EXPECT_EQ(accessible(*office).text(QAccessible::Name), u"Work"_s);
    EXPECT_TRUE(office->toolTip().contains(u"Work"_s));
    field->setEntries({entries[0], entries[2]});
    EXPECT_EQ(focused(), 1) << "the next one has the keyboard";
}

TEST_F(TokenFieldTest, WhatIsSaidOfAnEmptyOneTakesTheWholeLine)
{
    column->addStretch();
    window.resize(320, 400);
    field->setEntries({});
    field->setEmptyText(u"Join a network and press its heart."_s);
    settle();
    const auto *sentence = field->findChild<QLabel *>();
    EXPECT_TRUE(sentence->isVisible());
    EXPECT_EQ(sentence->width(), field->width());
    EXPECT_GE(field->height(), sentence->heightForWidth(sentence->width()));
    field->setEntries(entries);
    EXPECT_FALSE(sentence->isVisible());
}

TEST_F(TokenFieldTest, ATokenWithoutANameIsCalledByWhatItStandsFor)
{
    field->setEntries({{QString(), u"02:00:00:00:00:01"_s}});
    EXPECT_EQ(accessible(*field->token(0)).text(QAccessible::Name), u"02:00:00:00:00:01"_s);
}

TEST_F(TokenFieldTest, SaysThatADragBeganAndThatItEnded)
{
    const SignalLog begins(field, &TokenField::dragBegan);
    const SignalLog ends(field, &TokenField::dragEnded);
    drag(*field->token(0), [&] {
        EXPECT_EQ(begins.size(), 1);
        EXPECT_EQ(ends.size(), 0);
    });
    EXPECT_EQ(ends.size(), 1);
}

TEST_F(TokenFieldTest, ATokenWhoseEntryGoesWhileItIsDraggedStaysUntilTheEnd)
{
    const SignalLog ends(field, &TokenField::dragEnded);
    const QPointer<QWidget> home = field->token(0);
    drag(*home, [&] {
        field->setEntries({entries[1]});
        settle();
        ASSERT_NE(home, nullptr);
        EXPECT_FALSE(home->isVisible());
        EXPECT_EQ(ends.size(), 0);
    });
    EXPECT_EQ(home, nullptr);
    EXPECT_EQ(ends.size(), 1);
    EXPECT_EQ(field->entries().size(), 1);
}

TEST_F(TokenFieldTest, AnEntryMayComeBackWhileItsTokenIsDragged)
{
    QWidget *const dragged = field->token(0);
    drag(*dragged, [&] {
        field->setEntries({entries[1]});
        field->setEntries(entries);
    });
    EXPECT_NE(field->token(0), dragged);
    EXPECT_TRUE(field->token(0)->isVisible());
    EXPECT_EQ(findTokens().size(), 3);
}

TEST_F(TokenFieldTest, ItMayGoItselfWhileATokenIsDragged)
{
    int ends = 0;
    QObject::connect(field, &TokenField::dragEnded, [&ends] { ++ends; });
    drag(*field->token(0), [this] {
        field->deleteLater();
        settle();
    });
    EXPECT_EQ(ends, 0) << "nobody is there to say it";
    EXPECT_TRUE(findTokens().isEmpty());
}

TEST_F(TokenFieldTest, NothingIsDoneWhileADragIsBeingDestroyed)
{
    // Whoever hears of the end may look through the window.
    int tokens = -1;
    QObject::connect(
        field, &TokenField::dragEnded, &window, [&] { tokens = int(findTokens().size()); });
    drag(*field->token(0), [this] { field->setEntries({entries[1], entries[2]}); });
    EXPECT_EQ(tokens, 3) << "what was dragged is there, and whole";
}

} // namespace
} // namespace quillon::test
