// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddressChangeFixture.h"

#include <atomic>
#include <chrono>
#include <future>
#include <latch>
#include <thread>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Holds up whoever tells the user something until it is let go.
class SlowNotifier : public FakeNotifier
{
public:
    void sendNotificationWithBody(const QString &, const QString &) override
    {
        m_entered.count_down();
        m_letGo.wait();
        m_done = true;
    }
    void waitUntilCalled() const { m_entered.wait(); }
    void letGo() { m_letGo.count_down(); }
    bool isDone() const { return m_done; }

private:
    std::latch m_entered{1};
    std::latch m_letGo{1};
    std::atomic_bool m_done{false};
};

class AddressChangerAtTheEnd : public AddressChangeFixture
{
protected:
    /// Ends the changer while another thread tells the user of the change to `address`.
    void endWhileTelling(const QString &address)
    {
        SlowNotifier slow;
        changer = std::make_unique<AddressChanger>(AddressChanger::Collaborators{
            settings, scheduler, notifications, slow, xpc, owners, table, current, randomAddress});
        changer->updateMacAddressWithAddress(en1, address);
        std::thread others([this] { scheduler.runPending(); });
        slow.waitUntilCalled();
        auto end = std::async(std::launch::async, [this, &slow] {
            changer.reset();
            return slow.isDone();
        });
        EXPECT_EQ(end.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
        slow.letGo();
        EXPECT_TRUE(end.get()) << "ended under the feet of another thread";
        others.join();
    }
};

TEST_F(AddressChangerAtTheEnd, WaitsForAReplyThatIsBeingHandled)
{
    endWhileTelling(wanted);
}

TEST_F(AddressChangerAtTheEnd, WaitsForATestOnTheQueue)
{
    endWhileTelling(u"02:16:3e:44:55:66"_s);
}

} // namespace
} // namespace quillon::test
