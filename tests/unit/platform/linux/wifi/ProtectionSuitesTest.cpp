// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/ProtectionSuites.h"

#include "unit/platform/linux/wifi/ElementBytes.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(ProtectionSuites, FieldsLeftOutHaveTheStandardsDefaults)
{
    const QByteArray whole = Rsn{.keys = {2}, .capabilities = 0x40}.content();
    const ProtectionSuites full = rsnSuites(spanOf(whole));
    EXPECT_TRUE(full.intact);
    EXPECT_TRUE(full.frameProtectionRequired);
    for (const qsizetype end : {2, 6, 12, 18}) {
        const QByteArray shorter = whole.left(end);
        EXPECT_TRUE(rsnSuites(spanOf(shorter)).intact) << end;
        EXPECT_FALSE(rsnSuites(spanOf(shorter)).frameProtectionRequired) << end;
    }
    const ProtectionSuites least = rsnSuites(spanOf(whole.left(2)));
    EXPECT_EQ(least.groupCipher, 0x000FAC04U);
    EXPECT_EQ(least.pairwiseCiphers, QList<quint32>{0x000FAC04});
    EXPECT_EQ(least.authentication, QList<quint32>{0x000FAC01});
    const ProtectionSuites leastWpa = wpaSuites(spanOf(littleEndian(1)));
    EXPECT_TRUE(leastWpa.intact);
    EXPECT_EQ(leastWpa.authentication, QList<quint32>{0x0050F201});
}

TEST(ProtectionSuites, AFieldCutInTheMiddleIsNotIntact)
{
    const QByteArray whole = Rsn{.keys = {2}}.content();
    int intact = 0;
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        QByteArray cut(whole.constData(), size);
        cut.squeeze();
        intact += rsnSuites(spanOf(cut)).intact;
    }
    EXPECT_EQ(intact, 5) << "at the ends of the five fields";
    EXPECT_FALSE(rsnSuites({}).intact) << "without a version";
    EXPECT_FALSE(rsnSuites(spanOf(Rsn{.keys = {2}, .version = 2}.content())).intact);
}

TEST(ProtectionSuites, CountsThatPromiseTooMuchAreNotBelieved)
{
    const QByteArray lie = QByteArray::fromHex("0100 000fac04 ffff 000fac04 0100");
    const ProtectionSuites suites = rsnSuites(spanOf(lie));
    EXPECT_FALSE(suites.intact);
    EXPECT_EQ(suites.pairwiseCiphers, QList<quint32>{0x000FAC04}) << "what was there";
    EXPECT_TRUE(suites.authentication.isEmpty()) << "no default where something was lost";
}

} // namespace quillon::test
