// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: write-rule FILE once|every-minute|login DEVICE
// Adds an enabled rule for a random address to a record file, for the tests of the built program.
#include "integration/app/RecordsFile.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

using namespace quillon::test;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 4) {
        return 2;
    }
    const QString &kind = arguments.at(2);
    const QString &device = arguments.at(3);
    const QVariantMap rule = kind == "login"_L1  ? randomLoginRule(device)
                             : kind == "once"_L1 ? randomOnceRule(device)
                                                 : randomEveryRule(device, 1);
    return addRule(arguments.at(1), rule) ? 0 : 1;
}
