// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/LogCapture.h"
#include "integration/platform/qt/web/HttpTest.h"
#include "networks/ExternalIPAddress.h"

#include <QElapsedTimer>

namespace quillon::test {
namespace {

using ::testing::StartsWith;

const QString host = QStringLiteral(QUILLON_EXTERNAL_ADDRESS_HOST);
const QString earlier = QStringLiteral("198.51.100.1");

/// The external address over the real client, from the host that the program asks.
class ExternalAddress : public HttpTest
{
protected:
    ExternalAddress() { settings.set(keys::externalIPAddress, earlier); }

    void answer(const QVariantMap &rule)
    {
        web.serve((host + QStringLiteral("/?format=json")).toLatin1().constData(), rule);
    }
    void answer(const char *body) { answer({{QStringLiteral("body"), QString::fromLatin1(body)}}); }

    QString fetch() { return fetchFrom(QUrl(QStringLiteral("https://") + host)); }
    QString fetchFrom(const QUrl &service)
    {
        ExternalIPAddress address(*client, settings, service);
        const int before = settings.writeCount(keys::externalIPAddress);
        QElapsedTimer time;
        time.start();
        address.updateExternalIPAddress(true);
        EXPECT_LT(time.elapsed(), 1000) << "it was waited for";
        EXPECT_TRUE(eventually([&] {
            logged += LogCapture::taken();
            return settings.writeCount(keys::externalIPAddress) > before || !logged.isEmpty();
        }));
        return settings.getString(keys::externalIPAddress);
    }
    std::string takeLog()
    {
        return std::exchange(logged, {}).join(QLatin1Char('\n')).toStdString();
    }

    LogCapture log;
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    QStringList logged;
};

TEST_F(ExternalAddress, ComesFromTheHostThatTheProgramAsks)
{
    answer(R"({"ip":"203.0.113.7"})");
    EXPECT_EQ(fetch(), QStringLiteral("203.0.113.7"));
    const QJsonObject asked = web.log().last();
    EXPECT_EQ(asked.value(QStringLiteral("host")).toString(), host);
    EXPECT_EQ(asked.value(QStringLiteral("path")).toString(), QStringLiteral("/"));
    EXPECT_EQ(asked.value(QStringLiteral("query")).toString(), QStringLiteral("format=json"));
    EXPECT_TRUE(asked.value(QStringLiteral("secure")).toBool());
}

TEST_F(ExternalAddress, IsUnknownAfterAnAnswerWithoutUse)
{
    answer({{QStringLiteral("status"), 503},
        {QStringLiteral("body"), QStringLiteral("{\"ip\":\"203.0.113.7\"}")}});
    EXPECT_EQ(fetch(), QStringLiteral("Unknown..."));
    EXPECT_EQ(takeLog(), "quillon.networks: HTTP Error: 503");
    answer("[]");
    EXPECT_EQ(fetch(), QStringLiteral("Unknown..."));
    EXPECT_EQ(takeLog(), "quillon.networks: Response is not a valid JSON object");
    answer("<html>");
    EXPECT_EQ(fetch(), QStringLiteral("Unknown..."));
    EXPECT_THAT(takeLog(), StartsWith("quillon.networks: Error parsing JSON: "));
}

TEST_F(ExternalAddress, StaysAfterAFailedTransfer)
{
    const auto expectStays = [this](const QUrl &service) {
        EXPECT_EQ(fetchFrom(service), earlier);
        EXPECT_THAT(takeLog(), StartsWith("quillon.networks: Error making API request: "));
    };
    useSilence(300ms);
    const QUrl service(QStringLiteral("https://") + host);
    answer({{QStringLiteral("size"), QStringLiteral("endless")}});
    expectStays(service);
    answer({{QStringLiteral("body"), QStringLiteral("{\"ip\":\"203.0.113.7\"}")},
        {QStringLiteral("delay"), 100}});
    expectStays(service);
    answer({{QStringLiteral("body"), QStringLiteral("{\"ip\":\"203.0.113.7\"}")},
        {QStringLiteral("length"), 40}});
    expectStays(service);
    answer({{QStringLiteral("redirect"),
        QStringLiteral("http://") + host + QStringLiteral("/plain")}});
    expectStays(service);
    expectStays(QUrl(QStringLiteral("https://untrusted.test")));
    expectStays(QUrl(QStringLiteral("https://wrong-name.test")));
    web.stop();
    expectStays(service);
}

} // namespace
} // namespace quillon::test
