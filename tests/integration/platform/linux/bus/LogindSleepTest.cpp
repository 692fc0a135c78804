// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/LogindSleep.h"

#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusMessage>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// Hears whoever tells of sleep.
class AnybodyElse : public QObject
{
    Q_OBJECT

public:
    int heard = 0;

public Q_SLOTS:
    void hear() { ++heard; }
};

class LogindSleepTest : public testing::Test
{
protected:
    LogindSleepTest()
    {
        sleep.watch([this] { ++resumed; });
    }

    void tell(const QString &program, bool begins) const
    {
        auto signal = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
            u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
        signal << begins;
        QDBusConnection(program).send(signal);
    }
    QString logind()
    {
        const QString program = bus.open();
        EXPECT_TRUE(QDBusConnection(program).registerService(u"org.freedesktop.login1"_s));
        return program;
    }

    PrivateBus bus;
    QDBusConnection connection = bus.connect();
    LogindSleep sleep{connection};
    int resumed = 0;
};

TEST_F(LogindSleepTest, TellsWhenTheMachineIsBackAndNotWhenItGoes)
{
    const QString program = logind();
    for (int round = 1; round <= 2; ++round) {
        tell(program, true);
        tell(program, false);
        EXPECT_TRUE(eventually([&] { return resumed == round; }));
    }
    EXPECT_EQ(resumed, 2);
}

TEST_F(LogindSleepTest, HearsNobodyElse)
{
    const QString program = logind();
    AnybodyElse anybody;
    connection.connect(QString(), u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s,
        u"PrepareForSleep"_s, &anybody, SLOT(hear()));
    tell(bus.open(), false);
    ASSERT_TRUE(eventually([&] { return anybody.heard > 0; }));
    EXPECT_EQ(resumed, 0);
}

} // namespace

} // namespace quillon::test

#include "LogindSleepTest.moc"
