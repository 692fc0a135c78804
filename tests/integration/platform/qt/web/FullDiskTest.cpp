// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/platform/qt/web/HttpTest.h"

#include <QDir>

#include <sys/mount.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// As root in a sandbox, because only root may mount.
class FullDisk : public HttpTest
{
protected:
    FullDisk()
    {
        EXPECT_EQ(::mount("disk", disk(), "tmpfs", 0, "size=1m"), 0);
        HttpClientOptions options;
        options.folder = folder.path();
        client.emplace(options);
    }
    ~FullDisk() override
    {
        client.reset();
        EXPECT_EQ(::umount(disk()), 0);
    }
    const char *disk()
    {
        name = QFile::encodeName(folder.path());
        return name.constData();
    }

    QTemporaryDir folder;
    QByteArray name;
};

TEST_F(FullDisk, EndsADownloadAndKeepsNothingOfIt)
{
    web.serve("/page", {{u"size"_s, 5'000'000}});
    const Downloaded result = download(WebServer::secure("/page"));
    ASSERT_TRUE(result.error);
    EXPECT_EQ(outcome(*result.error), systemFailure(ENOSPC));
    EXPECT_EQ(result.error->message, u"No space left on device"_s);
    EXPECT_LE(result.steps.last().received, 1'048'576);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());

    web.serve("/page", {{u"size"_s, 500'000}});
    EXPECT_EQ(download(WebServer::secure("/page")).body, QByteArray(500'000, '#'))
        << "there is room again";
}

} // namespace
} // namespace quillon::test
