// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/NewSavedEntryPopover.h"

#include "ui/networks/ImportToast.h"
#include "ui/widgets/InlineLine.h"
#include "unit/ui/networks/SavedItemsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class NewSavedEntryPopoverTest : public SavedItemsFixture
{
protected:
    QPushButton &button(const QString &text) const
    {
        for (auto *found : view.findChildren<QPushButton *>()) {
            if (found->text() == text) {
                return *found;
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
        return *view.findChild<QPushButton *>();
    }
    NewSavedEntryPopover &openForm(const QString &text)
    {
        QPushButton &opener = button(text);
        opener.setFocus();
        opener.click();
        turn();
        auto &form = *opener.findChild<NewSavedEntryPopover *>();
        EXPECT_TRUE(form.isOpen());
        return form;
    }
    static QLineEdit &field(const NewSavedEntryPopover &form, const QString &name)
    {
        for (auto *found : form.findChildren<QLineEdit *>()) {
            if (found->accessibleName() == name) {
                return *found;
            }
        }
        ADD_FAILURE() << "no field " << qPrintable(name);
        return *form.findChild<QLineEdit *>();
    }
    static void type(const QString &text)
    {
        for (const QChar letter : text) {
            press(0, QString(letter));
        }
    }
    static QPushButton &add(const NewSavedEntryPopover &form)
    {
        return *form.findChild<QPushButton *>();
    }

    const QString fresh = u"02:00:00:00:00:01"_s;
};

TEST_F(NewSavedEntryPopoverTest, ReturnSavesAnAddressAndGivesTheKeyboardBack)
{
    NewSavedEntryPopover &form = openForm(u"Address…"_s);
    EXPECT_TRUE(field(form, u"Address"_s).hasFocus());
    type(fresh);
    field(form, u"Name (optional)"_s).setFocus();
    type(u"Scanner"_s);
    press(Qt::Key_Return);
    turn();
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(savedAddressEntry(fresh).name, u"Scanner"_s);
    EXPECT_TRUE(button(u"Address…"_s).hasFocus());
    EXPECT_EQ(addresses().entries().size(), 2);
}

TEST_F(NewSavedEntryPopoverTest, AssistiveTechnologyFindsItInItsButton)
{
    QAccessibleInterface *opener = QAccessible::queryAccessibleInterface(&button(u"Address…"_s));
    EXPECT_EQ(opener->text(QAccessible::Name), u"Address…"_s);
    EXPECT_EQ(opener->childCount(), 0);
    EXPECT_TRUE(opener->state().collapsed);
    NewSavedEntryPopover &form = openForm(u"Address…"_s);
    ASSERT_EQ(opener->childCount(), 1);
    EXPECT_EQ(opener->child(0)->object(), &form);
    EXPECT_EQ(opener->child(0)->role(), QAccessible::Dialog);
    EXPECT_TRUE(opener->state().expanded);
}

TEST_F(NewSavedEntryPopoverTest, ItsButtonSavesANetwork)
{
    NewSavedEntryPopover &form = openForm(u"Network…"_s);
    EXPECT_TRUE(field(form, u"Network name"_s).hasFocus());
    EXPECT_FALSE(add(form).isEnabled());
    type(u"Cafe"_s);
    field(form, u"BSSID"_s).setFocus();
    type(cafeBssid);
    EXPECT_TRUE(add(form).isEnabled());
    add(form).click();
    turn();
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(savedNetworkEntry(cafeBssid), SavedEntry::ofNetwork(cafeBssid, u"Cafe"_s));
}

TEST_F(NewSavedEntryPopoverTest, LetsNoOtherLettersIntoTheAddress)
{
    NewSavedEntryPopover &form = openForm(u"Address…"_s);
    type(u"0x2:g"_s);
    EXPECT_EQ(field(form, u"Address"_s).text(), u"02:"_s);
}

TEST_F(NewSavedEntryPopoverTest, StaysOpenWithWhatIsNoAddress)
{
    NewSavedEntryPopover &form = openForm(u"Address…"_s);
    type(u"02:00"_s);
    press(Qt::Key_Return);
    turn();
    EXPECT_TRUE(form.isOpen());
    EXPECT_EQ(form.findChild<InlineLine *>()->text(), u"This is not a MAC address."_s);
    EXPECT_EQ(form.findChild<InlineLine *>()->kind(), InlineLine::Kind::Danger);
    EXPECT_EQ(addresses().entries().size(), 1);
}

TEST_F(NewSavedEntryPopoverTest, EscapeSavesNothingAndItBeginsEmpty)
{
    NewSavedEntryPopover &form = openForm(u"Address…"_s);
    type(fresh);
    press(Qt::Key_Escape);
    turn();
    EXPECT_FALSE(form.isOpen());
    EXPECT_TRUE(savedAddress(fresh).isEmpty());
    openForm(u"Address…"_s);
    EXPECT_EQ(field(form, u"Address"_s).text(), QString());
    EXPECT_FALSE(add(form).isEnabled());
}

TEST_F(NewSavedEntryPopoverTest, ClosesWithTheEditing)
{
    NewSavedEntryPopover &form = openForm(u"Address…"_s);
    type(fresh);
    view.endEditing();
    EXPECT_FALSE(form.isOpen());
    EXPECT_TRUE(savedAddress(fresh).isEmpty());
}

TEST_F(NewSavedEntryPopoverTest, TheCardsStayWhereTheyAreUntilItHasClosed)
{
    NewSavedEntryPopover &form = openForm(u"Address…"_s);
    type(fresh);
    saveAddress(fresh.toUpper(), u"Theirs"_s);
    turn();
    EXPECT_EQ(addresses().entries().size(), 1);
    EXPECT_EQ(form.findChild<InlineLine *>()->text(), u"Theirs is saved already."_s);
    press(Qt::Key_Return);
    turn();
    EXPECT_TRUE(form.isOpen()) << "nothing was saved";
    press(Qt::Key_Escape);
    turn();
    EXPECT_EQ(addresses().entries().size(), 2);
}

TEST_F(NewSavedEntryPopoverTest, TheHistoryIsImportedAndTakenBack)
{
    auto *toast = new ImportToast(import, theme, scheduler, &view);
    ManagedObjectContext &context = records.managedObjectContext();
    Connection(context.insertNewObject(model::Connection)).setAddress(fresh);
    QPushButton &importing = button(u"Import from History"_s);
    importing.click();
    EXPECT_EQ(importing.text(), u"Importing…"_s);
    turn();
    EXPECT_EQ(importing.text(), u"Import from History"_s);
    EXPECT_EQ(toast->message(), u"1 address added."_s);
    EXPECT_EQ(addresses().entries().size(), 2);
    toast->findChild<QPushButton *>()->click();
    EXPECT_EQ(addresses().entries().size(), 1);
    importing.click();
    turn();
    EXPECT_EQ(toast->message(), u"1 address added."_s) << "it can be had again";
    importing.click();
    turn();
    EXPECT_EQ(toast->message(), u"Nothing in the history that is not saved."_s);
    EXPECT_FALSE(toast->findChild<QPushButton *>()->isVisible());
}

} // namespace
} // namespace quillon::test
