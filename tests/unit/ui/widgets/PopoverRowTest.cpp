// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopoverRow.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/PopoverDetails.h"

#include <QLabel>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Tells what its row was told to say.
class Saying : public PopoverDetails
{
public:
    explicit Saying(const QString &said)
        : m_said(said)
    {
        label->setWordWrap(true);
        auto *column = new QVBoxLayout(this);
        column->addWidget(label);
    }
    void refresh() override { label->setText(m_said); }

    QLabel *label = new QLabel;

private:
    const QString &m_said;
};

class Row : public PopoverRow
{
public:
    explicit Row(const Theme &theme)
        : PopoverRow(theme, u"Network"_s)
    {
    }

    QString said = u"Home"_s;
    int made = 0;

protected:
    PopoverDetails *makeDetails() override
    {
        ++made;
        return new Saying(said);
    }
};

class PopoverRowTest : public testing::Test
{
protected:
    PopoverRowTest()
    {
        auto *column = new QVBoxLayout(&window);
        column->addWidget(&row);
        window.show();
    }

    Theme theme;
    QWidget window;
    Row row{theme};
};

TEST_F(PopoverRowTest, ItsPopoverIsMadeOnceAndNotBeforeItIsOpened)
{
    row.setPopoverShown(false);
    EXPECT_EQ(row.made, 0);
    EXPECT_EQ(row.findChild<Popover *>(), nullptr);
    row.setPopoverShown(true);
    row.setPopoverShown(false);
    row.setPopoverShown(true);
    EXPECT_EQ(row.made, 1);
    EXPECT_TRUE(row.popover().isOpen());
}

TEST_F(PopoverRowTest, EachOpeningFindsItsSizeWithWhatIsShown)
{
    row.setPopoverShown(true);
    const int low = row.popover().height();
    row.setPopoverShown(false);
    row.said = u"Home and "_s.repeated(40);
    row.setPopoverShown(true);
    EXPECT_EQ(row.findChild<QLabel *>()->text(), row.said);
    EXPECT_GT(row.popover().height(), low);
}

TEST_F(PopoverRowTest, TellsOfEachClosing)
{
    int closed = 0;
    QObject::connect(&row, &PopoverRow::popoverClosed, [&closed] { ++closed; });
    row.setPopoverShown(true);
    row.setPopoverShown(false);
    row.setPopoverShown(false);
    EXPECT_EQ(closed, 1);
    row.setPopoverShown(true);
    row.popover().close();
    EXPECT_EQ(closed, 2);
}

} // namespace
} // namespace quillon::test
