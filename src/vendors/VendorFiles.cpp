// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorFiles.h"

#include <QDir>
#include <QFile>

namespace quillon {

void removeCompanions(const QString &path)
{
    for (const char *const companion : {"-wal", "-shm", "-journal"}) {
        QFile::remove(path + QLatin1String(companion));
    }
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
