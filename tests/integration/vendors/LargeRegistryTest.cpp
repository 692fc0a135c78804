// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/RegistryCsv.h"
#include "vendors/VendorDatabase.h"
#include "vendors/VendorTable.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The most memory that this program has had, in kilobytes.
qint64 peakMemory()
{
    QFile file(u"/proc/self/status"_s);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).trimmed().split(' ').first().toLongLong();
        }
    }
    ADD_FAILURE() << "the kernel does not say";
    return 0;
}

TEST(LargeRegistry, OfAHundredMegabytesIsImportedFlatInMemory)
{
    const QTemporaryDir folder;
    const QString csv = folder.filePath(u"oui.csv"_s);
    const QString database = folder.filePath(u"temp.db"_s);
    constexpr qint64 size = 100'000'000;
    QFile file(csv);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Registry,Assignment,Organization Name,Organization Address\r\n");
    // Long rows, so that it is the size that is tested and not the patience.
    const QByteArray address(900, 'x');
    qlonglong rows = 0;
    while (file.pos() < size) {
        const QByteArray number = QByteArray::number(rows, 16).rightJustified(6, '0');
        file.write("MA-L," + number + ",\"Maker " + number + ", Inc.\",\"" + address + "\"\r\n");
        ++rows;
    }
    file.close();
    const qint64 before = peakMemory();
    ASSERT_TRUE(fillVendorTable(csv, database));
    EXPECT_EQ(VendorDatabase(database).count(), rows);
    const QString live = folder.filePath(u"oui.db"_s);
    ASSERT_TRUE(QFile(live).open(QIODevice::WriteOnly));
    EXPECT_EQ(VendorDatabase(live).rewriteFrom(database), VendorDatabase::Rewriting::Done);
    EXPECT_LT(peakMemory() - before, 16 * 1024);
    EXPECT_EQ(VendorDatabase(live).count(), rows);
}

TEST(LargeRegistry, OfOneEndlessFieldIsRefusedBeforeItTakesTheMemory)
{
    const QTemporaryDir folder;
    const QString csv = folder.filePath(u"oui.csv"_s);
    QFile file(csv);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Assignment\n\"");
    const QByteArray piece(1'000'000, 'x');
    for (int i = 0; i < 100; ++i) {
        file.write(piece);
    }
    file.close();
    const qint64 before = peakMemory();
    EXPECT_FALSE(fillVendorTable(csv, folder.filePath(u"temp.db"_s)));
    EXPECT_LT(peakMemory() - before, 64 * 1024);
}

} // namespace
} // namespace quillon::test
