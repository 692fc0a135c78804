// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/LogCapture.h"
#include "integration/platform/qt/web/HttpTest.h"
#include "networks/ExternalIPAddress.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::StartsWith;

const QString host = QStringLiteral(QUILLON_EXTERNAL_ADDRESS_HOST);
const QString earlier = u"198.51.100.1"_s;

/// The external address over the real client, from the host that the program asks.
class ExternalAddress : public HttpTest
{
protected:
    ExternalAddress() { settings.set(keys::externalIPAddress, earlier); }

    void answer(const QVariantMap &rule)
    {
        web.serve((host + u"/?format=json"_s).toLatin1().constData(), rule);
    }
    void answer(const char *body) { answer({{u"body"_s, QString::fromLatin1(body)}}); }

    QString fetch() { return fetchFrom(QUrl(u"https://"_s + host)); }
    QString fetchFrom(const QUrl &service)
    {
        ExternalIPAddress address(*client, settings, service);
        const int before = settings.writeCount(keys::externalIPAddress);
        address.updateExternalIPAddress(true);
        EXPECT_EQ(settings.writeCount(keys::externalIPAddress), before) << "it was waited for";
        EXPECT_EQ(LogCapture::taken(), QStringList()) << "it was waited for";
        EXPECT_TRUE(eventually([&] {
            logged += LogCapture::taken();
            return settings.writeCount(keys::externalIPAddress) > before || !logged.isEmpty();
        }));
        return settings.getString(keys::externalIPAddress);
    }
    std::string takeLog() { return std::exchange(logged, {}).join(u'\n').toStdString(); }

    LogCapture log;
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    QStringList logged;
};

TEST_F(ExternalAddress, ComesFromTheHostThatTheProgramAsks)
{
    answer(R"({"ip":"203.0.113.7"})");
    EXPECT_EQ(fetch(), u"203.0.113.7"_s);
    const QJsonObject asked = web.log().last();
    EXPECT_EQ(asked.value(u"host"_s).toString(), host);
    EXPECT_EQ(asked.value(u"path"_s).toString(), u"/"_s);
    EXPECT_EQ(asked.value(u"query"_s).toString(), u"format=json"_s);
    EXPECT_TRUE(asked.value(u"secure"_s).toBool());
}

TEST_F(ExternalAddress, IsUnknownAfterAnAnswerWithoutUse)
{
    answer({{u"status"_s, 503}, {u"body"_s, u"{\"ip\":\"203.0.113.7\"}"_s}});
    EXPECT_EQ(fetch(), u"Unknown..."_s);
    EXPECT_EQ(takeLog(), "quillon.networks: HTTP Error: 503");
    answer("[]");
    EXPECT_EQ(fetch(), u"Unknown..."_s);
    EXPECT_EQ(takeLog(), "quillon.networks: Response is not a valid JSON object");
    answer("<html>");
    EXPECT_EQ(fetch(), u"Unknown..."_s);
    EXPECT_THAT(takeLog(), StartsWith("quillon.networks: Error parsing JSON: "));
}

TEST_F(ExternalAddress, StaysAfterAFailedTransfer)
{
    const auto expectStays = [this](const QUrl &service) {
        EXPECT_EQ(fetchFrom(service), earlier);
        EXPECT_THAT(takeLog(), StartsWith("quillon.networks: Error making API request: "));
    };
    useSilence(300ms);
    const QUrl service(u"https://"_s + host);
    answer({{u"size"_s, u"endless"_s}});
    expectStays(service);
    answer({{u"body"_s, u"{\"ip\":\"203.0.113.7\"}"_s}, {u"delay"_s, 100}});
    expectStays(service);
    answer({{u"body"_s, u"{\"ip\":\"203.0.113.7\"}"_s}, {u"length"_s, 40}});
    expectStays(service);
    answer({{u"redirect"_s, u"http://"_s + host + u"/plain"_s}});
    expectStays(service);
    expectStays(QUrl(u"https://untrusted.test"_s));
    expectStays(QUrl(u"https://wrong-name.test"_s));
    web.stop();
    expectStays(service);
}

} // namespace
} // namespace quillon::test
