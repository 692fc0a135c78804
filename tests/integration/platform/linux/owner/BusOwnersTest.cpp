// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/BusOwners.h"

#include "MadeUpBusOwner.h"
#include "integration/platform/linux/Waiting.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const QString networkd = u"org.freedesktop.network1"_s;
const QString iwd = u"net.connman.iwd"_s;
const QString wpaSupplicant = u"fi.w1.wpa_supplicant1"_s;

class BusOwnersTest : public testing::Test
{
protected:
    QString find(const QString &device, bool isRadio = false)
    {
        std::optional<QString> found;
        owners.find(device, isRadio, &context, [&](const QString &name) {
            EXPECT_FALSE(found) << "told twice";
            found = name;
        });
        EXPECT_FALSE(found) << "before the call returned";
        EXPECT_TRUE(eventually([&] { return found.has_value(); }));
        return found.value_or(u"never told"_s);
    }

    PrivateBus bus;
    BusOwners owners{bus.connect()};
    QObject context;
};

TEST_F(BusOwnersTest, FindNobodyWhereNobodyIs)
{
    EXPECT_EQ(find(u"dev0"_s), QString());
    EXPECT_EQ(find(u"dev0"_s, true), QString());
}

TEST_F(BusOwnersTest, FindNetworkdForLinksThatItManages)
{
    MadeUpBusOwner owner(bus, networkd);
    EXPECT_EQ(find(u"dev0"_s), u"systemd-networkd"_s);
    EXPECT_EQ(find(u"dev0"_s, true), u"systemd-networkd"_s);
    EXPECT_EQ(find(u"dev1"_s), QString());
    for (const auto &[state, name] : {std::pair{u"unmanaged"_s, QString()},
             std::pair{u"linger"_s, QString()}, std::pair{u"configuring"_s, u"systemd-networkd"_s},
             std::pair{u"failed"_s, u"systemd-networkd"_s}}) {
        owner.administrativeState = state;
        EXPECT_EQ(find(u"dev0"_s), name) << qPrintable(state);
    }
}

TEST_F(BusOwnersTest, FindIwdForRadiosAndDoNotAskIt)
{
    MadeUpBusOwner owner(bus, iwd);
    const MadeUpBusOwner beside(bus, networkd);
    EXPECT_EQ(find(u"dev0"_s, true), u"iwd"_s);
    EXPECT_EQ(find(u"dev0"_s), u"systemd-networkd"_s);
    EXPECT_EQ(owner.questions, 0);
}

TEST_F(BusOwnersTest, FindWpaSupplicantForRadiosThatItTellsOf)
{
    const MadeUpBusOwner owner(bus, wpaSupplicant);
    EXPECT_EQ(find(u"dev0"_s, true), u"wpa_supplicant"_s);
    EXPECT_EQ(find(u"dev1"_s, true), QString());
    EXPECT_EQ(find(u"dev0"_s), QString());
}

TEST_F(BusOwnersTest, AskTheOthersWhenOneHangs)
{
    MadeUpBusOwner hanging(bus, wpaSupplicant);
    hanging.isHanging = true;
    const MadeUpBusOwner owner(bus, networkd);
    EXPECT_EQ(find(u"dev0"_s, true), u"systemd-networkd"_s);
}

TEST_F(BusOwnersTest, WaitForNobodyForEver)
{
    MadeUpBusOwner hanging(bus, networkd);
    hanging.isHanging = true;
    EXPECT_EQ(find(u"dev0"_s), QString());
    EXPECT_EQ(hanging.questions, 1);
}

TEST_F(BusOwnersTest, TellNobodyWhoHasGone)
{
    auto gone = std::make_unique<QObject>();
    owners.find(u"dev0"_s, true, gone.get(), [](const QString &) { FAIL(); });
    gone.reset();
    // Answers come in the order of questions.
    EXPECT_EQ(find(u"dev0"_s, true), QString());
}

TEST_F(BusOwnersTest, FindNobodyWithoutABus)
{
    bus.stop();
    EXPECT_EQ(find(u"dev0"_s, true), QString());
}

} // namespace

} // namespace quillon::test
