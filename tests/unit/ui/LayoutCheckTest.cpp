// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/LayoutCheck.h"

#include "ui/widgets/Badge.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/RowButton.h"
#include "ui/widgets/TokenField.h"
#include "unit/ui/WidgetFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const QString longText =
    u"A text that is much longer than what there is for it in a narrow place"_s;

/// The findings as a matcher for texts takes them.
std::vector<std::string> findings(const QWidget &window)
{
    std::vector<std::string> texts;
    for (const QString &finding : layoutFindings(window)) {
        texts.push_back(finding.toStdString());
    }
    return texts;
}

class LayoutCheckTest : public WidgetFixture
{
protected:
    template <typename T>
    T *add(T *widget)
    {
        column->addWidget(widget);
        return widget;
    }
    void expectFinding(const std::string &text)
    {
        show();
        EXPECT_THAT(findings(window), Contains(HasSubstr(text)));
    }
    void expectNone()
    {
        show();
        EXPECT_THAT(findings(window), IsEmpty());
    }
};

TEST_F(LayoutCheckTest, WhatHasRoomIsFine)
{
    add(plainLabel(u"A label"_s));
    add(new QPushButton(u"Press"_s));
    add(new QCheckBox(u"Check"_s));
    add(new QLineEdit(u"Text"_s));
    add(new QComboBox)->addItem(u"Item"_s);
    add(new Badge(theme, u"Changed"_s));
    add(new RowButton(theme, u"Network"_s))->setValue(u"Home"_s);
    auto *wrapped = add(plainLabel(longText));
    wrapped->setWordWrap(true);
    expectNone();
}

TEST_F(LayoutCheckTest, FindsALabelThatIsClipped)
{
    add(plainLabel(longText))->setFixedWidth(60);
    expectFinding("needs");
}

TEST_F(LayoutCheckTest, FindsALabelThatIsTooLow)
{
    add(plainLabel(u"A label"_s))->setFixedHeight(6);
    expectFinding("A label” needs");
}

TEST_F(LayoutCheckTest, FindsWrappedTextWithoutRoomForItsLastLine)
{
    auto *label = add(plainLabel(longText));
    label->setWordWrap(true);
    label->setFixedSize(150, 30);
    expectFinding("needs");
}

TEST_F(LayoutCheckTest, FindsAWordThatIsTooLongForItsLine)
{
    auto *label = add(plainLabel(u"Randomizationsschwierigkeiten"_s));
    label->setWordWrap(true);
    label->setFixedSize(80, 200);
    expectFinding("Randomizationsschwierigkeiten” needs");
}

TEST_F(LayoutCheckTest, FindsButtonsThatAreTooNarrow)
{
    for (QAbstractButton *button : QList<QAbstractButton *>{new QPushButton, new QCheckBox}) {
        button->setText(longText);
        add(button)->setFixedWidth(80);
        show();
        EXPECT_THAT(findings(window), Contains(HasSubstr("needs")))
            << button->metaObject()->className();
        delete button;
    }
}

TEST_F(LayoutCheckTest, FindsABadgeThatIsTooNarrow)
{
    add(new Badge(theme, longText))->setFixedWidth(50);
    expectFinding("needs");
}

TEST_F(LayoutCheckTest, FindsAnEntryThatShowsHalfOfItsTextAndNothingMore)
{
    auto *entry = add(new QLineEdit(longText));
    entry->setFixedWidth(80);
    expectFinding("is cut and its tool tip is “”");
    entry->setToolTip(longText);
    EXPECT_THAT(findings(window), IsEmpty());
    entry->clear();
    entry->setToolTip({});
    entry->setPlaceholderText(longText);
    EXPECT_THAT(findings(window), Contains(HasSubstr("is cut")));
}

TEST_F(LayoutCheckTest, FindsASelectorThatIsTooNarrow)
{
    auto *selector = add(new QComboBox);
    selector->addItem(longText);
    selector->setFixedWidth(120);
    expectFinding("is cut");
}

TEST_F(LayoutCheckTest, FindsAnElidedTextThatNothingTellsInFull)
{
    auto *label = add(plainLabel());
    showLine(*label, longText, 100);
    expectFinding("is cut and its tool tip is “”");
    label->setToolTip(plainToolTip(longText));
    EXPECT_THAT(findings(window), IsEmpty());
}

TEST_F(LayoutCheckTest, AnEllipsisThatIsMeantIsNoCut)
{
    auto *label = add(plainLabel(u"Changing…"_s));
    label->setAccessibleName(u"Something else"_s);
    expectNone();
}

TEST_F(LayoutCheckTest, AValueOfARowOrATokenMayBeCutAsItsToolTipHasIt)
{
    auto *row = add(new RowButton(theme, u"Network"_s));
    row->setValue(longText);
    auto *tokens = add(new TokenField);
    tokens->setEntries({{longText, longText}});
    expectNone();
    row->setToolTip({});
    tokens->token(0)->setToolTip({});
    EXPECT_THAT(
        findings(window), AllOf(Contains(HasSubstr("RowButton")), Contains(HasSubstr("Token"))));
}

TEST_F(LayoutCheckTest, FindsRowsOfAListThatAreCutAndHaveNoToolTip)
{
    QStringListModel texts({u"Short"_s, longText});
    auto *list = add(new QListView);
    list->setModel(&texts);
    list->setFixedWidth(200);
    expectFinding("is cut and its tool tip is “”");
    list->setModel(nullptr);
}

TEST_F(LayoutCheckTest, FindsWhatLiesOverItsNeighbor)
{
    auto *first = add(new QPushButton(u"First"_s));
    auto *second = add(new QPushButton(u"Second"_s));
    show();
    EXPECT_THAT(findings(window), IsEmpty());
    second->move(second->x(), first->y() + 5);
    EXPECT_THAT(findings(window), Contains(HasSubstr("overlap")));
}

TEST_F(LayoutCheckTest, WhatIsInAnEntryMustLeaveItsTextFree)
{
    auto *entry = add(new QLineEdit(u"Text"_s));
    auto *button = add(new QPushButton(u"x"_s));
    show();
    button->setGeometry(entry->x() + entry->width() - 40, entry->y(), 40, entry->height());
    button->setMinimumSize(1, 1);
    EXPECT_THAT(findings(window), Contains(HasSubstr("overlap")));
    entry->setTextMargins(0, 0, 40, 0);
    EXPECT_THAT(findings(window), Not(Contains(HasSubstr("overlap"))));
}

TEST_F(LayoutCheckTest, FindsWhatSticksOutOfItsWindow)
{
    auto *button = add(new QPushButton(u"Button"_s));
    show();
    button->move(window.width() - 10, button->y());
    EXPECT_THAT(findings(window), Contains(HasSubstr("sticks out of")));
}

TEST_F(LayoutCheckTest, FindsWhatIsSmallerThanItsContentNeeds)
{
    auto *card = add(new QFrame);
    auto *row = new QHBoxLayout(card);
    row->addWidget(new RowButton(theme, u"Network"_s));
    card->setFixedWidth(60);
    expectFinding("at least");
}

TEST_F(LayoutCheckTest, WhatIsHiddenIsNoMatter)
{
    auto *label = add(plainLabel(longText));
    label->setFixedWidth(60);
    label->hide();
    expectNone();
}

} // namespace
} // namespace quillon::test
