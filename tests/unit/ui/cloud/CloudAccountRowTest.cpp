// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/CloudAccountRow.h"

#include "unit/ui/cloud/CloudFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class CloudAccountRowTest : public CloudFixture
{
protected:
    QString signedInAs() const
    {
        const auto *line = row->findChild<QWidget *>(u"signedInAs"_s);
        return line->isVisible() ? line->findChild<QLabel *>()->accessibleName() : QString();
    }
};

TEST_F(CloudAccountRowTest, WithoutAnybodyWhoSignsInThereIsNothingToPress)
{
    CloudAccountModel nobody;
    CloudSignInModel nowhere;
    PassphraseModel nothing;
    QWidget other;
    CloudAccountRow unused({nobody, nowhere, nothing}, theme, &other);
    other.show();
    settle();
    EXPECT_FALSE(unused.isVisible());
    EXPECT_FALSE(unused.button()->isVisible());
    EXPECT_TRUE(accountButton().isVisible());
}

TEST_F(CloudAccountRowTest, EveryControlSaysWhatItIs)
{
    signIn.become(account);
    settle();
    ASSERT_TRUE(signOutButton().isVisible());
    for (const QPushButton *control : {&accountButton(), &changeButton(), &signOutButton()}) {
        EXPECT_FALSE(control->accessibleName().isEmpty());
        EXPECT_FALSE(control->toolTip().isEmpty());
    }
}

TEST_F(CloudAccountRowTest, OpensOneDialogOverItsWindow)
{
    EXPECT_EQ(dialog(), nullptr);
    openDialog();
    const QPointer<QDialog> first = dialog();
    EXPECT_EQ(first->windowModality(), Qt::WindowModal);
    EXPECT_EQ(first->parentWidget(), &window);
    accountButton().click();
    settle();
    EXPECT_EQ(dialog(), first);
    EXPECT_EQ(window.findChildren<QDialog *>().size(), 1);
}

TEST_F(CloudAccountRowTest, SignedInItSaysSoAndTheKeyboardIsBack)
{
    openDialog();
    fill();
    model.signIn();
    signIn.succeed(account, u"This account can be used."_s);
    settle();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(signedInAs(), u"Signed in as mila at cloud.example"_s);
    EXPECT_TRUE(window.isActiveWindow());
    EXPECT_TRUE(accountButton().hasFocus()) << "where it was before";
}

TEST_F(CloudAccountRowTest, SignedOutTheKeyboardIsOnTheWayIn)
{
    signIn.become(account);
    settle();
    signOutButton().setFocus();
    press(Qt::Key_Space);
    settle();
    EXPECT_FALSE(signIn.account().has_value());
    EXPECT_EQ(signedInAs(), QString());
    EXPECT_TRUE(accountButton().hasFocus());
    EXPECT_TRUE(row->isVisible()) << "it says what stays";
}

TEST_F(CloudAccountRowTest, ALongNameMakesNothingWider)
{
    signIn.become(account);
    settle();
    const int before = row->minimumSizeHint().width();
    CloudAccount other = account;
    other.user = u"<b>&amp; \u202Emila</b>"_s.repeated(50);
    signIn.become(other);
    settle();
    EXPECT_EQ(row->minimumSizeHint().width(), before);
    EXPECT_FALSE(signedInAs().isEmpty());
    EXPECT_FALSE(signedInAs().contains(u'\u202E'));
}

TEST_F(CloudAccountRowTest, AWindowThatGoesTakesTheDialogAlong)
{
    openDialog();
    fill();
    model.signIn();
    ASSERT_TRUE(signIn.isUnderWay);
    window.hide();
    settle();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_FALSE(signIn.isUnderWay);
    EXPECT_EQ(model.text(CloudSignInModel::Field::Password), QString());
}

TEST_F(CloudAccountRowTest, GoneItGivesTheAttemptUp)
{
    openDialog();
    fill();
    model.signIn();
    delete row;
    EXPECT_FALSE(signIn.isUnderWay);
    EXPECT_FALSE(model.state().isOpen);
    EXPECT_EQ(dialog(), nullptr);
}

} // namespace
} // namespace quillon::test
