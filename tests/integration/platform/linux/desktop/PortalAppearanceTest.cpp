// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/PortalAppearance.h"

#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <QProcessEnvironment>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString scheme = u"org.freedesktop.appearance color-scheme "_s;
const QString contrast = u"org.freedesktop.appearance contrast "_s;
const QString reducedMotion = u"org.freedesktop.appearance reduced-motion "_s;
const QString animations = u"org.gnome.desktop.interface enable-animations "_s;

/// A desktop whose portal says what a test has it say.
class PortalAppearanceTest : public ::testing::Test
{
protected:
    ~PortalAppearanceTest() override
    {
        m_portal.closeWriteChannel();
        m_portal.waitForFinished();
    }

    void startPortal(const QStringList &settings)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
        m_portal.setProcessEnvironment(environment);
        m_portal.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QStringList arguments{u"--ready"_s, u"1"_s, u"--control"_s};
        for (const QString &setting : settings) {
            arguments << u"--set"_s << setting;
        }
        m_portal.start(QStringLiteral(QUILLON_DESKTOP_PORTAL), arguments);
        while (!m_portal.canReadLine() && m_portal.waitForReadyRead()) {
        }
        ASSERT_EQ(m_portal.readLine(), "\n");
    }
    void say(const QString &setting) { m_portal.write(setting.toUtf8() + '\n'); }

    void watch()
    {
        source.emplace(bus.connect());
        source->watch([this](const Appearance &appearance) { seen.append(appearance); });
    }
    bool becomes(const Appearance &appearance)
    {
        return eventually([&] { return !seen.isEmpty() && seen.last() == appearance; });
    }

    PrivateBus bus;
    std::optional<PortalAppearance> source;
    QList<Appearance> seen;

private:
    QProcess m_portal;
};

TEST_F(PortalAppearanceTest, ReadsWhatTheUserWants)
{
    startPortal({contrast + u"uint32 1"_s, animations + u"false"_s});
    watch();
    EXPECT_TRUE(becomes({ColorScheme::Dark, true, true}));
}

TEST_F(PortalAppearanceTest, FollowsEveryChange)
{
    startPortal({});
    watch();
    ASSERT_TRUE(becomes({ColorScheme::Dark, false, false}));
    say(contrast + u"uint32 1"_s);
    EXPECT_TRUE(becomes({ColorScheme::Dark, true, false}));
    say(animations + u"false"_s);
    EXPECT_TRUE(becomes({ColorScheme::Dark, true, true}));
    say(scheme + u"uint32 2"_s);
    EXPECT_TRUE(becomes({ColorScheme::Light, true, true}));
    say(scheme + u"uint32 0"_s);
    EXPECT_TRUE(becomes({std::nullopt, true, true})) << "no preference any more";
    say(animations + u"true"_s);
    EXPECT_TRUE(becomes({std::nullopt, true, false}));
    say(contrast + u"uint32 0"_s);
    EXPECT_TRUE(becomes({}));
}

TEST_F(PortalAppearanceTest, EitherSettingStopsMotion)
{
    startPortal({reducedMotion + u"uint32 1"_s, animations + u"true"_s});
    watch();
    ASSERT_TRUE(becomes({ColorScheme::Dark, false, true}));
    say(animations + u"false"_s);
    say(reducedMotion + u"uint32 0"_s);
    say(contrast + u"uint32 1"_s);
    EXPECT_TRUE(becomes({ColorScheme::Dark, true, true}));
    say(animations + u"true"_s);
    EXPECT_TRUE(becomes({ColorScheme::Dark, true, false}));
}

TEST_F(PortalAppearanceTest, WhatIsNotOfTheRightTypeIsNotSaid)
{
    const QStringList nonsense{u"'1'"_s, u"int64 1"_s, u"1.0"_s, u"uint32 77"_s, u"[1]"_s,
        u"(uint32 1, 2)"_s, u"{'a': <1>}"_s, u"<<uint32 1>>"_s, u"b'1'"_s, u"true"_s,
        u"objectpath '/'"_s};
    QStringList settings;
    for (const QString &key : {scheme, contrast, reducedMotion}) {
        settings << key + nonsense.first();
    }
    startPortal(settings << animations + u"uint32 0"_s);
    watch();
    for (const QString &value : nonsense) {
        for (const QString &key : {scheme, contrast, reducedMotion}) {
            say(key + value);
        }
        if (value != "true"_L1) {
            say(animations + value);
        }
    }
    say(u"org.freedesktop.appearance accent-color (1.0, 0.5, 0.0)"_s);
    say(u"org.example.other contrast uint32 1"_s);
    say(scheme + u"uint32 2"_s);
    EXPECT_TRUE(becomes({ColorScheme::Light, false, false}));
    EXPECT_EQ(seen.size(), 1) << "nothing else was said";
}

TEST_F(PortalAppearanceTest, ADesktopWithoutPortalSaysNothing)
{
    watch();
    EXPECT_FALSE(eventually([&] { return !seen.isEmpty(); }, std::chrono::milliseconds(300)));
}

} // namespace
} // namespace quillon::test
