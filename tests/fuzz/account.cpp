// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Require.h"
#include "sync/ChangesFormat.h"
#include "sync/SealedFile.h"
#include "unit/sync/SyncedComputer.h"

#include <QLoggingCategory>

#include <cstdint>

// The bytes are a folder of files, the head among them, as somebody may have put it into the
// account; some of the files are sealed as ours are. Two rounds of a computer go over it.

namespace quillon::test {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype mostFiles = 40;

QString nameOf(quint8 kind, quint8 number)
{
    const quint64 writer = number / 16 + 1;
    switch (kind % 6) {
    case 0:
        return u"head"_s;
    case 1:
        return AccountFile{AccountFile::Kind::Snapshot, writer, 0}.name();
    case 2:
        return AccountFile{AccountFile::Kind::Part, writer, quint64(number % 16)}.name();
    case 3:
        return QString::number(number, 16) + u".change"_s;
    default:
        return AccountFile{AccountFile::Kind::Change, writer, quint64(number % 16)}.name();
    }
}

/// Of each file three bytes say what it is and how long.
void fill(FakeCloudAccount &account, QByteArrayView bytes, const AccountKey &key)
{
    SeededRandom random(1);
    while (bytes.size() >= 3 && account.files.size() < mostFiles) {
        const auto kind = quint8(bytes[0]);
        const QString name = nameOf(kind, quint8(bytes[1]));
        const qsizetype length = std::min<qsizetype>(quint8(bytes[2]), bytes.size() - 3);
        const QByteArray content = bytes.sliced(3, length).toByteArray();
        account.put(name, kind & 0x80 ? content : sealed(content, name, key, random));
        bytes = bytes.sliced(3 + length);
    }
}

} // namespace

} // namespace quillon::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace quillon;
    using namespace quillon::test;
    static const AccountKey key = AccountKey::fromBytes(QByteArray(AccountKey::size, 'k')).value();
    QLoggingCategory::setFilterRules(QStringLiteral("quillon.sync=false"));
    FakeCloudAccount account;
    account.put(QStringLiteral("key"), "the wrapped key");
    fill(account, QByteArrayView(data, qsizetype(size)), key);
    const auto before = account.files;

    SyncedComputer computer(account, key, 3);
    computer.insert(1, QStringLiteral("mine"));
    const SyncOutcome first = computer.round();
    require(first.isWell(), "nothing in a folder is an error of the account's");
    require(computer.storage.record(ruleId(1)).isPresent() ==
                computer.storage.content.shown.contains(ruleId(1)),
        "what is there is shown, and nothing else");
    require(!computer.replica.hasUnsent(), "what was done here is sent");
    for (auto it = before.begin(); it != before.end(); ++it) {
        require(it.key() == QLatin1String("head") || account.files.value(it.key()) == *it,
            "nobody's file is touched");
    }
    computer.cloud.forgetGiven();
    const SyncOutcome second = computer.round();
    require(second.refused.isEmpty(), "a file that is refused is told once");
    require(second.received == 0, "and nothing is merged twice");
    require(computer.cloud.given().size() <= 2 * before.size() + 40, "requests are bounded");
    require(computer.cloud.mostWaiting() <= computer.limits.requests, "also those at once");
    return 0;
}
