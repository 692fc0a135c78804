// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/EndToEndTest.h"

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "integration/platform/linux/Commands.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

/// The rules are checked one second after the start; the program's clock waits for what is due.
constexpr auto firstCheck = 2s;

} // namespace

void EndToEndTest::SetUp()
{
    administrator().run(u"ip route del default 2>/dev/null || true\n"
                        "ip link add %1 address %2 type veth peer name far-%1\n"
                        "ip link set far-%1 addrgenmode none\n"
                        "ip link set %1 addrgenmode none\n"
                        "ip link set %1 up"_s.arg(card, factoryAddress));
    watch = std::make_unique<AddressWatch>();
}

void EndToEndTest::TearDown()
{
    program.reset();
    watch.reset();
    administrator().run(u"ip link del far-%1 2>/dev/null || true"_s.arg(card));
}

void EndToEndTest::startProgram(int speed)
{
    program = std::make_unique<ComposedProgram>(folder.path(), speed);
    program->notifications.addObserver(
        notifications::networkChanged, [this](const auto &) { ++m_changesTold; });
    program->launch();
    letPass(firstCheck);
    ASSERT_TRUE(program->devices().contains(card));
    settle();
}

void EndToEndTest::plugCable()
{
    // The kernel follows a cable a moment later.
    administrator().run(
        u"ip link set far-%1 up\n"
        "until grep -q up /sys/class/net/%1/operstate; do sleep 0.005; done"_s.arg(card));
}

void EndToEndTest::pullCable()
{
    administrator().run(u"ip link set far-%1 down"_s.arg(card));
}

void EndToEndTest::giveLease(bool withDefaultRoute)
{
    // At once, as a network service does it.
    QString batch = u"addr add 198.51.100.5/24 dev %1\n"_s.arg(card);
    if (withDefaultRoute) {
        batch += u"route add default via 198.51.100.1 dev %1\n"_s.arg(card);
    }
    administrator().run(u"printf '%1' | ip -batch -"_s.arg(batch));
}

void EndToEndTest::settle()
{
    // Far longer than a burst of events may last.
    int before = -1;
    while (before != m_changesTold) {
        before = m_changesTold;
        eventually([&] { return m_changesTold != before; }, 400ms);
    }
}

void EndToEndTest::letPass(std::chrono::seconds time)
{
    const QDateTime end = program->now().addSecs(time.count());
    ASSERT_TRUE(eventually([&] { return program->now() >= end; }, 5min));
}

QVariantMap EndToEndTest::ruleInForce() const
{
    return program->record(card).value(record::rule).toMap();
}

qlonglong EndToEndTest::hasRule() const
{
    return program->record(card).value(record::hasRule).toLongLong();
}

QString EndToEndTest::status() const
{
    return program->record(card).value(record::status).toString();
}

QMap<QString, QString> EndToEndTest::kernelAddresses()
{
    QMap<QString, QString> addresses;
    const auto links = QJsonDocument::fromJson(command(u"ip -j link"_s)).array();
    for (const QJsonValue &link : links) {
        addresses.insert(link["ifname"_L1].toString(), link["address"_L1].toString());
    }
    return addresses;
}

} // namespace quillon::test
