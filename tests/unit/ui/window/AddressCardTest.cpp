// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/AddressCard.h"

#include "ui/widgets/InlineLine.h"
#include "unit/ui/window/MainWindowFixture.h"

#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AddressCardTest : public MainWindowFixture
{
};

TEST_F(AddressCardTest, ItsButtonsChangeTheAddress)
{
    named<QPushButton>("Randomize address")->click();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"AA:01:02:03:04:05"_s);
    named<QPushButton>("Restore hardware address")->click();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    window.editField(u"02:00:5e:10:ab:cd"_s);
    named<QPushButton>("Apply address")->click();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"02:00:5E:10:AB:CD"_s);
}

TEST_F(AddressCardTest, AButtonSaysInItsToolTipWhatItDoesOrWhyItDoesNothing)
{
    const auto *randomize = named<QPushButton>("Randomize address");
    const QString does = randomize->toolTip();
    EXPECT_EQ(does, randomize->accessibleDescription());
    settings.set(keys::currentInterfaceDict, QVariantMap());
    window.populateSelectionButton();
    for (const char *name : {"Apply address", "Randomize address", "Restore hardware address"}) {
        EXPECT_FALSE(named<QPushButton>(name)->isEnabled()) << name;
        EXPECT_TRUE(named<QPushButton>(name)->toolTip().startsWith(u"No interface is selected"_s))
            << name;
        EXPECT_EQ(
            named<QPushButton>(name)->accessibleDescription(), named<QPushButton>(name)->toolTip())
            << name;
    }
    select(wired);
    EXPECT_TRUE(randomize->isEnabled());
    EXPECT_EQ(randomize->toolTip(), does);
    EXPECT_EQ(randomize->accessibleDescription(), does);
}

TEST_F(AddressCardTest, TheLineBelowTheFieldSaysWhatTheModelSays)
{
    const auto *line = view->findChild<InlineLine *>();
    EXPECT_EQ(line->text(), window.state().fieldLine.text);
    EXPECT_EQ(line->kind(), InlineLine::Kind::Muted);
    window.editField(u"03:00:5e:10:ab:cd"_s);
    EXPECT_EQ(line->text(), u"Group address: most adapters refuse it."_s);
    EXPECT_EQ(line->kind(), InlineLine::Kind::Notice);
    machine.helper.mood = FakeHelper::Mood::Refusing;
    window.changeMacAddress();
    scheduler.runPending();
    EXPECT_EQ(line->kind(), InlineLine::Kind::Danger);
    EXPECT_TRUE(line->text().startsWith(u"Not changed: "_s)) << line->text().toStdString();
}

} // namespace
} // namespace quillon::test
