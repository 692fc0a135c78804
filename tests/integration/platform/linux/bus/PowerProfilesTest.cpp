// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/PowerProfiles.h"

#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.UPower.PowerProfiles"_s;
const QString path = u"/org/freedesktop/UPower/PowerProfiles"_s;
const QString properties = u"org.freedesktop.DBus.Properties"_s;

/// The system's service, as far as we ask it.
class Profiles : public QDBusVirtualObject
{
public:
    explicit Profiles(const QString &program)
        : m_program(program)
    {
        QDBusConnection bus(m_program);
        EXPECT_TRUE(bus.registerVirtualObject(path, this));
        EXPECT_TRUE(bus.registerService(service));
    }
    ~Profiles() override
    {
        QDBusConnection bus(m_program);
        bus.unregisterService(service);
        bus.unregisterObject(path);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        ++questions;
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(profile))));
    }
    void choose(const QVariant &chosen, bool tells = true)
    {
        profile = chosen;
        auto signal = QDBusMessage::createSignal(path, properties, u"PropertiesChanged"_s);
        QVariantMap changed;
        if (tells) {
            changed.insert(u"ActiveProfile"_s, chosen);
        }
        signal << service << changed << (tells ? QStringList() : QStringList{u"ActiveProfile"_s});
        QDBusConnection(m_program).send(signal);
    }

    QVariant profile = u"balanced"_s;
    int questions = 0;

private:
    QString m_program;
};

class PowerProfilesTest : public testing::Test
{
protected:
    void watch()
    {
        profiles.watch([this] { ++told; });
    }

    PrivateBus bus;
    QString program = bus.open();
    QDBusConnection connection = bus.connect();
    PowerProfiles profiles{connection};
    int told = 0;
};

TEST_F(PowerProfilesTest, FollowsWhatTheUserChooses)
{
    Profiles system(program);
    watch();
    ASSERT_TRUE(eventually([&] { return system.questions == 1; }));
    EXPECT_FALSE(profiles.isOn());
    system.choose(u"power-saver"_s);
    EXPECT_TRUE(eventually([&] { return profiles.isOn(); }));
    system.choose(u"performance"_s);
    EXPECT_TRUE(eventually([&] { return !profiles.isOn(); }));
    system.choose(u"power-saver"_s, false);
    EXPECT_TRUE(eventually([&] { return profiles.isOn(); }));
    EXPECT_EQ(told, 3);
}

TEST_F(PowerProfilesTest, WithoutTheServiceNoBatteryIsSaved)
{
    watch();
    {
        Profiles system(program);
        system.profile = u"power-saver"_s;
        EXPECT_TRUE(eventually([&] { return profiles.isOn(); }));
    }
    EXPECT_TRUE(eventually([&] { return !profiles.isOn(); }));
}

TEST_F(PowerProfilesTest, AnAnswerOfAnotherTypeIsNone)
{
    Profiles system(program);
    system.profile = 3;
    watch();
    ASSERT_TRUE(eventually([&] { return system.questions == 1; }));
    system.choose(u"power-saver"_s);
    EXPECT_TRUE(eventually([&] { return profiles.isOn(); }));
    EXPECT_EQ(told, 1);
}

TEST_F(PowerProfilesTest, NothingIsAskedBeforeSomebodyWatches)
{
    Profiles system(program);
    system.choose(u"power-saver"_s);
    watch();
    EXPECT_TRUE(eventually([&] { return profiles.isOn(); }));
    EXPECT_EQ(system.questions, 1);
}

} // namespace

} // namespace quillon::test
