// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SealedFile.h"

#include "SeededRandom.h"
#include "sync/AccountKey.h"
#include "sync/ChangesFormat.h"
#include "sync/Compression.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SealedFileTest : public ::testing::Test
{
protected:
    FileProblem problem(const QByteArray &bytes, const QString &name = u"a.change"_s) const
    {
        const auto read = opened(bytes, name, key);
        EXPECT_TRUE(std::holds_alternative<FileProblem>(read));
        return std::holds_alternative<FileProblem>(read) ? std::get<FileProblem>(read)
                                                         : FileProblem::NotKept;
    }

    SeededRandom random{5};
    const AccountKey key = AccountKey::random(random).value();
    const QByteArray content = "content, content, content";
    const QByteArray file = sealed(content, u"a.change"_s, key, random);
};

TEST_F(SealedFileTest, ContentComesBack)
{
    EXPECT_EQ(std::get<QByteArray>(opened(file, u"a.change"_s, key)), content);
    EXPECT_FALSE(file.contains("content"));
}

TEST_F(SealedFileTest, SameContentIsSealedDifferentlyEachTime)
{
    EXPECT_NE(sealed(content, u"a.change"_s, key, random), file);
}

TEST_F(SealedFileTest, NoBitCanBeChangedAndNoByteIsMissing)
{
    for (qsizetype index = 0; index < file.size(); ++index) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray changed = file;
            changed[index] = char(changed.at(index) ^ (1 << bit));
            EXPECT_TRUE(std::holds_alternative<FileProblem>(opened(changed, u"a.change"_s, key)));
        }
        EXPECT_EQ(problem(file.first(index)), FileProblem::Damaged);
    }
    EXPECT_EQ(problem(file + 'x'), FileProblem::Damaged);
}

TEST_F(SealedFileTest, IsThatOfItsNameAndAccount)
{
    EXPECT_EQ(problem(file, u"b.change"_s), FileProblem::Damaged);
    const AccountKey other = AccountKey::random(random).value();
    const auto read = opened(file, u"a.change"_s, other);
    EXPECT_EQ(std::get<FileProblem>(read), FileProblem::Damaged);
}

TEST_F(SealedFileTest, NewerVersionIsToldApart)
{
    QByteArray newer = file;
    newer[3] = 2;
    EXPECT_EQ(problem(newer), FileProblem::Newer);
}

TEST_F(SealedFileTest, BombIsRefusedWithoutUnpackingIt)
{
    const QByteArray bomb =
        sealed(QByteArray(longestContent + 1, '\0'), u"a.change"_s, key, random);
    EXPECT_LT(bomb.size(), longestContent / 100);
    EXPECT_EQ(problem(bomb), FileProblem::TooLarge);
    EXPECT_EQ(problem(QByteArray(longestSealedFile + 1, 'Q')), FileProblem::TooLarge);
    EXPECT_FALSE(decompressed(compressed(QByteArray(1000, 'x')), 999));
    EXPECT_TRUE(decompressed(compressed(QByteArray(1000, 'x')), 1000));
}

/// Records as a history has them: addresses and identities are random, networks come again.
struct History
{
    History(int count, SeededRandom &random)
    {
        qint64 time = 1'700'000'000'000;
        for (int i = 0; i < count; ++i) {
            time += random.below(40'000'000);
            const int network = random.below(10);
            const auto address = [](const QByteArray &bytes) {
                return QString::fromLatin1(bytes.toHex(':'));
            };
            const QUuid id = QUuid::fromRfc4122(random.bytes(16));
            const QMap<QString, QString> texts{{u"device"_s, u"wlan0"_s},
                {u"interface"_s, u"Wi-Fi"_s}, {u"address"_s, address(random.bytes(6))},
                {u"ssid"_s, u"Network number %1"_s.arg(network)},
                {u"bssid"_s, address(QByteArray(6, char(network * 25)))}};
            RecordState state;
            state.inserted = {time + 3, 0, 77};
            state.attributes.insert(u"date"_s, {SyncDate{time}, state.inserted});
            QJsonObject object{{u"id"_s, id.toString(QUuid::WithoutBraces)},
                {u"date"_s,
                    QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODateWithMs)}};
            for (auto it = texts.begin(); it != texts.end(); ++it) {
                state.attributes.insert(it.key(), {*it, state.inserted});
                object.insert(it.key(), *it);
            }
            changes.records.insert({u"Connection"_s, id}, state);
            array.append(object);
        }
    }

    qsizetype jsonSize() const
    {
        return QJsonDocument(array).toJson(QJsonDocument::Compact).size();
    }

    SyncChanges changes;
    QJsonArray array;
};

TEST_F(SealedFileTest, HistoryTakesAQuarterOfItsJson)
{
    for (const int count : {100, 10'000}) {
        const History history(count, random);
        const QByteArray made = sealed(writtenChanges(history.changes), u"a.part"_s, key, random);
        RecordProperty("bytes_per_record_of_" + std::to_string(count),
            std::to_string(double(made.size()) / count));
        RecordProperty("bytes_of_json_of_" + std::to_string(count),
            std::to_string(double(history.jsonSize()) / count));
        EXPECT_LE(made.size() * 4, history.jsonSize()) << count;
    }
}

} // namespace
} // namespace quillon::test
