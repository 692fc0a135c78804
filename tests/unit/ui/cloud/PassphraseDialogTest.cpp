// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/PassphraseDialog.h"

#include "unit/ui/cloud/CloudFixture.h"

#include <QAccessible>
#include <QClipboard>
#include <QKeyEvent>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using About = CloudPassphrase::Problem::About;
using Step = CloudPassphrase::Step;

class PassphraseDialogTest : public CloudFixture
{
protected:
    PassphraseDialogTest()
        : CloudFixture(u"cloudPassphrase"_s)
    {
        signIn.become(account);
        open();
    }

    void open()
    {
        settle();
        changeButton().setFocus();
        changeButton().click();
        settle();
        ASSERT_NE(dialog(), nullptr);
        ASSERT_TRUE(dialog()->isActiveWindow());
    }
    void type() const
    {
        field("Current passphrase").setText(u"correct horse"_s);
        field("New passphrase").setText(u"battery staple"_s);
        field("Repeat new passphrase").setText(u"battery staple"_s);
    }
    void begin()
    {
        type();
        press(Qt::Key_Return);
        ASSERT_EQ(passphrase.attempts.size(), 1);
        settle();
    }
    static void sendKey(int key, bool isRepeated)
    {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, QString(), isRepeated);
        QApplication::sendEvent(QApplication::focusWidget(), &down);
    }
    QString hint() const { return accountModel.state().hint; }
};

TEST_F(PassphraseDialogTest, EveryControlSaysWhatItIs)
{
    QSet<QString> known;
    for (const auto *control : dialog()->findChildren<QWidget *>()) {
        if (!control->isVisible() || (control->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        const std::string name = control->accessibleName().toStdString();
        EXPECT_FALSE(name.empty()) << control->metaObject()->className();
        EXPECT_FALSE(control->toolTip().isEmpty()) << name;
        EXPECT_FALSE(known.contains(control->accessibleName())) << "twice: " << name;
        known.insert(control->accessibleName());
    }
    EXPECT_GE(known.size(), 5);
}

TEST_F(PassphraseDialogTest, OpensOnceOverItsWindowWithTheCurrentPassphrase)
{
    const QPointer<QDialog> first = dialog();
    EXPECT_EQ(first->windowModality(), Qt::WindowModal);
    EXPECT_TRUE(field("Current passphrase").hasFocus());
    changeButton().click();
    settle();
    EXPECT_EQ(dialog(), first);
    EXPECT_EQ(window.findChildren<QDialog *>().size(), 1);
}

TEST_F(PassphraseDialogTest, ReturnChangesItOnceHoweverLongItIsHeld)
{
    type();
    sendKey(Qt::Key_Return, false);
    for (int time = 0; time < 5; ++time) {
        sendKey(Qt::Key_Return, true);
    }
    ASSERT_EQ(passphrase.attempts.size(), 1);
    EXPECT_EQ(passphrase.attempts.first().current, u"correct horse"_s);
    EXPECT_EQ(passphrase.attempts.first().passphrase, u"battery staple"_s);
    EXPECT_EQ(passphrase.attempts.first().repeated, u"battery staple"_s);
    passphrase.fail({u"No."_s, About::Current});
    for (int time = 0; time < 5; ++time) {
        sendKey(Qt::Key_Return, true);
    }
    EXPECT_EQ(passphrase.attempts.size(), 1) << "the one that is still held";
}

TEST_F(PassphraseDialogTest, ADoubleClickChangesItOnce)
{
    type();
    auto &confirm = button("Change Passphrase");
    confirm.click();
    confirm.click();
    EXPECT_EQ(passphrase.attempts.size(), 1);
    QMouseEvent second(QEvent::MouseButtonDblClick, confirm.rect().center(),
        confirm.mapToGlobal(confirm.rect().center()), Qt::LeftButton, Qt::LeftButton, {});
    passphrase.fail({u"No."_s});
    QApplication::sendEvent(&confirm, &second);
    EXPECT_EQ(passphrase.attempts.size(), 1);
}

TEST_F(PassphraseDialogTest, AFailureGivesItsFieldTheKeyboardAndLosesNothing)
{
    type();
    for (const auto &[about, name] :
        std::initializer_list<std::pair<About, const char *>>{{About::Passphrase, "New passphrase"},
            {About::Repeated, "Repeat new passphrase"}, {About::Current, "Current passphrase"}}) {
        passphraseModel.change();
        passphrase.fail({u"It did not work."_s, about});
        settle();
        EXPECT_TRUE(field(name).hasFocus()) << name;
        EXPECT_EQ(field(name).selectedText().size(), field(name).text().size());
        EXPECT_FALSE(field(name).isReadOnly());
        EXPECT_EQ(field("Current passphrase").text(), u"correct horse"_s);
        EXPECT_EQ(field("New passphrase").text(), u"battery staple"_s);
        EXPECT_EQ(field("Repeat new passphrase").text(), u"battery staple"_s);
    }
}

TEST_F(PassphraseDialogTest, WhileItIsUnderWayNothingCanBeChanged)
{
    begin();
    EXPECT_EQ(button("Changing…").text(), u"Changing…"_s);
    for (const auto *entry : dialog()->findChildren<QLineEdit *>()) {
        EXPECT_TRUE(entry->isReadOnly()) << entry->accessibleName().toStdString();
    }
    EXPECT_TRUE(button("Cancel").isEnabled());
    passphrase.goTo(Step::Writing);
    EXPECT_FALSE(button("Cancel").isEnabled()) << "it is too late";
}

TEST_F(PassphraseDialogTest, APassphraseIsDotsToEverybody)
{
    type();
    for (const char *name : {"Current passphrase", "New passphrase", "Repeat new passphrase"}) {
        QLineEdit &entry = field(name);
        EXPECT_FALSE(entry.displayText().contains(entry.text().left(3))) << name;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&entry);
        EXPECT_TRUE(accessible->state().passwordEdit);
        entry.selectAll();
        QApplication::clipboard()->setText(u"before"_s);
        entry.copy();
        EXPECT_EQ(QApplication::clipboard()->text(), u"before"_s) << name;
    }
}

TEST_F(PassphraseDialogTest, EscapeGivesUpTheChangeAndThenTheDialog)
{
    begin();
    sendKey(Qt::Key_Escape, false);
    sendKey(Qt::Key_Escape, true);
    settle();
    EXPECT_FALSE(passphrase.isUnderWay());
    ASSERT_NE(dialog(), nullptr) << "held";
    EXPECT_EQ(field("Current passphrase").text(), u"correct horse"_s);
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_TRUE(changeButton().hasFocus());
}

TEST_F(PassphraseDialogTest, EscapeDoesNotHideWhatIsOnItsWay)
{
    begin();
    passphrase.goTo(Step::Writing);
    press(Qt::Key_Escape);
    settle();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_TRUE(passphrase.isUnderWay());
}

TEST_F(PassphraseDialogTest, ChangedItClosesAndTheKeyboardIsBack)
{
    QObject::connect(
        &passphraseModel, &PassphraseModel::told, &accountModel, &CloudAccountModel::say);
    begin();
    passphrase.succeed();
    settle();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_TRUE(changeButton().hasFocus());
    EXPECT_FALSE(hint().isEmpty());
    EXPECT_TRUE(row->isVisible());
    open();
    EXPECT_EQ(field("Current passphrase").text(), QString());
}

TEST_F(PassphraseDialogTest, AWindowThatGoesTakesTheDialogAlong)
{
    begin();
    window.hide();
    settle();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_FALSE(passphrase.isUnderWay());
    EXPECT_EQ(passphraseModel.text(PassphraseModel::Field::Current), QString());
}

TEST_F(PassphraseDialogTest, AProblemIsShownAsItIsWritten)
{
    begin();
    passphrase.fail({u"<img src='/etc/passwd'> "_s.repeated(200)});
    settle();
    for (const auto *label : dialog()->findChildren<QLabel *>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
    }
    EXPECT_LE(dialog()->height(), dialog()->screen()->availableSize().height());
}

} // namespace
} // namespace quillon::test
