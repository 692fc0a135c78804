// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/AutostartLoginItem.h"

#include "platform/linux/desktop/AutostartEntry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Entry = LoginItem::Entry;

const QString identifier = u"com.orvandel.Quillon4Helper"_s;

class AutostartLoginItemTest : public ::testing::Test
{
protected:
    AutostartLoginItemTest()
    {
        qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
        makeProgram(program);
    }
    ~AutostartLoginItemTest() override
    {
        if (desktopBefore.isNull()) {
            qunsetenv("XDG_CURRENT_DESKTOP");
        } else {
            qputenv("XDG_CURRENT_DESKTOP", desktopBefore);
        }
    }

    static void makeProgram(const QString &path)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void write(const QByteArray &content) { writeTo(path, content); }
    static void writeTo(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// What a package or an administrator puts there.
    void startForAll(const QByteArray &more = {})
    {
        writeTo(sharedPath, "[Desktop Entry]\nExec=/usr/libexec/quillon4/QuillonHelper\n" + more);
    }
    QByteArray content() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool enable(bool isOn) { return item.setEnabled(identifier, isOn); }

    const QByteArray desktopBefore = qgetenv("XDG_CURRENT_DESKTOP");
    QTemporaryDir home;
    const QString program = home.filePath(u"lib/QuillonHelper"_s);
    const QString path = home.filePath(u"config/autostart/"_s + identifier + u".desktop"_s);
    const QString sharedPath = home.filePath(u"xdg/autostart/"_s + identifier + u".desktop"_s);
    const QString lowerPath = home.filePath(u"lower/autostart/"_s + identifier + u".desktop"_s);
    AutostartLoginItem item{
        {home.filePath(u"config"_s), {home.filePath(u"xdg"_s), home.filePath(u"lower"_s)}},
        program};
};

TEST_F(AutostartLoginItemTest, KnowsTheProgramByItsIdentifierAndItsPlace)
{
    ASSERT_TRUE(item.program());
    EXPECT_EQ(item.program()->identifier, identifier);
    EXPECT_EQ(item.program()->url, QUrl::fromLocalFile(program));
}

TEST_F(AutostartLoginItemTest, AProgramThatIsGoneOrCannotBeRunIsMissing)
{
    QFile::setPermissions(program, QFile::ReadOwner);
    EXPECT_FALSE(item.program());
    QFile::remove(program);
    EXPECT_FALSE(item.program());
    QDir().mkpath(program);
    EXPECT_FALSE(item.program()) << "a folder";
}

TEST_F(AutostartLoginItemTest, SwitchedOnTheEntryIsThereAndSwitchedOffItIsGone)
{
    EXPECT_EQ(item.entry(), Entry::None);
    EXPECT_TRUE(enable(true));
    EXPECT_EQ(item.entry(), Entry::Ours);
    EXPECT_EQ(AutostartEntry::read(content()).program, program);
    EXPECT_TRUE(enable(true));
    EXPECT_TRUE(enable(false));
    EXPECT_EQ(item.entry(), Entry::None);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(enable(false));
    EXPECT_EQ(QDir(QFileInfo(path).path()).entryList(QDir::Files), QStringList());
}

TEST_F(AutostartLoginItemTest, WhatTheDesktopSwitchedOffStaysSoUntilItIsTakenOut)
{
    for (const QByteArray &off :
        {QByteArray("Hidden=true\n"), QByteArray("X-GNOME-Autostart-enabled=false\n")}) {
        ASSERT_TRUE(enable(true));
        const QByteArray switchedOff =
            content().replace("X-GNOME-Autostart-enabled=true\n", QByteArray()) + off;
        write(switchedOff);
        EXPECT_EQ(item.entry(), Entry::SwitchedOff);
        EXPECT_FALSE(enable(true));
        EXPECT_EQ(content(), switchedOff);
        EXPECT_TRUE(enable(false));
        EXPECT_TRUE(enable(true));
        EXPECT_EQ(item.entry(), Entry::Ours);
        ASSERT_TRUE(enable(false));
    }
}

TEST_F(AutostartLoginItemTest, AMarkThatItIsSwitchedOffGoesAsWell)
{
    write("[Desktop Entry]\nHidden=true\n");
    EXPECT_FALSE(enable(true));
    EXPECT_TRUE(enable(false));
    EXPECT_TRUE(enable(true));
}

TEST_F(AutostartLoginItemTest, AnEntryOfTheUsersOwnIsNeverTouched)
{
    for (const QByteArray &own :
        {QByteArray("[Desktop Entry]\nExec=sh -c \"sleep 9; QuillonHelper\"\n"),
            QByteArray("[Desktop Entry]\nExec=/usr/bin/true\n"), QByteArray("not an entry\n")}) {
        write(own);
        EXPECT_EQ(item.entry(), Entry::Foreign);
        EXPECT_FALSE(enable(true));
        EXPECT_FALSE(enable(false));
        EXPECT_EQ(content(), own);
    }
}

TEST_F(AutostartLoginItemTest, OneOfTheUsersOwnThatIsSwitchedOffStaysToo)
{
    const QByteArray own = "[Desktop Entry]\nExec=/usr/bin/true\nHidden=true\n";
    write(own);
    EXPECT_TRUE(enable(false));
    EXPECT_FALSE(enable(true));
    EXPECT_EQ(content(), own);
}

TEST_F(AutostartLoginItemTest, WhatCannotBeReadIsNotOurs)
{
    QDir().mkpath(QFileInfo(path).path());
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(item.entry(), Entry::Foreign);
    EXPECT_FALSE(enable(true));
    EXPECT_FALSE(enable(false));
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_EQ(symlink("/nowhere/at/all", QFile::encodeName(path).constData()), 0);
    EXPECT_EQ(item.entry(), Entry::Foreign);
    EXPECT_FALSE(enable(true));
}

TEST_F(AutostartLoginItemTest, AProgramThatMovedIsFoundAgain)
{
    const QString before = home.filePath(u"before/QuillonHelper"_s);
    makeProgram(before);
    write(AutostartEntry::text(before, u"Starts"_s));
    EXPECT_EQ(item.entry(), Entry::Ours);
    EXPECT_TRUE(enable(true));
    EXPECT_EQ(AutostartEntry::read(content()).program, before) << "it is there and works";
    ASSERT_TRUE(QFile::remove(before));
    EXPECT_TRUE(enable(true));
    EXPECT_EQ(AutostartEntry::read(content()).program, program);
}

TEST_F(AutostartLoginItemTest, AFolderThatCannotBeMadeIsAFailure)
{
    QDir().mkpath(home.filePath(u"config"_s));
    QFile inTheWay(home.filePath(u"config/autostart"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_FALSE(enable(true));
    EXPECT_EQ(item.entry(), Entry::None);
}

TEST_F(AutostartLoginItemTest, AnEntryForOtherDesktopsStartsNothingHere)
{
    const QByteArray entry = AutostartEntry::text(program, u"Starts"_s);
    for (const QByteArray &limit : {QByteArray("OnlyShowIn=KDE;XFCE;\n"),
             QByteArray("OnlyShowIn=\n"), QByteArray("NotShowIn=KDE;GNOME\n")}) {
        const QByteArray limited = entry + limit;
        write(limited);
        EXPECT_EQ(item.entry(), Entry::OtherDesktop) << limit.constData();
        EXPECT_FALSE(enable(true));
        EXPECT_EQ(content(), limited);
        EXPECT_TRUE(enable(false));
        EXPECT_TRUE(enable(true));
        EXPECT_EQ(item.entry(), Entry::Ours);
    }
    for (const QByteArray &limit :
        {QByteArray("OnlyShowIn=GNOME;\n"), QByteArray("NotShowIn=KDE;\n"),
            QByteArray("OnlyShowIn= KDE ; ubuntu\n"), QByteArray("NotShowIn=\n")}) {
        write(entry + limit);
        EXPECT_EQ(item.entry(), Entry::Ours) << limit.constData();
    }
}

TEST_F(AutostartLoginItemTest, AnEntryForAllUsersActsWhereTheUserHasNone)
{
    startForAll();
    EXPECT_EQ(item.entry(), Entry::Ours);
    EXPECT_TRUE(enable(true));
    EXPECT_FALSE(QFile::exists(path)) << "there is no need for another";
    const QByteArray own = "[Desktop Entry]\nExec=/usr/bin/true\n";
    write(own);
    EXPECT_EQ(item.entry(), Entry::Foreign);
}

TEST_F(AutostartLoginItemTest, SwitchedOffAnEntryForAllUsersIsHiddenAndComesBack)
{
    startForAll();
    EXPECT_TRUE(enable(false));
    EXPECT_EQ(item.entry(), Entry::SwitchedOff);
    EXPECT_TRUE(content().contains("\nHidden=true\n"));
    EXPECT_TRUE(enable(false));
    EXPECT_EQ(item.entry(), Entry::SwitchedOff);
    EXPECT_TRUE(enable(true)) << "what was hidden here is not the desktop's choice";
    EXPECT_EQ(item.entry(), Entry::Ours);
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(AutostartLoginItemTest, OurOwnEntryAndThatForAllUsersAreSwitchedOffAtOnce)
{
    ASSERT_TRUE(enable(true));
    startForAll();
    EXPECT_TRUE(enable(false));
    EXPECT_EQ(item.entry(), Entry::SwitchedOff);
    // The package goes: nothing is left to hide, and our own serves again.
    ASSERT_TRUE(QFile::remove(sharedPath));
    EXPECT_TRUE(enable(true));
    EXPECT_EQ(item.entry(), Entry::Ours);
    EXPECT_EQ(AutostartEntry::read(content()).program, program);
}

TEST_F(AutostartLoginItemTest, WhatTheDesktopSwitchedOffOfThatForAllUsersStaysSo)
{
    startForAll();
    const QByteArray off =
        "[Desktop Entry]\nExec=/usr/libexec/quillon4/QuillonHelper\nHidden=true\n";
    write(off);
    EXPECT_FALSE(enable(true));
    EXPECT_EQ(content(), off);
    EXPECT_TRUE(enable(false));
    EXPECT_EQ(item.entry(), Entry::SwitchedOff) << "not back to the one for all users";
    EXPECT_TRUE(enable(true));
    EXPECT_EQ(item.entry(), Entry::Ours);
}

TEST_F(AutostartLoginItemTest, AnEntryForAllUsersThatStartsNothingIsNone)
{
    for (const QByteArray &more : {QByteArray("Hidden=true\n"), QByteArray("OnlyShowIn=KDE;\n")}) {
        startForAll(more);
        EXPECT_EQ(item.entry(), Entry::None) << more.constData();
        EXPECT_TRUE(enable(true));
        EXPECT_TRUE(QFile::exists(path));
        EXPECT_TRUE(enable(false));
        EXPECT_FALSE(QFile::exists(path));
    }
}

TEST_F(AutostartLoginItemTest, OfSeveralForAllUsersTheFirstCounts)
{
    writeTo(lowerPath, "[Desktop Entry]\nExec=QuillonHelper\n");
    EXPECT_EQ(item.entry(), Entry::Ours);
    writeTo(sharedPath, "[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(item.entry(), Entry::None);
}

TEST_F(AutostartLoginItemTest, TheFoldersAreThoseOfTheEnvironment)
{
    const QByteArray before = qgetenv("XDG_CONFIG_DIRS");
    qputenv("XDG_CONFIG_DIRS", "/one:/two");
    const auto folders = AutostartLoginItem::folders();
    if (before.isNull()) {
        qunsetenv("XDG_CONFIG_DIRS");
    } else {
        qputenv("XDG_CONFIG_DIRS", before);
    }
    EXPECT_EQ(folders.shared, (QStringList{u"/one"_s, u"/two"_s}));
    EXPECT_FALSE(folders.own.isEmpty());
}

TEST_F(AutostartLoginItemTest, IsFoundAsBuiltAndAsInstalled)
{
    const QString root = home.filePath(u"root"_s);
    makeProgram(root + u"/login/QuillonHelper"_s);
    EXPECT_EQ(
        AutostartLoginItem::besideProgram(root + u"/src"_s), root + u"/login/QuillonHelper"_s);
    const QString installed = root + u"/libexec/quillon4/QuillonHelper"_s;
    makeProgram(installed);
    EXPECT_EQ(AutostartLoginItem::besideProgram(root + u"/bin"_s), installed);
}

} // namespace
} // namespace quillon::test
