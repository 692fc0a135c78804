// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/LinuxExposureSource.h"

#include "MadeUpService.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/owner/WiredPair.h"
#include "platform/qt/QtScheduler.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;
using Settings = QMap<QString, QVariantMap>;

const QString networkManager = u"org.freedesktop.NetworkManager"_s;
const QString nmPath = u"/org/freedesktop/NetworkManager"_s;
const QString resolvedPath = u"/org/freedesktop/resolve1"_s;

QVariant object(const QString &path)
{
    return QVariant::fromValue(QDBusObjectPath(path));
}

/// The real kernel, a bus where only those are who a test puts there, and files of its own.
class LinuxExposureSourceTest : public testing::Test
{
protected:
    LinuxExposureSourceTest() { qDBusRegisterMetaType<Settings>(); }

    ExposureFacts read(const QString &device = WiredPair::name())
    {
        std::optional<ExposureFacts> found;
        source->read(device, [&](const ExposureFacts &facts) {
            EXPECT_FALSE(found) << "told twice";
            found = facts;
        });
        EXPECT_FALSE(found) << "before the call returned";
        EXPECT_TRUE(eventually([&] { return found.has_value(); }));
        return found.value_or(ExposureFacts());
    }
    void write(const QString &path, const QByteArray &text) const
    {
        const QString whole = root.path() + path;
        ASSERT_TRUE(QDir().mkpath(whole.section(u'/', 0, -2)));
        QFile file(whole);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// One that has the interface, with a lease.
    void manage(MadeUpService &service, const Settings &settings) const
    {
        const QString device = nmPath + u"/Devices/1"_s;
        const QString lease = nmPath + u"/DHCP4Config/1"_s;
        service.answers = {
            {nmPath + u" GetDeviceByIpIface"_s, {object(device)}},
            {device + u" "_s + networkManager + u".Device"_s,
                {QVariantMap{{u"Managed"_s, true}, {u"Dhcp4Config"_s, object(lease)},
                    {u"Dhcp6Config"_s, object(u"/"_s)}}}},
            {device + u" GetAppliedConnection"_s, {QVariant::fromValue(settings), 1ULL}},
            {lease + u" "_s + networkManager + u".DHCP4Config"_s,
                {QVariantMap{{u"Options"_s,
                    QVariantMap{{u"dhcp_client_identifier"_s, u"01:02:00:00:00:00:a1"_s}}}}}},
            {nmPath + u"/Settings "_s + networkManager + u".Settings"_s,
                {QVariantMap{{u"Hostname"_s, u"laptop"_s}}}},
        };
    }

    WiredPair pair;
    QTemporaryDir root;
    PrivateBus bus;
    QtScheduler scheduler;
    std::unique_ptr<LinuxExposureSource> source =
        std::make_unique<LinuxExposureSource>(scheduler, bus.connect(), root.path());
};

TEST_F(LinuxExposureSourceTest, FindsTheAddressesOfTheKernelAndNobody)
{
    ExposureFacts facts;
    // The kernel makes its address soon after the link is up.
    ASSERT_TRUE(eventually([&] {
        facts = read();
        return facts.ipv6Addresses && !facts.ipv6Addresses->isEmpty();
    }));
    EXPECT_EQ(facts.ipv6Addresses->first().octets.toHex(), "fe80000000000000000000fffe0000a1");
    EXPECT_TRUE(facts.ipv6Addresses->first().isLinkLocal);
    EXPECT_LT(facts.ipv6Addresses->first().age, std::chrono::minutes(2));
    EXPECT_EQ(facts.owner, QString());
    EXPECT_EQ(facts.ipv4, ExposureFacts::Dhcp()) << "nobody is known, nothing is safe";
    EXPECT_EQ(facts.avahi.isTold, Answer::No) << "it does not run";
    EXPECT_EQ(facts.resolvedLlmnr.isTold, Answer::No);
    EXPECT_EQ(facts.login.isUsed, Answer::No);
}

TEST_F(LinuxExposureSourceTest, KnowsNothingOfAnInterfaceThatIsNotThere)
{
    const ExposureFacts facts = read(u"none0"_s);
    EXPECT_FALSE(facts.ipv6Addresses);
    EXPECT_EQ(facts.ipv4.isUsed, Answer::Unknown);
}

TEST_F(LinuxExposureSourceTest, AsksNetworkManagerForWhatIsInForceAndForNoSecret)
{
    MadeUpService service(bus, networkManager);
    manage(service, {{u"ipv4"_s, {{u"method"_s, u"auto"_s}, {u"dhcp-hostname"_s, u"other"_s}}},
                        {u"802-1x"_s, {{u"identity"_s, u"alice"_s}}}});
    const ExposureFacts facts = read();
    EXPECT_EQ(facts.owner, u"NetworkManager"_s);
    EXPECT_EQ(facts.hostName, u"laptop"_s);
    EXPECT_EQ(facts.ipv4.name, u"other"_s);
    EXPECT_EQ(facts.ipv4.identifier.toHex(), "010200000000a1");
    EXPECT_EQ(facts.ipv4.identifierMade, Made::OfAddressInUse);
    EXPECT_EQ(facts.login.identity, u"alice"_s);
    EXPECT_FALSE(service.asked.contains(u"GetSecrets"_s));
}

TEST_F(LinuxExposureSourceTest, LeavesAsideAConnectionThatNetworkManagerHasMadeUp)
{
    MadeUpService service(bus, networkManager);
    manage(service, {{u"ipv4"_s, {{u"method"_s, u"manual"_s}}}});
    const QString active = nmPath + u"/ActiveConnection/1"_s;
    service.answers[active + u' ' + networkManager + u".Connection.Active"_s] = {
        QVariantMap{{u"StateFlags"_s, 0x80U}}};
    auto &device = service.answers[nmPath + u"/Devices/1 "_s + networkManager + u".Device"_s];
    device = {QVariantMap{{u"Managed"_s, true}, {u"ActiveConnection"_s, object(active)}}};
    EXPECT_EQ(read().owner, QString());
    EXPECT_EQ(read().ipv4.isUsed, Answer::Unknown) << "somebody else may use DHCP";
    service.answers.remove(active + u' ' + networkManager + u".Connection.Active"_s);
    EXPECT_EQ(read().owner, u"NetworkManager"_s);
}

TEST_F(LinuxExposureSourceTest, TakesWhatCouldNotBeReadForUnknown)
{
    MadeUpService service(bus, networkManager);
    manage(service, {});
    service.answers.remove(nmPath + u"/Devices/1 GetAppliedConnection"_s);
    const ExposureFacts facts = read();
    EXPECT_EQ(facts.owner, u"NetworkManager"_s);
    EXPECT_EQ(facts.ipv4.sendsName, Answer::Unknown);
    EXPECT_EQ(facts.login.isUsed, Answer::Unknown);
}

TEST_F(LinuxExposureSourceTest, SurvivesAnswersOfAnotherShape)
{
    MadeUpService service(bus, networkManager);
    manage(service, {});
    for (auto &answer : service.answers) {
        if (answer.value(0).typeId() != qMetaTypeId<QDBusObjectPath>()) {
            answer = {QStringList{u"x"_s}, 7};
        }
    }
    EXPECT_EQ(read().owner, QString()) << "nothing says that it manages the interface";
}

TEST_F(LinuxExposureSourceTest, GoesOnWithoutWhoHangs)
{
    MadeUpService service(bus, u"org.freedesktop.Avahi"_s);
    service.isHanging = true;
    EXPECT_EQ(read().avahi.isTold, Answer::Unknown) << "it runs, and does not say";
}

TEST_F(LinuxExposureSourceTest, AsksAvahiAndReadsItsSettings)
{
    MadeUpService service(bus, u"org.freedesktop.Avahi"_s);
    service.answers = {{u"/ GetHostNameFqdn"_s, {u"laptop-2.local"_s}}};
    const ExposureFacts told = read();
    EXPECT_EQ(told.avahi.isTold, Answer::Yes);
    EXPECT_EQ(told.avahi.name, u"laptop-2.local"_s);
    for (const QByteArray &silent :
        {"[server]\ndeny-interfaces=x, own0\n"_ba, "[server]\nallow-interfaces=x\n"_ba,
            "[publish]\ndisable-publishing=yes\n"_ba, "[publish]\npublish-addresses=no\n"_ba}) {
        write(u"/etc/avahi/avahi-daemon.conf"_s, silent);
        EXPECT_EQ(read().avahi.isTold, Answer::No) << silent.constData();
    }
    write(u"/etc/avahi/avahi-daemon.conf"_s, "[server]\nallow-interfaces=own0\n");
    EXPECT_EQ(read().avahi.isTold, Answer::Yes);
}

TEST_F(LinuxExposureSourceTest, AsksResolvedForComputerAndLink)
{
    MadeUpService service(bus, u"org.freedesktop.resolve1"_s);
    const QString link = resolvedPath + u"/link/_37"_s;
    const QString ofComputer = resolvedPath + u" org.freedesktop.resolve1.Manager"_s;
    const QString ofLink = link + u" org.freedesktop.resolve1.Link"_s;
    service.answers = {{resolvedPath + u" GetLink"_s, {object(link)}},
        {ofComputer, {QVariantMap{{u"MulticastDNS"_s, u"yes"_s}, {u"LLMNR"_s, u"yes"_s},
                         {u"LLMNRHostname"_s, u"laptop"_s}}}},
        {ofLink, {QVariantMap{{u"MulticastDNS"_s, u"resolve"_s}, {u"LLMNR"_s, u"yes"_s}}}}};
    const ExposureFacts facts = read();
    EXPECT_EQ(facts.resolvedMdns.isTold, Answer::No);
    EXPECT_EQ(facts.resolvedLlmnr.isTold, Answer::Yes);
    EXPECT_EQ(facts.resolvedLlmnr.name, u"laptop"_s);
    service.answers.remove(ofLink);
    EXPECT_EQ(read().resolvedLlmnr.isTold, Answer::Unknown);
    service.answers[ofComputer] = {QVariantMap{{u"LLMNR"_s, u"no"_s}}};
    EXPECT_EQ(read().resolvedLlmnr.isTold, Answer::No) << "whatever the link says";
}

TEST_F(LinuxExposureSourceTest, IsNotToldWhenItIsGone)
{
    bool isTold = false;
    source->read(WiredPair::name(), [&](const ExposureFacts &) { isTold = true; });
    source.reset();
    EXPECT_FALSE(eventually([&] { return isTold; }, std::chrono::milliseconds(300)));
}

} // namespace
} // namespace quillon::test
