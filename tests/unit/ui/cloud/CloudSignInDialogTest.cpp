// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/CloudSignInDialog.h"

#include "unit/ui/cloud/CloudFixture.h"

#include <QAccessible>
#include <QClipboard>
#include <QFrame>
#include <QKeyEvent>
#include <QScreen>
#include <QSet>
#include <QTabBar>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Problem = CloudSignIn::Problem;

class CloudSignInDialogTest : public CloudFixture
{
protected:
    CloudSignInDialogTest() { openDialog(); }

    void begin()
    {
        fill();
        press(Qt::Key_Return);
        ASSERT_EQ(signIn.attempts.size(), 1);
    }
    void fail(const Problem &problem)
    {
        signIn.fail(problem);
        settle();
    }
    static void sendKey(int key, bool isRepeated)
    {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, QString(), isRepeated);
        QApplication::sendEvent(QApplication::focusWidget(), &down);
    }
    bool question() const
    {
        return dialog()->findChild<QFrame *>(u"certificateQuestion"_s)->isVisible();
    }
    QLabel &fingerprint() const { return *dialog()->findChild<QLabel *>(u"fingerprint"_s); }
    void askAboutCertificate()
    {
        begin();
        fail({.text = u"The server's certificate is not trusted."_s,
            .remedy = Problem::Remedy::AcceptCertificate,
            .fingerprint = print});
    }

    const QByteArray print = QByteArray::fromHex("3af0") + QByteArray(30, '\x07');
};

TEST_F(CloudSignInDialogTest, EveryControlSaysWhatItIs)
{
    for (const auto kind : {CloudAccount::Kind::WebDav, CloudAccount::Kind::Folder}) {
        model.choose(kind);
        fill();
        field("Folder").setText(u"/srv/mila/Sync"_s);
        model.signIn();
        fail({.remedy = Problem::Remedy::RepeatPassphrase});
        model.edit(CloudSignInModel::Field::RepeatedPassphrase, u"a long passphrase"_s);
        model.signIn();
        fail({.remedy = Problem::Remedy::AcceptCertificate, .fingerprint = print});
        QSet<std::pair<QString, int>> known;
        for (auto *control : dialog()->findChildren<QWidget *>()) {
            if (!control->isVisible() || (control->focusPolicy() & Qt::TabFocus) == 0) {
                continue;
            }
            const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            const std::string name = control->accessibleName().toStdString();
            EXPECT_FALSE(name.empty()) << control->metaObject()->className();
            EXPECT_FALSE(control->toolTip().isEmpty()) << name;
            const std::pair key(control->accessibleName(), int(accessible->role()));
            EXPECT_FALSE(known.contains(key)) << "twice: " << name;
            known.insert(key);
        }
        EXPECT_GE(known.size(), 8);
    }
}

TEST_F(CloudSignInDialogTest, BeginsWithTheServer)
{
    EXPECT_TRUE(field("Server").hasFocus());
    EXPECT_FALSE(field("Repeat passphrase").isVisible());
    EXPECT_FALSE(question());
    model.close();
    settle();
    signIn.become(account);
    accountButton().click();
    settle();
    EXPECT_EQ(field("Server").text(), account.server.toString());
    EXPECT_EQ(field("User name").text(), u"mila"_s);
    EXPECT_TRUE(field("App password").hasFocus()) << "all else is known";
}

TEST_F(CloudSignInDialogTest, ReturnSignsInOnceHoweverLongItIsHeld)
{
    fill();
    field("Passphrase").setFocus();
    sendKey(Qt::Key_Return, false);
    for (int time = 0; time < 5; ++time) {
        sendKey(Qt::Key_Return, true);
    }
    ASSERT_EQ(signIn.attempts.size(), 1);
    signIn.fail({.text = u"No."_s, .about = Problem::About::Password});
    for (int time = 0; time < 5; ++time) {
        sendKey(Qt::Key_Return, true);
    }
    EXPECT_EQ(signIn.attempts.size(), 1) << "the one that is still held";
    const auto &said = signIn.attempts.first();
    EXPECT_EQ(said.address, u"cloud.example"_s);
    EXPECT_EQ(said.password, u"app-password"_s);
    EXPECT_EQ(said.passphrase, u"a long passphrase"_s);
}

TEST_F(CloudSignInDialogTest, WhileItIsUnderWayNothingCanBeChangedAndItSaysSo)
{
    begin();
    EXPECT_EQ(button("Signing In…").text(), u"Signing In…"_s);
    for (const auto *entry : dialog()->findChildren<QLineEdit *>()) {
        EXPECT_TRUE(entry->isReadOnly()) << entry->accessibleName().toStdString();
    }
    auto &tabs = *dialog()->findChild<QTabBar *>();
    tabs.setCurrentIndex(1);
    EXPECT_EQ(tabs.currentIndex(), 0);
    field("Server").setText(u"other.example"_s);
    EXPECT_EQ(field("Server").text(), u"cloud.example"_s);
    button("Signing In…").click();
    EXPECT_EQ(signIn.attempts.size(), 1);
}

TEST_F(CloudSignInDialogTest, AFailureGivesItsFieldTheKeyboardAndLosesNothing)
{
    using About = Problem::About;
    fill();
    for (const auto &[about, name] :
        std::initializer_list<std::pair<About, const char *>>{{About::Address, "Server"},
            {About::Password, "App password"}, {About::Passphrase, "Passphrase"}}) {
        model.signIn();
        fail({.text = u"It did not work."_s, .about = about});
        EXPECT_TRUE(field(name).hasFocus()) << name;
        EXPECT_FALSE(field(name).isReadOnly());
        EXPECT_EQ(field("Server").text(), u"cloud.example"_s);
        EXPECT_EQ(field("App password").text(), u"app-password"_s);
        EXPECT_EQ(field("Passphrase").text(), u"a long passphrase"_s);
    }
}

TEST_F(CloudSignInDialogTest, WhatIsMissingGetsTheKeyboard)
{
    field("Passphrase").setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(field("Server").hasFocus());
    EXPECT_TRUE(signIn.attempts.isEmpty());
}

TEST_F(CloudSignInDialogTest, APasswordIsDotsToEverybody)
{
    fill();
    for (const char *name : {"App password", "Passphrase"}) {
        QLineEdit &entry = field(name);
        const QString secret = entry.text();
        EXPECT_FALSE(entry.displayText().contains(secret.left(3))) << name;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&entry);
        EXPECT_TRUE(accessible->state().passwordEdit);
        for (const auto text :
            {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help}) {
            EXPECT_FALSE(accessible->text(text).contains(secret)) << name << text;
        }
        EXPECT_FALSE(
            accessible->textInterface()->text(0, int(secret.size())).contains(secret.left(3)))
            << name;
        entry.selectAll();
        QApplication::clipboard()->setText(u"before"_s);
        entry.copy();
        EXPECT_EQ(QApplication::clipboard()->text(), u"before"_s) << name;
        QApplication::clipboard()->setText(u"pasted\n"_s);
        entry.selectAll();
        entry.paste();
    }
    model.signIn();
    EXPECT_EQ(signIn.attempts.constLast().password, u"pasted"_s);
    EXPECT_EQ(signIn.attempts.constLast().passphrase, u"pasted"_s);
}

TEST_F(CloudSignInDialogTest, ANewAccountWantsThePassphraseTwice)
{
    begin();
    fail({.text = u"This account is new."_s, .remedy = Problem::Remedy::RepeatPassphrase});
    EXPECT_TRUE(field("Repeat passphrase").isVisible());
    EXPECT_TRUE(field("Repeat passphrase").hasFocus());
    field("Repeat passphrase").setText(u"a long passphrase"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(signIn.attempts.size(), 2);
    EXPECT_EQ(signIn.attempts.constLast().repeatedPassphrase, u"a long passphrase"_s);
    fail({.text = u"No."_s});
    field("User name").setText(u"noor"_s);
    EXPECT_FALSE(field("Repeat passphrase").isVisible());
    EXPECT_EQ(field("Repeat passphrase").text(), QString());
}

struct MirroredApplication
{
    MirroredApplication() { QApplication::setLayoutDirection(Qt::RightToLeft); }
    ~MirroredApplication() { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

/// Made in an application that is mirrored from its start.
class CloudSignInDialogMirrored : MirroredApplication, public CloudSignInDialogTest
{
};

TEST_F(CloudSignInDialogMirrored, TheColumnsOfTheFingerprintStandOverEachOther)
{
    askAboutCertificate();
    // The last line is shorter, by its colon.
    EXPECT_EQ(fingerprint().layoutDirection(), Qt::LeftToRight);
    EXPECT_TRUE(fingerprint().alignment().testFlag(Qt::AlignLeft));
}

TEST_F(CloudSignInDialogTest, TheFingerprintCanBeComparedAndCopied)
{
    askAboutCertificate();
    ASSERT_TRUE(question());
    EXPECT_TRUE(fingerprint().hasFocus());
    EXPECT_EQ(fingerprint().text().split(u'\n').size(), 4);
    EXPECT_EQ(fingerprint().text().remove(u'\n'), fingerprintText(print));
    EXPECT_TRUE(fingerprint().textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(fingerprint().textInteractionFlags() & Qt::TextSelectableByKeyboard);
    EXPECT_EQ(fingerprint().focusPolicy(), Qt::StrongFocus) << "by Tab as well";
    button("Copy Fingerprint").click();
    EXPECT_EQ(QApplication::clipboard()->text(), fingerprintText(print));
}

TEST_F(CloudSignInDialogTest, AQuestionThatMakesItHigherDoesNotPushItBelowTheScreen)
{
    const QRect screen = dialog()->screen()->availableGeometry();
    dialog()->move(40, screen.bottom() - dialog()->frameGeometry().height());
    const int before = dialog()->height();
    askAboutCertificate();
    EXPECT_GT(dialog()->height(), before);
    EXPECT_LE(dialog()->frameGeometry().bottom(), screen.bottom());
    EXPECT_EQ(dialog()->x(), 40);
}

TEST_F(CloudSignInDialogTest, ACertificateIsAcceptedByItsOwnButtonAlone)
{
    askAboutCertificate();
    press(Qt::Key_Return);
    ASSERT_EQ(signIn.attempts.size(), 2);
    EXPECT_TRUE(signIn.attempts.constLast().fingerprint.isEmpty());
    fail({.remedy = Problem::Remedy::AcceptCertificate, .fingerprint = print});
    button("Accept Certificate").click();
    EXPECT_EQ(signIn.attempts.constLast().fingerprint, print);
    EXPECT_FALSE(question());
}

TEST_F(CloudSignInDialogTest, AnotherServerTakesTheQuestionAway)
{
    askAboutCertificate();
    field("Server").setText(u"other.example"_s);
    EXPECT_FALSE(question());
    press(Qt::Key_Return);
    EXPECT_TRUE(signIn.attempts.constLast().fingerprint.isEmpty());
}

TEST_F(CloudSignInDialogTest, EscapeGivesUpTheAttemptAndThenTheDialog)
{
    begin();
    sendKey(Qt::Key_Escape, false);
    sendKey(Qt::Key_Escape, true);
    settle();
    EXPECT_FALSE(signIn.isUnderWay);
    ASSERT_NE(dialog(), nullptr) << "held";
    EXPECT_EQ(field("App password").text(), u"app-password"_s);
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_TRUE(accountButton().hasFocus());
    EXPECT_EQ(model.text(CloudSignInModel::Field::Password), QString());
}

TEST_F(CloudSignInDialogTest, ClosedByItsTitleBarItGivesUpBoth)
{
    begin();
    dialog()->close();
    settle();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_FALSE(signIn.isUnderWay);
    accountButton().click();
    settle();
    ASSERT_NE(dialog(), nullptr) << "it opens again";
    EXPECT_EQ(field("Server").text(), u"cloud.example"_s);
    EXPECT_EQ(field("App password").text(), QString());
}

TEST_F(CloudSignInDialogTest, AFolderIsSaidWholeHoweverLongItIs)
{
    dialog()->findChild<QTabBar *>()->setCurrentIndex(1);
    EXPECT_TRUE(field("Folder").isVisible());
    EXPECT_FALSE(field("Server").isVisible());
    const QString path = u"/srv/mila/"_s + u"a folder/"_s.repeated(60) + u"end"_s;
    field("Folder").setText(path);
    field("Passphrase").setText(u"a long passphrase"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(signIn.attempts.size(), 1);
    EXPECT_EQ(signIn.attempts.first().folder, path);
    fail({.text = u"This folder cannot be written."_s, .about = Problem::About::Folder});
    EXPECT_TRUE(field("Folder").hasFocus());
}

TEST_F(CloudSignInDialogTest, AProblemIsShownAsItIsWritten)
{
    begin();
    fail({.text = u"<img src='/etc/passwd'> "_s.repeated(200)});
    for (const auto *label : dialog()->findChildren<QLabel *>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
    }
    EXPECT_LE(dialog()->height(), dialog()->screen()->availableSize().height());
}

} // namespace
} // namespace quillon::test
