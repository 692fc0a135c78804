// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorChooser.h"

#include "base/NotificationNames.h"
#include "ui/theme/Theme.h"
#include "ui/vendors/VendorTableView.h"
#include "unit/ui/WindowFixture.h"
#include "unit/vendors/VendorFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString device = u"enp1s0"_s;

/// The chooser in a window, above another field, with five manufacturers to choose from.
class VendorChooserTest : public VendorFixture
{
protected:
    VendorChooserTest()
    {
        token = notifications.addObserver(notifications::closeVendorViewPopover,
            [this](const auto &) { field.closeVendorViewPopover(); });
        theme.apply();
        storeDevice(device, {});
        select(device);
        offer(registryOf({{"00000A", "Appian"}, {"00000B", "Apricot"}, {"00000C", "apple"},
            {"00000D", "Zebra"}, {"00000E", "Mango"}}));
        choice.updateVendorField({});

        auto *column = new QVBoxLayout(&window);
        auto *chooser = new VendorChooser(field, theme);
        column->addWidget(chooser);
        column->addWidget(other);
        column->addStretch();
        window.resize(460, 600);
        window.show();
        QApplication::setActiveWindow(&window);
        text = window.findChild<QLineEdit *>(u"vendorTextfield"_s);
        toggle = window.findChild<QToolButton *>(u"vendorToggle"_s);
        text->setFocus();
    }
    ~VendorChooserTest() override { notifications.removeObserver(token); }

    void offer(const QByteArray &vendors)
    {
        makeLive(vendors);
        loadList();
    }
    // Both until a list that they open is there.
    void press(QWidget &widget, int key, const QString &typed = {})
    {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, typed);
        QCoreApplication::sendEvent(&widget, &down);
        scheduler.runPending();
    }
    void type(const QString &typed)
    {
        text->selectAll();
        for (const QChar character : typed) {
            press(*text, Qt::Key_unknown, QString(character));
        }
    }
    void click(QWidget &widget, const QPoint &place)
    {
        QMouseEvent down(QEvent::MouseButtonPress, place, widget.mapToGlobal(place), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &down);
        QMouseEvent up(QEvent::MouseButtonRelease, place, widget.mapToGlobal(place), Qt::LeftButton,
            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &up);
        scheduler.runPending();
    }
    /// Made when it is shown for the first time.
    VendorTableView *table() const { return window.findChild<VendorTableView *>(); }
    bool isListShown() const { return table() != nullptr && table()->isVisible(); }
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; table() != nullptr && row < table()->model()->rowCount(); ++row) {
            rows << table()->model()->index(row, 0).data().toString();
        }
        return rows;
    }
    QString selected() const { return table()->currentIndex().data().toString(); }
    QString saved() const
    {
        return settings.getDictionary(keys::deviceDict)
            .value(device)
            .toMap()
            .value(record::vendor)
            .toString();
    }

    NotificationCenter::Token token = 0;
    Theme theme;
    QWidget window;
    QLineEdit *other = new QLineEdit;
    QLineEdit *text = nullptr;
    QToolButton *toggle = nullptr;
};

TEST_F(VendorChooserTest, ShowsTheChoiceAndKeepsItsListToItself)
{
    EXPECT_EQ(text->text(), u"Random Address"_s);
    EXPECT_EQ(table(), nullptr);
    EXPECT_FALSE(list.isInMemory()) << "nobody has looked at the list yet";
}

TEST_F(VendorChooserTest, TheListIsInMemoryOnlyWhileItIsShown)
{
    for (int time = 0; time < 2; ++time) {
        click(*toggle, toggle->rect().center());
        EXPECT_EQ(rows().size(), 6);
        EXPECT_EQ(selected(), u"Random Address"_s);
        press(*text, Qt::Key_Escape);
        QCoreApplication::processEvents();
        EXPECT_EQ(rows(), QStringList());
        EXPECT_FALSE(list.isInMemory());
    }
}

TEST_F(VendorChooserTest, LooksDisabledWhereThereIsNoInterfaceToChooseFor)
{
    other->setFocus();
    const QImage enabled = text->grab().toImage();
    settings.set(keys::currentInterfaceDict, QVariantMap());
    choice.updateVendorField({});
    ASSERT_FALSE(text->isEnabled());
    const QString why = field.state().whyDisabled;
    EXPECT_FALSE(why.isEmpty());
    EXPECT_EQ(text->accessibleDescription(), why);
    EXPECT_EQ(toggle->accessibleDescription(), why);
    EXPECT_NE(text->grab().toImage().pixelColor(text->rect().center()),
        enabled.pixelColor(text->rect().center()));
}

TEST_F(VendorChooserTest, TypingOpensTheListOnWhatBeginsSo)
{
    type(u"app"_s);
    EXPECT_TRUE(isListShown());
    EXPECT_EQ(rows(), (QStringList{u"Appian (00000A)"_s, u"apple (00000C)"_s}));
    EXPECT_EQ(text->text(), u"app"_s);
    EXPECT_EQ(text->cursorPosition(), 3);
    EXPECT_FALSE(text->hasSelectedText());
    EXPECT_TRUE(text->hasFocus());
    EXPECT_EQ(saved(), QString()) << "typing is no choice";
}

TEST_F(VendorChooserTest, AnEmptyFieldShowsAll)
{
    type(u"zeb"_s);
    ASSERT_EQ(rows().size(), 1);
    text->selectAll();
    press(*text, Qt::Key_Backspace);
    EXPECT_EQ(rows().size(), 6);
}

TEST_F(VendorChooserTest, DownMovesIntoTheListAndChoosesItsFirstRow)
{
    type(u"app"_s);
    press(*text, Qt::Key_Down);
    EXPECT_TRUE(table()->hasFocus());
    EXPECT_EQ(selected(), u"Appian (00000A)"_s);
    EXPECT_EQ(saved(), u"Appian (00000A)"_s);
    EXPECT_EQ(text->text(), u"Appian (00000A)"_s);
}

TEST_F(VendorChooserTest, DownOpensAListThatIsClosed)
{
    press(*text, Qt::Key_Down);
    EXPECT_TRUE(isListShown());
    EXPECT_TRUE(table()->hasFocus());
    EXPECT_EQ(table()->currentIndex().row(), 0);
}

TEST_F(VendorChooserTest, DownInAnEmptyListChoosesNothing)
{
    type(u"nobody"_s);
    press(*text, Qt::Key_Down);
    EXPECT_FALSE(table()->currentIndex().isValid());
    EXPECT_EQ(saved(), QString());
}

TEST_F(VendorChooserTest, ArrowsInTheListChoose)
{
    type(u"ap"_s);
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Down);
    EXPECT_EQ(saved(), selected());
    EXPECT_EQ(table()->currentIndex().row(), 1);
    press(*table(), Qt::Key_Up);
    EXPECT_EQ(table()->currentIndex().row(), 0);
    EXPECT_EQ(saved(), u"Appian (00000A)"_s);
    EXPECT_EQ(rows().size(), 3) << "the choice keeps what was typed for";
}

TEST_F(VendorChooserTest, ReturnClosesTheListAndGivesTheKeyboardBack)
{
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Return);
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(text->hasFocus());
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Enter);
    EXPECT_FALSE(isListShown());
}

TEST_F(VendorChooserTest, OtherKeysDoNothingInTheList)
{
    press(*text, Qt::Key_Down);
    const QString before = selected();
    for (const int key : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Right,
             Qt::Key_Delete, Qt::Key_F2}) {
        press(*table(), key);
        EXPECT_EQ(selected(), before) << key;
    }
    press(*table(), Qt::Key_Z, u"z"_s);
    EXPECT_EQ(selected(), before);
    EXPECT_EQ(saved(), before);
    EXPECT_TRUE(isListShown());
}

TEST_F(VendorChooserTest, ThePointerChooses)
{
    click(*toggle, toggle->rect().center());
    const auto row = rows().indexOf(u"Zebra (00000D)"_s);
    const QModelIndex zebra = table()->model()->index(static_cast<int>(row), 0);
    click(*table()->viewport(), table()->visualRect(zebra).center());
    EXPECT_EQ(saved(), u"Zebra (00000D)"_s);
    EXPECT_EQ(text->text(), u"Zebra (00000D)"_s);
}

TEST_F(VendorChooserTest, ThePointerChoosesTheSelectedRowToo)
{
    const QString zebra = u"Zebra (00000D)"_s;
    storeDevice(device, {{record::vendor, zebra}});
    choice.setVendorSelectionForDevice(device);
    type(u"zeb"_s);
    ASSERT_EQ(selected(), zebra);
    click(*table()->viewport(), table()->visualRect(table()->currentIndex()).center());
    EXPECT_EQ(text->text(), zebra);
}

TEST_F(VendorChooserTest, WhatTheProgramSelectsIsNoChoice)
{
    storeDevice(device, {{record::vendor, u"Zebra (00000D)"_s}});
    int announced = 0;
    const auto told =
        notifications.addObserver(notifications::vendorUpdated, [&](const auto &) { ++announced; });
    choice.setVendorSelectionForDevice(device);
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(selected(), u"Zebra (00000D)"_s);
    offer(registryOf({{"00000D", "Zebra"}, {"00000A", "Appian"}}));
    EXPECT_EQ(selected(), u"Zebra (00000D)"_s);
    notifications.removeObserver(told);
    EXPECT_EQ(announced, 0);
}

TEST_F(VendorChooserTest, AListThatGetsTheKeyboardWithoutASelectionChoosesNothing)
{
    type(u"m"_s);
    table()->setFocus();
    ASSERT_TRUE(table()->hasFocus());
    EXPECT_EQ(saved(), QString());
    EXPECT_FALSE(table()->currentIndex().isValid());
    press(*table(), Qt::Key_Down);
    EXPECT_EQ(saved(), u"Mango (00000E)"_s);
}

TEST_F(VendorChooserTest, EscapeClosesTheListWhereverTheKeyboardIs)
{
    type(u"a"_s);
    press(*text, Qt::Key_Escape);
    EXPECT_FALSE(isListShown());
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Escape);
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(text->hasFocus());
}

TEST_F(VendorChooserTest, EscapeKeepsWhatWasChosen)
{
    type(u"xyz"_s);
    press(*text, Qt::Key_Escape);
    EXPECT_EQ(text->text(), u"Random Address"_s);
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(rows().size(), 6) << "what was typed narrows the list no more";
    type(u"xyz"_s);
    click(*toggle, toggle->rect().center());
    ASSERT_FALSE(isListShown());
    press(*text, Qt::Key_Escape);
    EXPECT_EQ(text->text(), u"Random Address"_s) << "also where the list was closed before";
}

TEST_F(VendorChooserTest, SaysWhyThereIsNothingToChoose)
{
    type(u"xyz"_s);
    EXPECT_EQ(table()->accessibleDescription(), u"No vendor begins with “xyz”."_s);
    EXPECT_EQ(rows(), QStringList());
    const int low = table()->height();
    type(u"a"_s);
    EXPECT_GT(table()->height(), low) << "below the sentence may stand what helps";
    EXPECT_EQ(table()->accessibleDescription(), QString());
    press(*text, Qt::Key_Escape);
    QFile::remove(files.liveDatabase());
    loadList();
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(table()->accessibleDescription(), u"The list of vendors is missing."_s);
}

TEST_F(VendorChooserTest, TurningToAnotherControlClosesTheList)
{
    type(u"a"_s);
    table()->setFocus();
    QCoreApplication::processEvents();
    EXPECT_TRUE(isListShown());
    other->setFocus();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(other->hasFocus());
}

TEST_F(VendorChooserTest, APressBesideTheListClosesIt)
{
    type(u"a"_s);
    click(window, QPoint(4, window.height() - 4));
    EXPECT_FALSE(isListShown());
}

TEST_F(VendorChooserTest, LeavingTheFieldGivesUpWhatWasTyped)
{
    type(u"zeb"_s);
    other->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(text->text(), u"Random Address"_s);
    EXPECT_EQ(saved(), QString());

    type(u"zeb"_s);
    click(*toggle, toggle->rect().center());
    ASSERT_FALSE(isListShown());
    text->setFocus();
    other->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(text->text(), u"Random Address"_s) << "also where the list was closed before";
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(rows().size(), 6);
}

TEST_F(VendorChooserTest, APressBesideTheListGivesUpWhatWasTyped)
{
    type(u"zeb"_s);
    click(window, QPoint(4, window.height() - 4));
    EXPECT_EQ(text->text(), u"Random Address"_s);
}

TEST_F(VendorChooserTest, WhoeverComesBackFromAnotherWindowGoesOnTyping)
{
    QWidget elsewhere;
    auto *line = new QLineEdit(&elsewhere);
    type(u"zeb"_s);
    elsewhere.show();
    QApplication::setActiveWindow(&elsewhere);
    line->setFocus();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isListShown());
    EXPECT_EQ(text->text(), u"zeb"_s);
    QApplication::setActiveWindow(&window);
    text->setFocus();
    text->end(false);
    press(*text, Qt::Key_unknown, u"r"_s);
    EXPECT_EQ(rows(), QStringList{u"Zebra (00000D)"_s});
}

TEST_F(VendorChooserTest, TheCursorStaysWhileTheChoiceIsShownAnew)
{
    type(u"zeb"_s);
    press(*text, Qt::Key_Left);
    choice.setVendorSelectionForDevice(device);
    choice.updateVendorField(device);
    EXPECT_EQ(text->text(), u"zeb"_s);
    EXPECT_EQ(text->cursorPosition(), 2);
    EXPECT_EQ(rows(), QStringList{u"Zebra (00000D)"_s});
}

TEST_F(VendorChooserTest, HidingTheWindowClosesTheListAndItsMemory)
{
    for (int time = 0; time < 2; ++time) {
        click(*toggle, toggle->rect().center());
        ASSERT_TRUE(list.isInMemory());
        window.hide();
        EXPECT_FALSE(list.isInMemory());
        window.show();
        EXPECT_FALSE(isListShown());
    }
}

TEST_F(VendorChooserTest, TheOpenedListHasTheChoiceInTheMiddle)
{
    offer(registryOf(400));
    storeDevice(device, {{record::vendor, u"Maker 0000C8 (0000C8)"_s}});
    choice.setVendorSelectionForDevice(device);
    for (int time = 0; time < 2; ++time) {
        click(*toggle, toggle->rect().center());
        ASSERT_TRUE(table()->currentIndex().isValid());
        const int middle = table()->visualRect(table()->currentIndex()).center().y();
        const int height = table()->viewport()->height();
        EXPECT_GT(middle, height / 3);
        EXPECT_LT(middle, height * 2 / 3);
        click(*toggle, toggle->rect().center());
    }
}

TEST_F(VendorChooserTest, TheButtonInTheFieldOpensAndClosesAndSaysWhich)
{
    EXPECT_EQ(toggle->accessibleName(), u"Show vendors"_s);
    click(*toggle, toggle->rect().center());
    EXPECT_TRUE(isListShown());
    EXPECT_EQ(toggle->accessibleName(), u"Hide vendors"_s);
    EXPECT_TRUE(text->hasFocus()) << "the button does not take the keyboard";
    click(*toggle, toggle->rect().center());
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(text->rect().contains(
        toggle->mapTo(text->window(), QPoint()) - text->mapTo(text->window(), QPoint())));
}

TEST_F(VendorChooserTest, TheListLiesOverTheWindowAndLeavesItsSizeAlone)
{
    // The style is settled once the window has been laid out.
    QCoreApplication::processEvents();
    const QSize size = window.size();
    const QSize wanted = window.sizeHint();
    press(*text, Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), size);
    EXPECT_EQ(window.sizeHint(), wanted);
    EXPECT_TRUE(window.rect().contains(table()->geometry()));
    EXPECT_GT(table()->geometry().top(), text->mapTo(&window, text->rect().bottomLeft()).y());
    EXPECT_EQ(table()->width(), text->width());
    EXPECT_TRUE(
        table()->geometry().intersects(QRect(other->mapTo(&window, QPoint()), other->size())));
    EXPECT_EQ(window.childAt(table()->geometry().center())->parentWidget(), table());
}

TEST_F(VendorChooserTest, ALongNameShowsItsBeginningAndTellsTheRest)
{
    const QByteArray name(120, 'W');
    offer(registryOf({{"00000F", name}}));
    type(u"w"_s);
    press(*text, Qt::Key_Down);
    const QString entry = QString::fromLatin1(name) + u" (00000F)"_s;
    EXPECT_EQ(saved(), entry);
    EXPECT_EQ(text->text(), QString(95, u'W') + u'…' + QString(15, u'W') + u" (00000F)"_s);
    EXPECT_EQ(selected(), text->text());
    EXPECT_EQ(text->cursorPosition(), 0);
    EXPECT_EQ(text->toolTip(), entry);
    EXPECT_EQ(table()->model()->index(0, 0).data(Qt::ToolTipRole).toString(), entry);
    EXPECT_EQ(table()->textElideMode(), Qt::ElideMiddle) << "the identifier stays in sight";
    EXPECT_EQ(window.width(), 460);
}

TEST_F(VendorChooserTest, ANameIsShownOnOneLineAndStoredAsItIs)
{
    const QByteArray name = "Two\nLines\xE2\x80\xA8\xE2\x80\xAE"
                            "Apart";
    const QString entry = QString::fromUtf8(name) + u" (00000F)"_s;
    const QString shown = u"Two Lines \uFFFDApart (00000F)"_s;
    offer(registryOf({{"00000F", name}}));
    type(u"t"_s);
    press(*text, Qt::Key_Down);
    EXPECT_EQ(selected(), shown);
    EXPECT_EQ(text->text(), shown);
    EXPECT_EQ(saved(), entry);
    press(*text, Qt::Key_Escape);
    choice.setVendorSelectionForCurrentDevice();
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(selected(), shown) << "the stored choice is found again";
}

TEST_F(VendorChooserTest, WhatIsTypedStaysAsItWasTyped)
{
    const QString odd = u"a\u202Eb\u2028c"_s;
    text->selectAll();
    press(*text, Qt::Key_unknown, odd);
    field.rearrange();
    EXPECT_EQ(text->text(), odd);
    EXPECT_EQ(text->cursorPosition(), odd.size());
    const QString longText(300, u'a');
    text->selectAll();
    press(*text, Qt::Key_unknown, longText);
    field.rearrange();
    EXPECT_EQ(text->text(), longText);
}

TEST_F(VendorChooserTest, TensOfThousandsOfRowsAreShownAndNarrowed)
{
    offer(registryOf(40'000));
    click(*toggle, toggle->rect().center());
    ASSERT_EQ(table()->model()->rowCount(), 40'001);
    EXPECT_EQ(selected(), u"Random Address"_s);
    EXPECT_EQ(table()->currentIndex().row(), 40'000);
    EXPECT_GT(table()->verticalScrollBar()->value(), 1000) << "the choice is in sight";
    EXPECT_TRUE(table()->viewport()->rect().contains(table()->visualRect(table()->currentIndex())));
    type(u"maker 0001"_s);
    EXPECT_EQ(table()->model()->rowCount(), 256);
    EXPECT_EQ(table()->verticalScrollBar()->value(), 0) << "the best match is in sight";
}

TEST_F(VendorChooserTest, ToAssistiveTechnologyFieldAndListHaveNames)
{
    EXPECT_EQ(text->accessibleName(), u"Vendor of random addresses"_s);
    EXPECT_FALSE(text->accessibleDescription().isEmpty());
    press(*text, Qt::Key_Down);
    QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(table());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->role(), QAccessible::List);
    EXPECT_EQ(shown->text(QAccessible::Name), u"Vendors"_s);
}

} // namespace
} // namespace quillon::test
