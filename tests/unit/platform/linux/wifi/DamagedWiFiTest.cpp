// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Places.h"
#include "netlink/NetlinkAnswer.h"
#include "platform/linux/wifi/WiFiReading.h"
#include "wifi/Nl80211Capture.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// One answer of a capture, to be damaged.
struct Recorded
{
    Nl80211Request request;
    quint16 family;
    quint32 sequence;
    std::vector<std::byte> bytes;
};

/// Gives the recorded answers, the damaged one in memory of exactly its size, so that the
/// sanitizers see a byte too far.
class DamagedKernel : public Nl80211Exchange
{
public:
    explicit DamagedKernel(const std::vector<Recorded> &answers)
        : m_answers(answers)
    {
    }

    void replace(std::size_t index, std::vector<std::byte> bytes)
    {
        bytes.shrink_to_fit();
        m_replaced = index;
        m_bytes = std::move(bytes);
    }

    Nl80211Messages ask(const Nl80211Request &request) override
    {
        Nl80211Messages messages;
        for (std::size_t i = 0; i < m_answers.size(); ++i) {
            const Recorded &answer = m_answers[i];
            if (answer.request == request) {
                NetlinkAnswer whole{.sequence = answer.sequence};
                whole.add(i == m_replaced ? m_bytes : answer.bytes,
                    [&](const nlmsghdr &message) { messages.add(message, answer.family); });
            }
        }
        return messages;
    }

private:
    const std::vector<Recorded> &m_answers;
    std::size_t m_replaced = 0;
    std::vector<std::byte> m_bytes;
};

std::vector<Recorded> recorded(const QString &name)
{
    QFile file(testData() + u"/wifi/"_s + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    const auto capture = Nl80211Capture::fromText(file.readAll());
    std::vector<Recorded> answers;
    if (capture) {
        capture->forEach([&](const Nl80211Request &request, ByteSpan datagram) {
            answers.push_back({request, capture->family(), Nl80211Capture::sequenceOf(datagram),
                {datagram.begin(), datagram.end()}});
        });
    }
    return answers;
}

bool isPlausible(const std::optional<WiFiInterface> &wifi)
{
    return !wifi ||
           (wifi->device.size() < 16 && !wifi->device.isEmpty() && wifi->ssid.size() <= 32 &&
               wifi->bssid.size() % 17 == 0 && wifi->channel.number >= 0 &&
               wifi->channel.number <= 233 && wifi->security >= -1 && wifi->security <= 15 &&
               wifi->activePHYMode >= 0 && wifi->activePHYMode <= 7);
}

/// Runs `damage` over each answer of a capture; gives how many readings were and were not as the
/// whole one.
struct Effect
{
    int unharmed = 0;
    int harmed = 0;
    int implausible = 0;
};

void count(Effect &effect, DamagedKernel &kernel, const std::optional<WiFiInterface> &whole)
{
    const auto wifi = readWiFi(kernel);
    ++(wifi == whole ? effect.unharmed : effect.harmed);
    effect.implausible += !isPlausible(wifi);
}

std::optional<WiFiInterface> wholeReading(const std::vector<Recorded> &answers)
{
    DamagedKernel kernel(answers);
    kernel.replace(answers.size(), {});
    return readWiFi(kernel);
}

} // namespace

TEST(DamagedWiFi, AnswersCutAtEveryLengthAreReadAsFarAsTheyGo)
{
    Effect effect;
    const auto names = QDir(testData() + u"/wifi"_s).entryList(QDir::Files);
    ASSERT_GE(names.size(), 14);
    for (const QString &name : names) {
        const std::vector<Recorded> answers = recorded(name);
        const auto whole = wholeReading(answers);
        DamagedKernel kernel(answers);
        for (std::size_t i = 0; i < answers.size(); ++i) {
            for (std::size_t size = 0; size < answers[i].bytes.size(); ++size) {
                const auto begin = answers[i].bytes.begin();
                kernel.replace(i, {begin, begin + static_cast<std::ptrdiff_t>(size)});
                count(effect, kernel, whole);
            }
        }
    }
    EXPECT_EQ(effect.implausible, 0);
    EXPECT_GT(effect.harmed, 10'000);
}

TEST(DamagedWiFi, AnyBitMayBeWrong)
{
    Effect effect;
    for (const char *name : {"wpa2-psk.nl80211", "6-ghz.nl80211"}) {
        const std::vector<Recorded> answers = recorded(QLatin1String(name));
        const auto whole = wholeReading(answers);
        ASSERT_TRUE(whole && !whole->bssid.isEmpty()) << name;
        DamagedKernel kernel(answers);
        for (std::size_t i = 0; i < answers.size(); ++i) {
            for (std::size_t bit = 0; bit < 8 * answers[i].bytes.size(); ++bit) {
                std::vector<std::byte> bytes = answers[i].bytes;
                bytes[bit / 8] ^= std::byte(1U << bit % 8);
                kernel.replace(i, std::move(bytes));
                count(effect, kernel, whole);
            }
        }
    }
    EXPECT_EQ(effect.implausible, 0);
    EXPECT_GT(effect.harmed, 1'000);
    EXPECT_GT(effect.unharmed, 1'000) << "in the neighbors, for example";
}

TEST(DamagedWiFi, AnyOctetMayBeAnEdge)
{
    Effect effect;
    const std::vector<Recorded> answers = recorded(u"enterprise.nl80211"_s);
    const auto whole = wholeReading(answers);
    DamagedKernel kernel(answers);
    for (std::size_t i = 0; i < answers.size(); ++i) {
        for (std::size_t place = 0; place < answers[i].bytes.size(); ++place) {
            for (const int edge : {0x00, 0x01, 0x7f, 0x80, 0xff}) {
                std::vector<std::byte> bytes = answers[i].bytes;
                bytes[place] = static_cast<std::byte>(edge);
                kernel.replace(i, std::move(bytes));
                count(effect, kernel, whole);
            }
        }
    }
    EXPECT_EQ(effect.implausible, 0);
    EXPECT_GT(effect.harmed, 500);
}

} // namespace quillon::test
