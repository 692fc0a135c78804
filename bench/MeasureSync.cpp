// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Requests about an account in memory that two computers share, both with their records in memory:
// what remains is the time of merging, packing and sealing.
//   fill COUNT   one computer inserts so many history records and sends them: nanoseconds from the
//                first file on, files, bytes, bytes of the same records as JSON
//   first        a computer that knows nothing reads it all: nanoseconds, records, requests,
//                nanoseconds of the longest turn
//   compact      the computer that filled it writes a snapshot: nanoseconds, files, bytes, nanoseconds
//                of the longest turn
//   requests     of a poll without news, and of a change: how many
//   day          by the program's schedule and a clock with hands: requests of one computer on a day
//                without news; milliseconds from an edit until the other computer has it, the mean and
//                the longest of 100
#include "bench/Request.h"
#include "sync/SyncSchedule.h"
#include "sync/SyncValue.h"
#include "tests/fakes/FakeScheduler.h"
#include "tests/unit/sync/SyncedComputer.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace quillon;
using namespace quillon::bench;
using test::FakeCloudAccount;

constexpr int recordsOfOneAct = 500;
constexpr qint64 firstMoment = 1'600'000'000'000; // milliseconds since 1970
constexpr qint64 betweenRecords = 60'000;

/// Fast where a test has to take back what a transaction did: nothing here fails.
class Storage : public test::MemoryReplicaStorage
{
public:
    bool transaction(const std::function<void()> &work) override
    {
        work();
        return true;
    }
};

/// One computer with such a storage.
class Computer
{
public:
    Computer(FakeCloudAccount &account, const AccountKey &key, quint64 seed)
        : random(seed)
        , cloud(account)
        , replica(storage, key, random)
        , deps{cloud, storage, replica, key, random}
    {
    }

    SyncOutcome round(SyncRound::Look look, const SyncLimits &limits = {})
    {
        std::optional<SyncOutcome> outcome;
        SyncRound running(deps, limits);
        running.start(look, [&outcome](const SyncOutcome &made) { outcome = made; });
        longestTurn = {};
        while (!cloud.waiting().isEmpty()) {
            const auto begin = Clock::now();
            cloud.answer(0);
            longestTurn = std::max(longestTurn, Clock::now() - begin);
        }
        if (!outcome || !outcome->isWell()) {
            throw std::runtime_error("the round did not end well");
        }
        return *outcome;
    }

    test::SeededRandom random;
    Storage storage;
    test::FakeCloudStorage cloud;
    Replica replica;
    SyncDeps deps;
    Clock::duration longestTurn{};
};

/// A laptop's life: a few interfaces, some hundred networks, a note now and then.
QVariantMap valuesOf(int number, test::SeededRandom &random)
{
    const auto hex = [](const QByteArray &bytes) { return QString::fromLatin1(bytes.toHex(':')); };
    const int network = number * 7 % 997;
    QVariantMap values{
        {model::connection::date,
            QDateTime::fromMSecsSinceEpoch(firstMoment + number * betweenRecords, Qt::UTC)},
        {model::connection::device, number % 3 == 0 ? u"enp1s0"_s : u"wlp2s0"_s},
        {model::connection::interface, number % 3 == 0 ? u"Ethernet"_s : u"Wi-Fi"_s},
        {model::connection::address, hex(random.bytes(6))},
    };
    if (number % 3 != 0) {
        values.insert(model::connection::ssid, u"Network %1"_s.arg(network));
        values.insert(
            model::connection::bssid, u"06:00:5e:00:%1:%2"_s.arg(network >> 8, 2, 16, QChar(u'0'))
                                          .arg(network & 255, 2, 16, QChar(u'0')));
    }
    if (number % 1000 == 0) {
        values.insert(model::connection::notes, u"asked at the reception, visit %1"_s.arg(number));
    }
    return values;
}

class Account
{
public:
    Account() { m_account.put(u"key"_s, "the wrapped key"); }

    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        if (what == "fill") {
            return fill(std::stoi(request.at(1)));
        }
        if (what == "first") {
            return first();
        }
        if (what == "compact") {
            return compact();
        }
        if (what == "requests") {
            return requests();
        }
        if (what == "day") {
            return day();
        }
        throw std::runtime_error("no such request");
    }

private:
    Words fill(int count)
    {
        qint64 json = 0;
        for (int number = 0; number < count;) {
            QList<LocalEdit> edits;
            const qint64 now = firstMoment + number * betweenRecords;
            for (; number < count && edits.size() < recordsOfOneAct; ++number) {
                const QVariantMap values = valuesOf(number, m_random);
                const RecordId id{model::Connection, QUuid::fromRfc4122(m_random.bytes(16))};
                edits.append({LocalEdit::Kind::Insert, id, synced(values), {}, {}});
                json += jsonSize(id, values);
            }
            if (!m_writer.replica.edit(edits, now)) {
                throw std::runtime_error("an edit was not taken");
            }
        }
        const auto begin = Clock::now();
        m_writer.round(SyncRound::Look::Listing, m_never);
        const auto taken = Clock::now() - begin;
        return {word(taken), std::to_string(filesOf(u".change"_s)),
            std::to_string(bytesOf(u".change"_s)), std::to_string(json)};
    }

    static RecordValues synced(const QVariantMap &values)
    {
        RecordValues synced;
        for (auto it = values.begin(); it != values.end(); ++it) {
            synced.insert(it.key(), syncValue(*it).value());
        }
        return synced;
    }

    static qint64 jsonSize(const RecordId &id, const QVariantMap &values)
    {
        QJsonObject object = QJsonObject::fromVariantMap(values);
        object.insert(u"id"_s, id.id.toString(QUuid::WithoutBraces));
        object.insert(u"entity"_s, id.entity);
        return QJsonDocument(object).toJson(QJsonDocument::Compact).size() + 1;
    }

    Words first()
    {
        Computer reader(m_account, m_key, ++m_seed);
        const auto begin = Clock::now();
        reader.round(SyncRound::Look::Listing, m_never);
        const auto taken = Clock::now() - begin;
        if (reader.storage.content.records != m_writer.storage.content.records) {
            throw std::runtime_error("the computers differ");
        }
        return {word(taken), std::to_string(reader.storage.content.shown.size()),
            std::to_string(reader.cloud.given().size()), word(reader.longestTurn)};
    }

    Words compact()
    {
        SyncLimits limits;
        limits.changeFiles = 1;
        const auto begin = Clock::now();
        m_writer.round(SyncRound::Look::Listing, limits);
        const auto taken = Clock::now() - begin;
        if (filesOf(u".change"_s) != 0) {
            throw std::runtime_error("no snapshot was written");
        }
        return {word(taken), std::to_string(filesOf(u".part"_s)),
            std::to_string(bytesOf(u".part"_s) + bytesOf(u".snapshot"_s)),
            word(m_writer.longestTurn)};
    }

    Words requests()
    {
        m_writer.round(SyncRound::Look::Head);
        m_writer.cloud.forgetGiven();
        m_writer.round(SyncRound::Look::Head);
        const auto idle = m_writer.cloud.given().size();
        m_writer.cloud.forgetGiven();
        m_writer.replica.edit(
            {{LocalEdit::Kind::Set, {}, {}, {u"key"_s, u"entry"_s}, u"value"_s}}, firstMoment);
        m_writer.round(SyncRound::Look::Head);
        return {std::to_string(idle), std::to_string(m_writer.cloud.given().size())};
    }

    Words day()
    {
        constexpr int edits = 100;
        test::FakeScheduler scheduler;
        Computer reader(m_account, m_key, ++m_seed);
        std::optional<std::chrono::milliseconds> arrival;
        SyncSchedule reading(scheduler, reader.random, [&](SyncRound::Look look, const auto &done) {
            const SyncOutcome outcome = reader.round(look);
            if (outcome.received > 0) {
                arrival = scheduler.monotonic();
            }
            done(outcome);
        });
        SyncSchedule writing(scheduler, m_writer.random,
            [this](SyncRound::Look look, const auto &done) { done(m_writer.round(look)); });
        reading.start();
        writing.start();
        std::chrono::milliseconds sum{0};
        std::chrono::milliseconds longest{0};
        for (int number = 0; number < edits; ++number) {
            scheduler.advance(13min + number * 7s);
            arrival.reset();
            const auto begin = scheduler.monotonic();
            m_writer.replica.edit(
                {{LocalEdit::Kind::Set, {}, {}, {u"key"_s, u"entry"_s}, u"value %1"_s.arg(number)}},
                scheduler.now().toMSecsSinceEpoch());
            writing.edited();
            while (!arrival) {
                scheduler.advance(100ms);
            }
            sum += *arrival - begin;
            longest = std::max(longest, *arrival - begin);
        }
        reader.cloud.forgetGiven();
        scheduler.advance(24h);
        return {std::to_string(reader.cloud.given().size()), std::to_string(sum.count() / edits),
            std::to_string(longest.count())};
    }

    qint64 bytesOf(const QString &ending) const
    {
        qint64 bytes = 0;
        for (auto it = m_account.files.begin(); it != m_account.files.end(); ++it) {
            bytes += it.key().endsWith(ending) ? it->bytes.size() : 0;
        }
        return bytes;
    }
    int filesOf(const QString &ending) const { return test::countOf(m_account, ending); }

    FakeCloudAccount m_account;
    test::SeededRandom m_random{1};
    const AccountKey m_key = AccountKey::random(m_random).value();
    Computer m_writer{m_account, m_key, 2};
    /// Without snapshots.
    const SyncLimits m_never{
        1'000'000, qint64{1} << 40, SyncLimits().partContent, SyncLimits().requests};
    quint64 m_seed = 2;
};

} // namespace

int main()
{
    Account account;
    serve([&account](const Words &request) { return account.handle(request); });
    return 0;
}
