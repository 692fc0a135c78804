// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "integration/app/EndToEndTest.h"
#include "integration/app/Heartbeat.h"
#include "integration/platform/linux/Commands.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

constexpr long eventsPerSecond = 10'000;
constexpr long flatMemory = 16 * 1024; // kilobytes; a queue of all these events would need more

long residentKilobytes()
{
    QFile status(u"/proc/self/status"_s);
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toLong();
        }
    }
    ADD_FAILURE() << "no VmRSS";
    return 0;
}

QString firstIPv4(const QJsonArray &addresses)
{
    for (const QJsonValue &address : addresses) {
        if (address["family"_L1] == "inet"_L1) {
            return address["local"_L1].toString();
        }
    }
    return {};
}

/// Link address, state and first IPv4 address of each, as another program reads them.
QMap<QString, QStringList> kernelState(const QStringList &devices)
{
    QMap<QString, QStringList> states;
    const auto links = QJsonDocument::fromJson(command(u"ip -j addr"_s)).array();
    for (const QJsonValue &link : links) {
        const QString device = link["ifname"_L1].toString();
        const bool up = link["operstate"_L1] == "UP"_L1;
        if (devices.contains(device)) {
            states.insert(device, {link["address"_L1].toString(), up ? u"active"_s : u"inactive"_s,
                                      firstIPv4(link["addr_info"_L1].toArray())});
        }
    }
    return states;
}

} // namespace

class StormTest : public EndToEndTest
{
protected:
    static inline const QStringList stormy{u"eth10"_s, u"eth11"_s, u"eth12"_s, u"eth13"_s};

    void SetUp() override
    {
        EndToEndTest::SetUp();
        for (const QString &device : stormy) {
            administrator().run(u"ip link add %1 type veth peer name far-%1\n"
                                "ip link set far-%1 up; ip link set %1 up"_s.arg(device));
        }
    }
    void TearDown() override
    {
        for (const QString &device : stormy) {
            administrator().run(u"ip link del %1"_s.arg(device));
        }
        EndToEndTest::TearDown();
    }

    /// Lets it blow while the program's main loop runs, and gives the number of events told.
    long storm(std::chrono::seconds time)
    {
        administrator().start(u"%1 %2 %3 %4"_s.arg(QStringLiteral(QUILLON_LINK_STORM),
            QString::number(eventsPerSecond), QString::number(time.count()), stormy.join(u' ')));
        EXPECT_TRUE(eventually([] { return administrator().hasEnded(); }));
        const QList<QByteArray> numbers = administrator().output().trimmed().split(' ');
        EXPECT_EQ(numbers.size(), 6);
        return numbers.value(2).toLong() + numbers.value(3).toLong();
    }

    QMap<QString, QStringList> tableState() const
    {
        QMap<QString, QStringList> states;
        const QVariantMap table = program->devices();
        for (const QString &device : stormy) {
            const QVariantMap entry = table.value(device).toMap();
            states.insert(device,
                {entry.value(record::current).toString(), entry.value(record::status).toString(),
                    entry.value(record::ipAddress).toString()});
        }
        return states;
    }
};

TEST_F(StormTest, TheLastStateIsRightAndTheMemoryFlat)
{
    ASSERT_TRUE(addRule(records, randomOnceRule(card)));
    startProgram();
    // What grows only once has grown then.
    storm(1s);
    settle();
    const long before = residentKilobytes();
    Heartbeat heartbeat;

    const long events = storm(10s);
    const auto expected = kernelState(stormy);
    EXPECT_EQ(expected.value(stormy.at(3)),
        (QStringList{u"02:57:00:00:00:03"_s, u"active"_s, u"10.99.3.1"_s}));
    EXPECT_TRUE(eventually([&] { return tableState() == expected; }));
    settle();
    const long grown = residentKilobytes() - before;
    std::printf("%ld events told; longest stall of the main thread %lld ms; memory grown %ld kB\n",
        events, static_cast<long long>(heartbeat.longest().count()), grown);
    EXPECT_GT(events, 1000) << "that was no storm";
    EXPECT_LT(grown, flatMemory);

    // It still hears and does what it is for.
    plugCable();
    settle();
    giveLease(true);
    EXPECT_TRUE(eventually([this] { return savedHistory(records).size() == 1; }));
    EXPECT_EQ(tableState(), expected);
}

} // namespace quillon::test
