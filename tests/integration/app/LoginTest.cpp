// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/app/EndToEndTest.h"
#include "store/model/QuillonModel.h"

#include <QDBusConnection>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

/// A login item that has started the program and waits for its word.
class WaitingLoginItem
{
public:
    WaitingLoginItem()
    {
        EXPECT_TRUE(m_bus.registerService(QLatin1String(contract::loginHelperName)));
    }
    ~WaitingLoginItem() { QDBusConnection::disconnectFromBus(m_bus.name()); }

private:
    QDBusConnection m_bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"login item"_s);
};

} // namespace

class LoginTest : public EndToEndTest
{
};

TEST_F(LoginTest, ALoginRuleActsOnceOneSecondAfterALaunchAtLogin)
{
    ASSERT_TRUE(addRule(records, randomLoginRule(card)));
    const WaitingLoginItem item;
    plugCable();
    const QDateTime launched = QDateTime::currentDateTimeUtc();
    startProgram();
    ASSERT_TRUE(eventually([this] { return savedHistory(records).size() == 1; }));
    ASSERT_EQ(program->helperLink.changes.size(), 1);
    const auto &change = program->helperLink.changes.first();
    EXPECT_EQ(change.device, card);
    EXPECT_GE(launched.msecsTo(change.asked), 1000) << "by the program's clock";
    EXPECT_NE(kernelAddress(), factoryAddress);

    // Neither time nor a network carries it out again.
    giveLease(true);
    settle();
    letPass(5min);
    EXPECT_EQ(program->helperLink.changes.size(), 1);
    EXPECT_EQ(addressesSeen().size(), 2);
    EXPECT_EQ(program->messages(changedTitle).size(), 1);
}

TEST_F(LoginTest, ALoginRuleDoesNotActAtAnyOtherLaunch)
{
    ASSERT_TRUE(addRule(records, randomLoginRule(card)));
    plugCable();
    startProgram();
    giveLease(true);
    settle();
    letPass(5min);
    EXPECT_TRUE(program->helperLink.changes.isEmpty());
    EXPECT_EQ(kernelAddress(), factoryAddress);
    EXPECT_EQ(hasRule(), 1);
}

TEST_F(LoginTest, AfterTheLoginRuleTheRuleOfTheNetworkActsToo)
{
    ASSERT_TRUE(addRule(records, randomLoginRule(card)));
    QVariantMap fixed = randomOnceRule(card);
    fixed[model::rule::address] = u"02:00:5e:10:00:77"_s;
    ASSERT_TRUE(addRule(records, fixed));
    const WaitingLoginItem item;
    plugCable();
    startProgram();
    ASSERT_TRUE(eventually([this] { return savedHistory(records).size() == 2; }));
    EXPECT_EQ(kernelAddress(), u"02:00:5e:10:00:77"_s);
    letPass(2min);
    EXPECT_EQ(program->helperLink.changes.size(), 2);
}

TEST_F(LoginTest, AtEveryLaunchTheRuleOfTheNetworkActsOneSecondLater)
{
    ASSERT_TRUE(addRule(records, randomOnceRule(card)));
    plugCable();
    const QDateTime launched = QDateTime::currentDateTimeUtc();
    startProgram();
    ASSERT_TRUE(eventually([this] { return savedHistory(records).size() == 1; }));
    EXPECT_GE(launched.msecsTo(program->helperLink.changes.first().asked), 1000);
    letPass(2min);
    EXPECT_EQ(program->helperLink.changes.size(), 1);
}

} // namespace quillon::test
