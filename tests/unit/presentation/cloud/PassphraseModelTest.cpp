// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/cloud/PassphraseModel.h"

#include "fakes/FakeCloudPassphrase.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Field = PassphraseModel::Field;
using Problem = CloudPassphrase::Problem;
using Step = CloudPassphrase::Step;

class PassphraseModelTest : public ::testing::Test
{
protected:
    PassphraseModelTest()
    {
        model.use(passphrase);
        QObject::connect(
            &model, &PassphraseModel::fieldWanted, [this](Field field) { wanted.append(field); });
        QObject::connect(
            &model, &PassphraseModel::told, [this](const QString &text) { told.append(text); });
    }

    void begin()
    {
        model.open();
        model.edit(Field::Current, u"correct horse"_s);
        model.edit(Field::Passphrase, u" battery staple \r\n"_s);
        model.edit(Field::Repeated, u" battery staple "_s);
        model.change();
    }
    void expectForgotten()
    {
        for (const Field field : {Field::Current, Field::Passphrase, Field::Repeated}) {
            EXPECT_EQ(model.text(field), QString());
        }
    }

    FakeCloudPassphrase passphrase;
    PassphraseModel model;
    QList<Field> wanted;
    QStringList told;
};

TEST_F(PassphraseModelTest, DoesNotOpenBeforeThereIsSomebodyWhoChangesIt)
{
    PassphraseModel alone;
    alone.open();
    alone.change();
    EXPECT_EQ(alone.state(), PassphraseModel::State());
    model.change();
    EXPECT_THAT(passphrase.attempts, IsEmpty()) << "the dialog is closed";
}

TEST_F(PassphraseModelTest, SaysWhatWasTypedWithoutTheEndOfItsLine)
{
    begin();
    ASSERT_EQ(passphrase.attempts.size(), 1);
    EXPECT_EQ(passphrase.attempts.first().current, u"correct horse"_s);
    EXPECT_EQ(passphrase.attempts.first().passphrase, u" battery staple "_s);
    EXPECT_EQ(passphrase.attempts.first().repeated, u" battery staple "_s);
    model.change();
    EXPECT_EQ(passphrase.attempts.size(), 1);
}

TEST_F(PassphraseModelTest, EachStepIsSaid)
{
    begin();
    QStringList lines;
    for (const Step step : {Step::Reading, Step::Checking, Step::Writing, Step::Keeping}) {
        passphrase.goTo(step);
        EXPECT_TRUE(model.state().isBusy);
        EXPECT_EQ(model.state().isTooLate, step == Step::Writing || step == Step::Keeping);
        EXPECT_FALSE(model.state().progress.isEmpty());
        EXPECT_FALSE(lines.contains(model.state().progress));
        lines.append(model.state().progress);
    }
}

TEST_F(PassphraseModelTest, AFailureKeepsWhatWasTyped)
{
    for (const auto &[about, field] : std::initializer_list<std::pair<Problem::About, Field>>{
             {Problem::About::Current, Field::Current},
             {Problem::About::Passphrase, Field::Passphrase},
             {Problem::About::Repeated, Field::Repeated},
             {Problem::About::Nothing, Field::Nothing}}) {
        wanted.clear();
        begin();
        passphrase.fail({u"It did not work."_s, about});
        EXPECT_THAT(wanted, ElementsAre(field));
        EXPECT_EQ(model.state(),
            (PassphraseModel::State{.isOpen = true, .failure = u"It did not work."_s}));
        EXPECT_EQ(model.text(Field::Current), u"correct horse"_s);
        EXPECT_EQ(model.text(Field::Repeated), u" battery staple "_s);
    }
    EXPECT_THAT(told, IsEmpty());
    model.edit(Field::Current, u"other"_s);
    EXPECT_EQ(model.state().failure, QString());
}

TEST_F(PassphraseModelTest, ChangedItClosesForgetsAndTells)
{
    begin();
    passphrase.succeed();
    EXPECT_EQ(model.state(), PassphraseModel::State());
    EXPECT_EQ(told.size(), 1);
    expectForgotten();
}

TEST_F(PassphraseModelTest, WhileItIsUnderWayNothingIsEdited)
{
    begin();
    model.edit(Field::Current, u"other"_s);
    EXPECT_EQ(model.text(Field::Current), u"correct horse"_s);
}

TEST_F(PassphraseModelTest, CancelGivesUpTheChangeAndThenTheDialog)
{
    begin();
    model.cancel();
    EXPECT_EQ(passphrase.cancelled, 1);
    EXPECT_EQ(model.state(), PassphraseModel::State{.isOpen = true});
    EXPECT_EQ(model.text(Field::Current), u"correct horse"_s);
    model.cancel();
    EXPECT_FALSE(model.state().isOpen);
    EXPECT_EQ(passphrase.cancelled, 1);
    expectForgotten();
}

TEST_F(PassphraseModelTest, WhatIsOnItsWayIsNotGivenUp)
{
    begin();
    passphrase.goTo(Step::Writing);
    model.cancel();
    EXPECT_TRUE(model.state().isBusy);
    EXPECT_TRUE(model.state().isOpen);
    EXPECT_EQ(passphrase.cancelled, 0);
}

TEST_F(PassphraseModelTest, WhatWentOnWithoutTheDialogIsTold)
{
    for (const bool isGood : {true, false}) {
        told.clear();
        begin();
        passphrase.goTo(Step::Writing);
        model.close();
        expectForgotten();
        EXPECT_FALSE(model.state().isOpen);
        EXPECT_TRUE(passphrase.isUnderWay());
        model.open();
        EXPECT_TRUE(model.state().isBusy);
        EXPECT_TRUE(model.state().isTooLate);
        EXPECT_FALSE(model.state().progress.isEmpty());
        model.close();
        if (isGood) {
            passphrase.succeed();
        } else {
            passphrase.fail({u"It did not work."_s});
        }
        ASSERT_EQ(told.size(), 1);
        EXPECT_EQ(told.first() == u"It did not work."_s, !isGood);
    }
}

TEST_F(PassphraseModelTest, ClosedBeforeThatItIsGivenUp)
{
    begin();
    model.close();
    EXPECT_EQ(passphrase.cancelled, 1);
    EXPECT_THAT(told, IsEmpty());
    expectForgotten();
}

} // namespace
} // namespace quillon::test
