// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "integration/app/Heartbeat.h"
#include "integration/app/RoadTest.h"
#include "integration/platform/linux/Commands.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace quillon::test {

using namespace std::chrono_literals;

namespace {

constexpr long eventsPerSecond = 10'000;
constexpr long flatMemory = 16 * 1024; // kilobytes; a queue of all these events would need more

long residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
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
        if (address[QLatin1String("family")] == QLatin1String("inet")) {
            return address[QLatin1String("local")].toString();
        }
    }
    return {};
}

/// Link address, state and first IPv4 address of each, as another program reads them.
QMap<QString, QStringList> kernelState(const QStringList &devices)
{
    QMap<QString, QStringList> states;
    const auto links = QJsonDocument::fromJson(command(QStringLiteral("ip -j addr"))).array();
    for (const QJsonValue &link : links) {
        const QString device = link[QLatin1String("ifname")].toString();
        const bool up = link[QLatin1String("operstate")] == QLatin1String("UP");
        if (devices.contains(device)) {
            states.insert(device, {link[QLatin1String("address")].toString(),
                                      up ? QStringLiteral("active") : QStringLiteral("inactive"),
                                      firstIPv4(link[QLatin1String("addr_info")].toArray())});
        }
    }
    return states;
}

} // namespace

class StormTest : public RoadTest
{
protected:
    static inline const QStringList stormy{QStringLiteral("eth10"), QStringLiteral("eth11"),
        QStringLiteral("eth12"), QStringLiteral("eth13")};

    void SetUp() override
    {
        RoadTest::SetUp();
        for (const QString &device : stormy) {
            administrator().run(QStringLiteral("ip link add %1 type veth peer name far-%1\n"
                                               "ip link set far-%1 up; ip link set %1 up")
                                    .arg(device));
        }
    }
    void TearDown() override
    {
        for (const QString &device : stormy) {
            administrator().run(QStringLiteral("ip link del %1").arg(device));
        }
        RoadTest::TearDown();
    }

    /// Lets it blow while the program's main loop runs, and gives the number of events told.
    long storm(std::chrono::seconds time)
    {
        administrator().start(
            QStringLiteral("%1 %2 %3 %4")
                .arg(QStringLiteral(QUILLON_LINK_STORM), QString::number(eventsPerSecond),
                    QString::number(time.count()), stormy.join(QLatin1Char(' '))));
        EXPECT_TRUE(eventually([] { return administrator().hasEnded(); }, 60s));
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
    EXPECT_EQ(
        expected.value(stormy.at(3)), (QStringList{QStringLiteral("02:57:00:00:00:03"),
                                          QStringLiteral("active"), QStringLiteral("10.99.3.1")}));
    EXPECT_TRUE(eventually([&] { return tableState() == expected; }, 10s));
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
