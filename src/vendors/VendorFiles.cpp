// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Whether it is not there any more.
bool isRemoved(const QString &path)
{
    return unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT;
}

/// A pipe, or what is like one: neither a file nor a folder.
bool isPipe(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace

bool removeLog(const QString &path)
{
    const bool isIndexGone = isRemoved(path + "-shm"_L1);
    return isRemoved(path + "-wal"_L1) && isIndexGone;
}

bool removeCompanions(const QString &path)
{
    const bool isLogGone = removeLog(path);
    return isRemoved(path + "-journal"_L1) && isLogGone;
}

bool isOpenedAtOnce(const QString &path)
{
    return QFileInfo(path).isFile() && !isPipe(path + "-wal"_L1) && !isPipe(path + "-shm"_L1) &&
           !isPipe(path + "-journal"_L1);
}

QString shippedVendorDatabase(const QString &programFolder)
{
    for (const char *const place : {"../share/quillon4/oui.db", "../data/oui.db"}) {
        const QString path = QDir::cleanPath(programFolder + u'/' + QLatin1String(place));
        if (QFile::exists(path)) {
            return path;
        }
    }
    return {};
}

} // namespace quillon
