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
    AutostartLoginItemTest() { makeProgram(program); }

    static void makeProgram(const QString &path)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void write(const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray content() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool enable(bool isOn) { return item.setEnabled(identifier, isOn); }

    QTemporaryDir home;
    const QString program = home.filePath(u"lib/QuillonHelper"_s);
    const QString path = home.filePath(u"config/autostart/"_s + identifier + u".desktop"_s);
    AutostartLoginItem item{home.filePath(u"config"_s), program};
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
