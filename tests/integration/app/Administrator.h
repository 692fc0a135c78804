// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <gtest/gtest.h>

namespace quillon::test {

/// Whoever plugs cables and gives addresses: a shell that remains root, while the test itself
/// becomes the ordinary user, as whom the program runs. Made for every run of the tests, before the
/// first of them; the sandbox has started the test as root.
class Administrator : public ::testing::Environment
{
public:
    void SetUp() override;
    void TearDown() override;

    /// Runs a shell script to its end and gives its output; a failure of it fails the test. The
    /// main loop does not run meanwhile.
    QByteArray run(const QString &script);
    /// Lets a shell script run on; hasEnded() tells when it is over.
    void start(const QString &script);
    bool hasEnded() const;
    /// The output of the script that has ended.
    QByteArray output() const;

private:
    QProcess m_shell;
};

/// The one of this run.
Administrator &administrator();

} // namespace quillon::test
