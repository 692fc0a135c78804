// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/ExternalAddressRow.h"

#include "networks/ExternalIPAddress.h"
#include "presentation/networks/ExternalAddressModel.h"
#include "ui/theme/Theme.h"
#include "unit/ui/WindowFixture.h"

#include <QLabel>
#include <QToolButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ExternalAddressRowTest : public WindowFixture
{
protected:
    RowButton *value() const { return row.findChild<RowButton *>(u"externalAddress"_s); }
    QToolButton *button() const { return row.findChild<QToolButton *>(u"refreshExternalIP"_s); }

    Theme theme;
    ExternalIPAddress externalAddress{machine.http, settings, QUrl(u"https://ip.test"_s)};
    ExternalAddressModel model{settings, externalAddress};
    ExternalAddressRow row{model, theme};
};

TEST_F(ExternalAddressRowTest, FollowsTheAddress)
{
    EXPECT_EQ(value()->value(), QString());
    settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    EXPECT_EQ(value()->value(), u"198.51.100.7"_s);
    EXPECT_TRUE(value()->accessibleName().contains(u"198.51.100.7"_s));
    EXPECT_FALSE(value()->hasPopover());
}

TEST_F(ExternalAddressRowTest, SaysBesideTheAddressHowItStands)
{
    const auto *note = row.findChild<QLabel *>(u"externalAddressNote"_s);
    settings.set(keys::externalIPAddress, u"Unknown..."_s);
    EXPECT_EQ(note->text(), u"Look-up is off"_s);
    EXPECT_FALSE(note->isHidden());
    EXPECT_FALSE(note->toolTip().isEmpty());
    EXPECT_FALSE(note->accessibleDescription().isEmpty());
    button()->click();
    EXPECT_EQ(note->text(), u"Looking it up…"_s);
    EXPECT_EQ(value()->value(), u"Unknown..."_s);
    machine.http.deliver(machine.http.last(), R"({"ip":"203.0.113.7"})");
    machine.http.finish(machine.http.last());
    scheduler.runPending();
    EXPECT_EQ(value()->value(), u"203.0.113.7"_s);
    EXPECT_TRUE(note->isHidden());
    button()->click();
    machine.http.fail(machine.http.last(), {httpErrorDomain, 1, u"Connection refused"_s});
    scheduler.runPending();
    EXPECT_EQ(note->text(), u"No answer"_s);
    EXPECT_EQ(value()->value(), u"203.0.113.7"_s);
}

TEST_F(ExternalAddressRowTest, ItsButtonAsksForTheAddress)
{
    EXPECT_EQ(button()->accessibleName(), u"Refresh external address"_s);
    EXPECT_NE(button()->focusPolicy() & Qt::TabFocus, 0);
    button()->click();
    EXPECT_EQ(machine.http.requests().size(), 1);
}

} // namespace
} // namespace quillon::test
