// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DesktopSoftwareCenter.h"

#include "fakes/QtPrinting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DesktopSoftwareCenterTest : public ::testing::Test
{
protected:
    DesktopSoftwareCenterTest()
    {
        qputenv("XDG_DATA_HOME", data.filePath(u"home"_s).toLocal8Bit());
        qputenv("XDG_DATA_DIRS", data.filePath(u"system"_s).toLocal8Bit());
    }
    ~DesktopSoftwareCenterTest() override
    {
        restore("XDG_DATA_HOME", home);
        restore("XDG_DATA_DIRS", dirs);
    }

    static void restore(const char *name, const QByteArray &value)
    {
        if (value.isNull()) {
            qunsetenv(name);
        } else {
            qputenv(name, value);
        }
    }
    /// What the desktop's database of programs says.
    void writeCache(const QByteArray &text)
    {
        const QString folder = data.filePath(u"system/applications"_s);
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile cache(folder + u"/mimeinfo.cache"_s);
        ASSERT_TRUE(cache.open(QIODevice::WriteOnly));
        cache.write(text);
    }

    const QByteArray home = qgetenv("XDG_DATA_HOME");
    const QByteArray dirs = qgetenv("XDG_DATA_DIRS");
    QTemporaryDir data;
    QList<QUrl> opened;
    bool canOpen = true;
    const DesktopSoftwareCenter::Open open = [this](const QUrl &address) {
        opened.append(address);
        return canOpen;
    };
};

TEST_F(DesktopSoftwareCenterTest, OpensTheProgramsPageWhereOneIsThere)
{
    DesktopSoftwareCenter center(true, open);
    writeCache("[MIME Cache]\nx-scheme-handler/http=browser.desktop;\n"
               "x-scheme-handler/appstream=center.desktop;other.desktop;\n");
    EXPECT_TRUE(center.openOwnPage());
    EXPECT_THAT(opened, ElementsAre(QUrl(u"appstream:com.orvandel.Quillon4"_s)));
    canOpen = false;
    EXPECT_FALSE(center.openOwnPage());
}

TEST_F(DesktopSoftwareCenterTest, HasNoneWhereNoProgramTakesSuchAddresses)
{
    DesktopSoftwareCenter center(true, open);
    EXPECT_FALSE(center.openOwnPage());
    for (const char *cache : {"", "[MIME Cache]\nx-scheme-handler/http=browser.desktop;\n",
             "x-scheme-handler/appstream=\n", "x-scheme-handler/appstream=;\n",
             "x-scheme-handler/appstreams=center.desktop;\n",
             "text/x-scheme-handler/appstream=center.desktop;\n"}) {
        writeCache(cache);
        EXPECT_FALSE(center.openOwnPage()) << cache;
    }
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(DesktopSoftwareCenterTest, KnowsOnlyWhatAPackageBrought)
{
    DesktopSoftwareCenter center(false, open);
    writeCache("x-scheme-handler/appstream=center.desktop;\n");
    EXPECT_FALSE(center.openOwnPage());
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(DesktopSoftwareCenterTest, OpensPagesOverHttpsOnly)
{
    DesktopSoftwareCenter center(false, open);
    for (const char *page : {"http://pages.example/", "file:///etc/passwd", "javascript:alert(1)",
             "appstream:x", "https:", "pages.example", ""}) {
        EXPECT_FALSE(center.openWebPage(QUrl(QString::fromLatin1(page)))) << page;
    }
    EXPECT_THAT(opened, IsEmpty());
    const QUrl page(u"https://pages.example/new?x=1#y"_s);
    EXPECT_TRUE(center.openWebPage(page));
    EXPECT_THAT(opened, ElementsAre(page));
    canOpen = false;
    EXPECT_FALSE(center.openWebPage(page));
}

} // namespace
} // namespace quillon::test
