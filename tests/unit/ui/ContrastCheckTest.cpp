// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/ContrastCheck.h"

#include "ui/widgets/Badge.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/RowButton.h"
#include "unit/ui/WidgetFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QStringListModel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

/// 4.48 : 1 on white, and 3.03 : 1.
const QString tooPale = u"color: #777777; background: #ffffff"_s;
const QString farTooPale = u"color: #bbbbbb; background: #ffffff"_s;

class ContrastCheckTest : public WidgetFixture
{
protected:
    template <typename T>
    T *add(T *widget, const QString &style = {})
    {
        widget->setStyleSheet(style);
        column->addWidget(widget);
        return widget;
    }
    QStringList found()
    {
        show();
        return contrastFindings(window);
    }
};

TEST_F(ContrastCheckTest, WhatTheThemeDrawsIsFine)
{
    add(plainLabel(u"A label"_s));
    add(new QPushButton(u"Press"_s));
    auto *off = add(new QPushButton(u"Off"_s));
    off->setEnabled(false);
    add(new QLineEdit(u"Text"_s))->setProperty("look", u"field"_s);
    add(new QComboBox)->addItem(u"Item"_s);
    add(new Badge(theme, u"Changed"_s));
    add(new RowButton(theme, u"Network"_s))->setValue(u"Home"_s);
    EXPECT_THAT(found(), IsEmpty());
    theme.setScheme(ColorScheme::Dark);
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(ContrastCheckTest, FindsEveryKindOfTextThatIsTooPale)
{
    QStringListModel texts({u"A row"_s});
    add(plainLabel(u"A label"_s), tooPale);
    add(new QPushButton(u"A button"_s), tooPale);
    add(new QLineEdit(u"An entry"_s), tooPale);
    add(new QComboBox, tooPale)->addItem(u"An item"_s);
    auto *list = add(new QListView, tooPale + u"; selection-color: #777777"_s);
    list->setModel(&texts);
    EXPECT_THAT(found(), SizeIs(5));
    list->setModel(nullptr);
}

TEST_F(ContrastCheckTest, FindsAMenuEntryThatIsTooPale)
{
    QMenu menu;
    menu.setStyleSheet(
        u"QMenu { background: #ffffff } QMenu::item { color: #777777; padding: 6px }"_s);
    menu.addAction(u"An entry"_s);
    menu.popup({0, 0});
    settle();
    EXPECT_THAT(contrastFindings(menu), SizeIs(1));
}

TEST_F(ContrastCheckTest, SaysWhichColorsTheyAre)
{
    add(plainLabel(u"A label"_s), tooPale);
    const QStringList findings = found();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_TRUE(findings.first().contains(u"“A label”: #777777 on #ffffff is 4.48 : 1"_s))
        << findings.first().toStdString();
}

TEST_F(ContrastCheckTest, WhatIsDisabledMayBePalerButNotAtWill)
{
    auto *label = add(plainLabel(u"A label"_s), tooPale);
    label->setEnabled(false);
    EXPECT_THAT(found(), IsEmpty());
    label->setStyleSheet(farTooPale);
    EXPECT_THAT(found(), SizeIs(1));
}

TEST_F(ContrastCheckTest, FindsATextThatIsNotDrawnAtAll)
{
    add(plainLabel(u"A label"_s), u"color: #ffffff; background: #ffffff"_s);
    EXPECT_THAT(found(), SizeIs(1));
}

TEST_F(ContrastCheckTest, AnEdgeIsNoInk)
{
    add(new QPushButton(u"A button"_s),
        u"QPushButton { color: #bbbbbb; background: #ffffff; border: 1px solid #000000; padding: 8px }"_s);
    EXPECT_THAT(found(), SizeIs(1));
}

TEST_F(ContrastCheckTest, WhatIsCoveredIsNotRead)
{
    auto *label = add(plainLabel(u"A label"_s), tooPale);
    auto *over = new QPushButton(&window);
    show();
    over->setGeometry(label->geometry());
    over->show();
    EXPECT_THAT(found(), IsEmpty());
}

} // namespace
} // namespace quillon::test
