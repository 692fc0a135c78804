// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavStorage.h"

#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"
#include "integration/cloud/DavServer.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Certificate = DavServer::Certificate;
using Program = DavServer::Program;

/// The same of every server.
class WebDavStorageTest : public ::testing::TestWithParam<Program>
{
protected:
    CloudAccount accountAt(const DavServer &place) const
    {
        return {
            CloudAccount::Kind::WebDav, place.address(), DavServer::user(), u"Apps/Qui llon ü"_s};
    }

    QByteArray onDisk(const QString &name) const
    {
        QFile file(server.path(u"Apps/Qui llon ü/"_s + name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    DavServer server{GetParam()};
    WebDavStorage storage{accountAt(server), DavServer::password()};
    Asked asked{storage};
};

TEST_P(WebDavStorageTest, AnEmptyAccountHasNoFiles)
{
    EXPECT_TRUE(valueOf(asked.list()).isEmpty());
    EXPECT_TRUE(QDir(server.path(u"Apps/Qui llon ü"_s)).exists()) << "its folder is made";
    EXPECT_EQ(problemIn(asked.read(u"key"_s)), CloudProblem::NotThere);
    EXPECT_EQ(problemIn(asked.remove(u"key"_s)), std::nullopt);
}

TEST_P(WebDavStorageTest, WhatIsWrittenIsReadAndListed)
{
    const QByteArray bytes("\0\r\n\xff secret", 11);
    valueOf(asked.create(u"key"_s, bytes));
    EXPECT_EQ(onDisk(u"key"_s), bytes);
    const CloudStorage::Content content = valueOf(asked.read(u"key"_s));
    EXPECT_EQ(content.bytes, bytes);
    EXPECT_FALSE(content.revision.isEmpty());
    const QList<CloudFile> files = valueOf(asked.list());
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files.front().name, u"key"_s);
    EXPECT_EQ(files.front().size, bytes.size());
    EXPECT_EQ(files.front().revision, content.revision);
    EXPECT_EQ(problemIn(asked.remove(u"key"_s)), std::nullopt);
    EXPECT_TRUE(valueOf(asked.list()).isEmpty());
}

TEST_P(WebDavStorageTest, AFileIsMadeOnce)
{
    valueOf(asked.create(u"key"_s, "first"));
    EXPECT_EQ(problemIn(asked.create(u"key"_s, "second")), CloudProblem::Changed);
    EXPECT_EQ(onDisk(u"key"_s), "first");
}

TEST_P(WebDavStorageTest, AFileIsReplacedUnlessItIsAnotherOne)
{
    valueOf(asked.create(u"head"_s, "first"));
    const QByteArray first = valueOf(asked.read(u"head"_s)).revision;
    valueOf(asked.replace(u"head"_s, "second!", first));
    EXPECT_EQ(onDisk(u"head"_s), "second!");
    EXPECT_EQ(problemIn(asked.replace(u"head"_s, "third", first)), CloudProblem::Changed);
    EXPECT_EQ(onDisk(u"head"_s), "second!");
    valueOf(asked.replace(u"head"_s, "fourth"));
    EXPECT_EQ(onDisk(u"head"_s), "fourth");
    EXPECT_EQ(problemIn(asked.replace(u"none"_s, "x", first)), CloudProblem::Changed);
}

TEST_P(WebDavStorageTest, OnlyWhatHasChangedIsRead)
{
    valueOf(asked.create(u"head"_s, "first"));
    const QByteArray first = valueOf(asked.read(u"head"_s)).revision;
    EXPECT_FALSE(valueOf(asked.readIfChanged(u"head"_s, first)).has_value());
    valueOf(asked.replace(u"head"_s, "of another"));
    const auto changed = valueOf(asked.readIfChanged(u"head"_s, first));
    ASSERT_TRUE(changed);
    EXPECT_EQ(changed->bytes, "of another");
    EXPECT_NE(changed->revision, first);
}

TEST_P(WebDavStorageTest, ALongFileIsTooLarge)
{
    valueOf(asked.create(u"head"_s, QByteArray(1001, 'x')));
    EXPECT_EQ(problemIn(asked.read(u"head"_s, 1000)), CloudProblem::TooLarge);
    EXPECT_EQ(valueOf(asked.read(u"head"_s, 1001)).bytes.size(), 1001);
}

TEST_P(WebDavStorageTest, AnotherPasswordIsWrong)
{
    WebDavStorage other(accountAt(server), u"other"_s);
    const Asked asking(other);
    EXPECT_EQ(problemIn(asking.list()), CloudProblem::WrongPassword);
    EXPECT_EQ(problemIn(asking.read(u"key"_s)), CloudProblem::WrongPassword);
    EXPECT_EQ(
        problemIn(asking.create(u"key"_s, QByteArray(1 << 20, 'x'))), CloudProblem::WrongPassword);
    EXPECT_EQ(problemIn(asking.remove(u"key"_s)), CloudProblem::WrongPassword);
}

INSTANTIATE_TEST_SUITE_P(Servers, WebDavStorageTest,
    ::testing::Values(Program::Lighttpd, Program::Apache),
    [](const auto &each) { return each.param == Program::Lighttpd ? "Lighttpd" : "Apache"; });

} // namespace
} // namespace quillon::test
