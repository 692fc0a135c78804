// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/RoadTest.h"

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "integration/platform/linux/Commands.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace quillon::test {

using namespace std::chrono_literals;

namespace {

/// The rules are checked one second after the start; the program's clock waits for what is due.
constexpr auto firstCheck = 2s;

} // namespace

void RoadTest::SetUp()
{
    administrator().run(QStringLiteral("ip route del default 2>/dev/null || true\n"
                                       "ip link add %1 address %2 type veth peer name far-%1\n"
                                       "ip link set far-%1 addrgenmode none\n"
                                       "ip link set %1 addrgenmode none\n"
                                       "ip link set %1 up")
                            .arg(card, factoryAddress));
    watch = std::make_unique<AddressWatch>();
}

void RoadTest::TearDown()
{
    program.reset();
    watch.reset();
    administrator().run(QStringLiteral("ip link del far-%1 2>/dev/null || true").arg(card));
}

void RoadTest::startProgram(int speed)
{
    program = std::make_unique<ComposedProgram>(folder.path(), speed);
    program->notifications.addObserver(
        notifications::networkChanged, [this](const auto &) { ++m_changesTold; });
    program->launch();
    letPass(firstCheck);
    ASSERT_TRUE(program->devices().contains(card));
    settle();
}

void RoadTest::plugCable()
{
    // The kernel follows a cable a moment later.
    administrator().run(
        QStringLiteral("ip link set far-%1 up\n"
                       "until grep -q up /sys/class/net/%1/operstate; do sleep 0.005; done")
            .arg(card));
}

void RoadTest::pullCable()
{
    administrator().run(QStringLiteral("ip link set far-%1 down").arg(card));
}

void RoadTest::giveLease(bool withDefaultRoute)
{
    // At once, as a network service does it.
    QString batch = QStringLiteral("addr add 198.51.100.5/24 dev %1\n").arg(card);
    if (withDefaultRoute) {
        batch += QStringLiteral("route add default via 198.51.100.1 dev %1\n").arg(card);
    }
    administrator().run(QStringLiteral("printf '%1' | ip -batch -").arg(batch));
}

void RoadTest::settle()
{
    // Far longer than a burst of events may last.
    int before = -1;
    while (before != m_changesTold) {
        before = m_changesTold;
        eventually([&] { return m_changesTold != before; }, 400ms);
    }
}

void RoadTest::letPass(std::chrono::seconds time)
{
    const QDateTime end = program->now().addSecs(time.count());
    ASSERT_TRUE(eventually([&] { return program->now() >= end; }, 60s));
}

QVariantMap RoadTest::ruleInForce() const
{
    return program->record(card).value(record::rule).toMap();
}

qlonglong RoadTest::hasRule() const
{
    return program->record(card).value(record::hasRule).toLongLong();
}

QString RoadTest::status() const
{
    return program->record(card).value(record::status).toString();
}

QMap<QString, QString> RoadTest::kernelAddresses()
{
    QMap<QString, QString> addresses;
    const auto links = QJsonDocument::fromJson(command(QStringLiteral("ip -j link"))).array();
    for (const QJsonValue &link : links) {
        addresses.insert(
            link[QLatin1String("ifname")].toString(), link[QLatin1String("address")].toString());
    }
    return addresses;
}

} // namespace quillon::test
