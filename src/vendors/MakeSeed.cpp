// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// quillon-make-seed REGISTRY DATABASE
// Makes the vendor database that the program is shipped with, at build time. The same registry
// gives the same bytes.
#include "vendors/VendorTable.h"

#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: quillon-make-seed REGISTRY DATABASE\n");
        return 2;
    }
    const QString registry = QFile::decodeName(argv[1]);
    const QString database = QFile::decodeName(argv[2]);
    if (quillon::fillVendorTable(registry, database)) {
        return 0;
    }
    QFile::remove(database);
    std::fprintf(stderr, "quillon-make-seed: no vendor database from %s\n", argv[1]);
    return 1;
}
