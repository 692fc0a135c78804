// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/QtPrinting.h"
#include "integration/app/AddressWatch.h"
#include "integration/app/Administrator.h"
#include "integration/app/ComposedProgram.h"
#include "integration/app/RecordsFile.h"
#include "integration/platform/linux/Waiting.h"

#include <QMap>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

/// A machine with a card "eth5" whose cable leads nowhere yet, and nothing that leads to the
/// internet; and the program, started when a test says so.
class EndToEndTest : public ::testing::Test
{
protected:
    static inline const QString card = QStringLiteral("eth5");
    static inline const QString factoryAddress = QStringLiteral("02:00:5e:10:00:05");
    static inline const QString changedTitle = QStringLiteral("Ethernet Address Changed");
    static inline const QString notChangedTitle =
        QStringLiteral("Ethernet Address was not Changed");

    void SetUp() override;
    void TearDown() override;

    /// Starts the program, and waits until its first check of the rules is over.
    void startProgram(int speed = 60);

    // As a person or a network service does it.
    static void plugCable();
    static void pullCable();
    /// An IPv4 address, and with it a way to the internet or not.
    static void giveLease(bool withDefaultRoute);

    /// The program has taken in everything that the kernel has told so far.
    void settle();
    /// Lets the program's clock run on; what it asks of others takes the time that it takes.
    void letPass(std::chrono::seconds time);

    // What the program has recorded about the card.
    QVariantMap ruleInForce() const;
    qlonglong hasRule() const;
    QString status() const;

    /// What the kernel reports of every interface.
    static QMap<QString, QString> kernelAddresses();
    static QString kernelAddress() { return kernelAddresses().value(card); }
    /// Every address that the card was seen with since the start of the test.
    QStringList addressesSeen() { return watch->addresses(card); }

    QTemporaryDir folder;
    QString records = ComposedProgram::recordsPath(folder.path());
    std::unique_ptr<AddressWatch> watch;
    std::unique_ptr<ComposedProgram> program;

private:
    int m_changesTold = 0;
};

} // namespace quillon::test
