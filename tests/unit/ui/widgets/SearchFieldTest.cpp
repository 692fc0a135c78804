// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SearchField.h"

#include "unit/ui/WidgetFixture.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SearchFieldTest : public WidgetFixture
{
protected:
    SearchFieldTest()
    {
        column->addWidget(field);
        field->setTitle(u"Search Notes"_s);
        show();
        field->setFocus();
        settle();
    }
    QToolButton &lens() const { return *field->findChild<QToolButton *>(u"searchTypes"_s); }
    QToolButton &cross() const { return *field->findChild<QToolButton *>(u"clearSearch"_s); }
    QMenu &menu() const { return *field->findChild<QMenu *>(); }
    void offerTypes()
    {
        field->setTypes(
            {{u"all"_s, u"All && <b>more</b>"_s}, {u"notes"_s, u"Notes"_s}}, u"notes"_s);
    }
    static void typeLetter(QChar letter)
    {
        QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QApplication::sendEvent(QApplication::focusWidget(), &down);
    }

    SearchField *field = new SearchField(theme);
    SignalLog searched{field, &SearchField::searched};
    SignalLog chosen{field, &SearchField::typeChosen};
    SignalLog left{field, &SearchField::left};
};

TEST_F(SearchFieldTest, IsCalledByItsTitle)
{
    EXPECT_EQ(field->title(), u"Search Notes"_s);
    EXPECT_EQ(field->accessibleName(), u"Search Notes"_s);
}

TEST_F(SearchFieldTest, EachLetterIsASearch)
{
    typeLetter(u'a');
    typeLetter(u'b');
    ASSERT_EQ(searched.size(), 2);
    EXPECT_EQ(searched[1].first(), u"ab"_s);
    field->setText(u"by the program"_s);
    EXPECT_EQ(searched.size(), 2);
}

TEST_F(SearchFieldTest, TheCrossIsThereAsLongAsThereIsAText)
{
    EXPECT_FALSE(cross().isVisible());
    typeLetter(u'a');
    EXPECT_TRUE(cross().isVisible());
    click(cross());
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(searched[searched.size() - 1].first(), QString());
    EXPECT_FALSE(cross().isVisible());
    EXPECT_TRUE(field->hasFocus());
    field->undo();
    EXPECT_EQ(field->text(), u"a"_s);
}

TEST_F(SearchFieldTest, EscapeClearsAndThenLeaves)
{
    typeLetter(u'a');
    press(Qt::Key_Escape);
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(searched.size(), 2);
    EXPECT_EQ(left.size(), 0);
    press(Qt::Key_Escape);
    EXPECT_EQ(left.size(), 1);
    EXPECT_EQ(searched.size(), 2);
}

TEST_F(SearchFieldTest, DownLeavesWithTheText)
{
    typeLetter(u'a');
    press(Qt::Key_Down);
    EXPECT_EQ(left.size(), 1);
    EXPECT_EQ(field->text(), u"a"_s);
}

TEST_F(SearchFieldTest, WithoutTypesThereIsNoMenu)
{
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_FALSE(menu().isVisible());
    EXPECT_EQ(left.size(), 0);
    EXPECT_FALSE(lens().isEnabled());
}

TEST_F(SearchFieldTest, TheMenuHasTheTypesAndMarksTheChosenOne)
{
    offerTypes();
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(menu().isVisible());
    ASSERT_EQ(menu().actions().size(), 2);
    EXPECT_EQ(menu().activeAction(), menu().actions()[1]);
    EXPECT_TRUE(menu().actions()[1]->isChecked());
    EXPECT_FALSE(menu().actions()[0]->isChecked());
    menu().actions()[0]->trigger();
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0].first(), u"all"_s);
    EXPECT_TRUE(menu().actions()[1]->isChecked()) << "whoever chose decides";
    menu().close();
}

TEST_F(SearchFieldTest, TheLensOpensTheMenu)
{
    offerTypes();
    click(lens());
    EXPECT_TRUE(menu().isVisible());
    menu().close();
}

TEST_F(SearchFieldTest, ItsButtonsAreNamedAndLieInItOnBothSides)
{
    offerTypes();
    typeLetter(u'a');
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        field->setLayoutDirection(direction);
        settle();
        EXPECT_TRUE(field->rect().contains(lens().geometry()));
        EXPECT_TRUE(field->rect().contains(cross().geometry()));
        EXPECT_EQ(lens().x() < cross().x(), direction == Qt::LeftToRight);
    }
    EXPECT_FALSE(lens().accessibleName().isEmpty());
    EXPECT_FALSE(cross().accessibleName().isEmpty());
}

} // namespace
} // namespace quillon::test
