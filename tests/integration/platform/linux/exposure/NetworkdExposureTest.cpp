// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/Traces.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/owner/WiredPair.h"
#include "platform/linux/exposure/LinuxExposureSource.h"
#include "platform/qt/QtScheduler.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Kind = Trace::Kind;
using Lasts = Trace::Lasts;

const QString folder = u"/etc/systemd/network"_s;
const QString before = u"02:00:00:00:00:a1"_s;
const QString after = u"02:00:00:00:00:a2"_s;

struct Heard
{
    QString sender;
    QString kind; ///< as told.py calls it
    QString value;
};

/// The real systemd-networkd, on the sandbox's system bus and with its files, at a wire whose far
/// end hears what it tells.
class NetworkdExposureTest : public testing::Test
{
protected:
    NetworkdExposureTest()
    {
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        m_farSide.start(u"/usr/bin/python3"_s,
            {QStringLiteral(QUILLON_FAR_SIDE), QStringLiteral(QUILLON_LAB_TESTS), u"far0"_s});
        EXPECT_TRUE(eventually([this] { return m_farSide.canReadLine(); }));
    }
    ~NetworkdExposureTest() override
    {
        for (QProcess *process : {&m_networkd, &m_farSide}) {
            process->kill();
            process->waitForFinished();
        }
    }

    void begin(const QByteArray &settings)
    {
        QFile file(folder + u"/10-own.network"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Match]\nName=own0\n[Network]\nDHCP=ipv4\n" + settings);
        file.close();
        QDir().mkpath(u"/run/systemd"_s);
        m_networkd.setStandardErrorFile(QProcess::nullDevice());
        m_networkd.start(u"/usr/lib/systemd/systemd-networkd"_s, QStringList());
        ASSERT_TRUE(m_networkd.waitForStarted());
    }
    /// What a sender told of a kind, each once.
    QStringList heard(const QString &sender, const QString &kind)
    {
        while (m_farSide.canReadLine()) {
            const auto words = QString::fromUtf8(m_farSide.readLine()).trimmed().split(u'\t');
            if (words.size() == 3) {
                m_heard.append({words.at(0), words.at(1), words.at(2)});
            }
        }
        QStringList values;
        for (const Heard &one : std::as_const(m_heard)) {
            if (one.sender == sender && one.kind == kind && !values.contains(one.value)) {
                values.append(one.value);
            }
        }
        return values;
    }
    /// Until the sender has asked for an address, its IPv6 address is taken, and the lease is
    /// written down, which is after the last answer.
    void waitFor(const QString &sender)
    {
        EXPECT_TRUE(eventually([&] {
            return !heard(sender, u"DHCP parameters"_s).isEmpty() &&
                   !heard(sender, u"IPv6"_s).isEmpty();
        })) << sender.toStdString();
        EXPECT_TRUE(eventually([&] {
            return values(traces(sender), Kind::DhcpIdentifier) ==
                   heard(sender, u"DHCP identifier"_s);
        })) << sender.toStdString();
    }
    QList<Trace> traces(const QString &inUse)
    {
        std::optional<ExposureFacts> facts;
        m_source.read(WiredPair::name(), [&](const ExposureFacts &found) { facts = found; });
        EXPECT_TRUE(eventually([&] { return facts.has_value(); }));
        return tracesOf(WiredPair::name(), facts.value_or(ExposureFacts()),
            {.inUse = linkOctets(inUse), .hardware = linkOctets(before)});
    }
    static Trace of(const QList<Trace> &traces, Kind kind)
    {
        const auto found = std::ranges::find(traces, kind, &Trace::kind);
        return found == traces.end() ? Trace{.kind = kind, .value = u"none"_s} : *found;
    }
    /// That of the machine, without what stands before it, which is made for the interface.
    static QString duidIn(const QStringList &identifiers)
    {
        const QString identifier = identifiers.value(0);
        EXPECT_TRUE(identifier.startsWith("ff:"_L1)) << identifier.toStdString();
        return identifier.mid(15);
    }
    static QStringList values(const QList<Trace> &traces, Kind kind)
    {
        QStringList found;
        for (const Trace &trace : traces) {
            if (trace.kind == kind) {
                found.append(trace.value);
            }
        }
        return found;
    }

private:
    QtScheduler m_scheduler;
    LinuxExposureSource m_source{m_scheduler};
    WiredPair m_pair;
    QProcess m_farSide;
    QProcess m_networkd;
    QList<Heard> m_heard;

protected:
    WiredPair &pair() { return m_pair; }
};

TEST_F(NetworkdExposureTest, SaysWhatIsHeardBeforeAndAfterAChange)
{
    begin("[DHCPv4]\nHostname=harbor\n");
    waitFor(before);
    const auto first = traces(before);
    EXPECT_EQ(of(first, Kind::DhcpName).owner, u"systemd-networkd"_s);
    EXPECT_EQ(heard(before, u"DHCP name"_s), values(first, Kind::DhcpName));
    EXPECT_EQ(of(first, Kind::DhcpName).value, u"harbor"_s);
    EXPECT_EQ(heard(before, u"DHCP identifier"_s), values(first, Kind::DhcpIdentifier));
    EXPECT_EQ(of(first, Kind::DhcpIdentifier).lasts, Lasts::Always);
    for (const QString &address : heard(before, u"IPv6"_s)) {
        EXPECT_TRUE(values(first, Kind::Ipv6Address).contains(address)) << address.toStdString();
    }

    pair().change();
    waitFor(after);
    const auto second = traces(after);
    EXPECT_EQ(heard(after, u"DHCP name"_s), values(second, Kind::DhcpName)) << "it stays";
    EXPECT_EQ(heard(after, u"DHCP identifier"_s), values(second, Kind::DhcpIdentifier));
    EXPECT_EQ(
        duidIn(values(second, Kind::DhcpIdentifier)), duidIn(values(first, Kind::DhcpIdentifier)))
        << "it stays, as was said";
    for (const QString &address : heard(after, u"IPv6"_s)) {
        EXPECT_TRUE(values(second, Kind::Ipv6Address).contains(address)) << address.toStdString();
        EXPECT_FALSE(values(first, Kind::Ipv6Address).contains(address))
            << "it changes with the address, as was said";
    }
    EXPECT_EQ(of(first, Kind::Ipv6Address).lasts, Lasts::FollowsAddress);
}

TEST_F(NetworkdExposureTest, SaysThatAnIdentifierFollowsTheAddress)
{
    begin("[DHCPv4]\nClientIdentifier=mac\nSendHostname=no\n");
    waitFor(before);
    const auto first = traces(before);
    EXPECT_EQ(heard(before, u"DHCP identifier"_s), values(first, Kind::DhcpIdentifier));
    EXPECT_EQ(of(first, Kind::DhcpIdentifier).lasts, Lasts::FollowsAddress);
    EXPECT_EQ(heard(before, u"DHCP name"_s), QStringList());
    EXPECT_EQ(values(first, Kind::DhcpName), QStringList());

    pair().change();
    waitFor(after);
    const auto second = traces(after);
    EXPECT_EQ(heard(after, u"DHCP identifier"_s), values(second, Kind::DhcpIdentifier));
    EXPECT_NE(values(second, Kind::DhcpIdentifier), values(first, Kind::DhcpIdentifier));
    EXPECT_EQ(heard(after, u"DHCP name"_s), QStringList());
}

} // namespace
} // namespace quillon::test
