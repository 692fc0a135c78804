// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vendors/VendorDatabase.h"
#include "vendors/VendorFiles.h"
#include "vendors/VendorTable.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

inline const QByteArray registryHeader =
    "Registry,Assignment,Organization Name,Organization Address\r\n";

/// A registry text of these vendors, identifier and name each.
inline QByteArray registryOf(const QList<QPair<QByteArray, QByteArray>> &vendors)
{
    QByteArray text = registryHeader;
    for (const auto &[assignment, name] : vendors) {
        text += "MA-L," + assignment + ",\"" + name + "\",\"1 Long Road, Town\"\r\n";
    }
    return text;
}

/// A registry text of so many vendors, numbered from 0.
inline QByteArray registryOf(int count)
{
    QList<QPair<QByteArray, QByteArray>> vendors;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i, 16).rightJustified(6, '0').toUpper();
        vendors.append({number, "Maker " + number});
    }
    return registryOf(vendors);
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The folder of a user, with a seed beside it.
class VendorFolder : public ::testing::Test
{
protected:
    VendorFolder()
    {
        EXPECT_TRUE(root.isValid());
        files.folder = root.filePath(QStringLiteral("share/Quillon"));
        files.seed = root.filePath(QStringLiteral("seed.db"));
        QDir().mkpath(files.folder);
    }

    /// A database at `path` as the importer makes it.
    void makeDatabase(const QString &path, const QByteArray &registry)
    {
        const QString csv = root.filePath(QStringLiteral("made.csv"));
        writeFile(csv, registry);
        ASSERT_TRUE(fillVendorTable(csv, path));
        QFile::remove(csv);
    }
    void makeLive(const QByteArray &registry) { makeDatabase(files.liveDatabase(), registry); }

    QTemporaryDir root;
    VendorFiles files;
};

} // namespace quillon::test
