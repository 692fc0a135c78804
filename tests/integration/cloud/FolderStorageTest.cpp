// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/FolderStorage.h"

#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"
#include "platform/qt/QtScheduler.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <sys/mount.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

/// As root in a sandbox, because only root may mount.
class FolderStorageOnADisk : public ::testing::Test
{
protected:
    FolderStorageOnADisk() { mount(0); }
    ~FolderStorageOnADisk() override
    {
        scheduler.shutDown();
        EXPECT_EQ(::umount(place.constData()), 0);
    }
    void mount(unsigned long flags) const
    {
        EXPECT_EQ(::mount("disk", place.constData(), "tmpfs", flags, "size=1m"), 0);
    }
    QStringList allNames() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QTemporaryDir folder;
    const QByteArray place = QFile::encodeName(folder.path());
    QtScheduler scheduler;
    FolderStorage storage{scheduler, folder.path()};
    Asked asked{storage};
};

TEST_F(FolderStorageOnADisk, AFullOneIsToldOfAndHoldsNoHalves)
{
    valueOf(asked.create(u"key"_s, "x"));
    const QByteArray tooMuch(2 << 20, 'x');
    EXPECT_EQ(problemIn(asked.create(u"other"_s, tooMuch)), CloudProblem::Full);
    EXPECT_EQ(problemIn(asked.replace(u"key"_s, tooMuch)), CloudProblem::Full);
    EXPECT_THAT(allNames(), ElementsAre(u"key"_s));
    EXPECT_EQ(valueOf(asked.read(u"key"_s)).bytes, "x");
    valueOf(asked.create(u"other"_s, QByteArray(500'000, 'x')));
}

TEST_F(FolderStorageOnADisk, OneThatMayOnlyBeReadIsRead)
{
    valueOf(asked.create(u"key"_s, "x"));
    mount(MS_REMOUNT | MS_RDONLY);
    EXPECT_EQ(problemIn(asked.create(u"other"_s, "x")), CloudProblem::NotAllowed);
    EXPECT_EQ(problemIn(asked.replace(u"key"_s, "y")), CloudProblem::NotAllowed);
    EXPECT_EQ(problemIn(asked.remove(u"key"_s)), CloudProblem::NotAllowed);
    EXPECT_EQ(valueOf(asked.read(u"key"_s)).bytes, "x");
    EXPECT_EQ(valueOf(asked.list()).size(), 1);
}

} // namespace
} // namespace quillon::test
