// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

namespace quillon::test {

/// Runs a program to its end and gives its output; a failure of it fails the test.
inline QByteArray command(const QString &line, const QByteArray &input = {})
{
    QProcess process;
    QStringList arguments = QProcess::splitCommand(line);
    const QString program = arguments.takeFirst();
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished();
    EXPECT_TRUE(ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        << qPrintable(line) << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

} // namespace quillon::test
