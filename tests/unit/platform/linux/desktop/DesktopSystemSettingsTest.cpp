// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DesktopSystemSettings.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

class DesktopSystemSettingsTest : public ::testing::Test
{
protected:
    DesktopSystemSettingsTest() { qputenv("PATH", programs.path().toLocal8Bit()); }
    ~DesktopSystemSettingsTest() override
    {
        qputenv("PATH", path);
        qputenv("XDG_CURRENT_DESKTOP", desktop);
    }

    void install(const char *name)
    {
        QFile program(programs.filePath(QLatin1String(name)));
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\n");
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// What is started on that desktop: the program's name, then its arguments; empty for nothing.
    QStringList opened(const char *names)
    {
        qputenv("XDG_CURRENT_DESKTOP", names);
        started.clear();
        const bool told = settings.openLocationServices();
        EXPECT_EQ(told, !started.isEmpty());
        return started;
    }

    QByteArray path = qgetenv("PATH");
    QByteArray desktop = qgetenv("XDG_CURRENT_DESKTOP");
    QTemporaryDir programs;
    QStringList started;
    DesktopSystemSettings settings{[this](const QString &program, const QStringList &arguments) {
        EXPECT_TRUE(program.startsWith(programs.path()));
        started = QStringList{program.mid(programs.path().size() + 1)} + arguments;
        return true;
    }};
};

const QStringList gnomeLocation{u"gnome-control-center"_s, u"location"_s};

} // namespace

TEST_F(DesktopSystemSettingsTest, OpenAtThePageForLocation)
{
    install("gnome-control-center");
    install("budgie-control-center");
    install("systemsettings");
    EXPECT_EQ(opened("GNOME"), gnomeLocation);
    EXPECT_EQ(opened("ubuntu:GNOME"), gnomeLocation);
    EXPECT_EQ(opened("GNOME-Classic:GNOME"), gnomeLocation);
    EXPECT_EQ(opened("Unity:Unity7:ubuntu"), gnomeLocation);
    EXPECT_EQ(opened("gnome"), gnomeLocation);
    EXPECT_EQ(opened("Budgie:GNOME"), (QStringList{u"budgie-control-center"_s, u"location"_s}));
    EXPECT_EQ(opened("KDE"), QStringList{u"systemsettings"_s});
}

TEST_F(DesktopSystemSettingsTest, ANameFurtherOffServesWhereTheNearestHasNoProgram)
{
    install("gnome-control-center");
    EXPECT_EQ(opened("Budgie:GNOME"), gnomeLocation);
}

TEST_F(DesktopSystemSettingsTest, AreNotOpenedWhereNoneIsKnownOrInstalled)
{
    EXPECT_TRUE(opened("GNOME").isEmpty()) << "not installed";
    install("gnome-control-center");
    EXPECT_TRUE(opened("").isEmpty());
    EXPECT_TRUE(opened("XFCE").isEmpty());
    EXPECT_TRUE(opened("GNOME; touch x").isEmpty());
    EXPECT_TRUE(opened("KDE").isEmpty()) << "another desktop's program is there";
}

TEST_F(DesktopSystemSettingsTest, AProgramThatCannotBeStartedIsNotOpened)
{
    install("gnome-control-center");
    qputenv("XDG_CURRENT_DESKTOP", "GNOME");
    DesktopSystemSettings broken([](const QString &, const QStringList &) { return false; });
    EXPECT_FALSE(broken.openLocationServices());
}

TEST_F(DesktopSystemSettingsTest, AreStartedForReal)
{
    install("systemsettings");
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    EXPECT_TRUE(DesktopSystemSettings().openLocationServices());
}

} // namespace quillon::test
