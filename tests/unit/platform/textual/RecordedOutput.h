// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Places.h"

#include <QFile>
#include <gtest/gtest.h>

namespace quillon::test {

/// What a command printed, from tests/data/commands.
inline QString recordedOutput(const QString &name)
{
    QFile file(testData() + QStringLiteral("/commands/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

} // namespace quillon::test
