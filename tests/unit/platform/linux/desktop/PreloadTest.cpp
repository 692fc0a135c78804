// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/Preload.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

TEST(PreloadTest, ReadsTheFontConfigurationWhileTheMainThreadDoesOtherThings)
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"fonts.conf"_s));
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    qputenv("FONTCONFIG_FILE", path);
    qputenv("XDG_CACHE_HOME", QFile::encodeName(folder.path()));
    FontConfigurationPreload preload;
    // Opening waits for the reader, which is not this thread.
    const int configuration = open(path.constData(), O_WRONLY | O_CLOEXEC);
    ASSERT_GE(configuration, 0);
    const QByteArray text("<?xml version=\"1.0\"?><fontconfig></fontconfig>");
    EXPECT_EQ(
        write(configuration, text.constData(), static_cast<std::size_t>(text.size())), text.size());
    close(configuration);
    preload.wait();
}

} // namespace quillon::test
