// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/AboutPreferencesViewController.h"

#include "fakes/FakeLinkOpener.h"
#include "fakes/QtPrinting.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AboutPreferencesViewControllerTest : public ::testing::Test
{
protected:
    FakeLinkOpener desktop;
    AboutPreferencesViewController pane{
        desktop, u"/usr/share/quillon4/LICENSE"_s, QUrl(u"https://registry.example/oui/oui.csv"_s)};
};

TEST_F(AboutPreferencesViewControllerTest, SaysVersionAndLicense)
{
    const QString before = QCoreApplication::applicationVersion();
    QCoreApplication::setApplicationVersion(u"4.0.0"_s);
    EXPECT_EQ(AboutPreferencesViewController::version(), u"Version 4.0.0"_s);
    QCoreApplication::setApplicationVersion(before);
    EXPECT_TRUE(AboutPreferencesViewController::license().contains(
        u"GNU General Public License, version 3"_s));
}

TEST_F(AboutPreferencesViewControllerTest, EveryLinkOpens)
{
    ASSERT_EQ(pane.links().size(), 3);
    for (qsizetype index = 0; index < pane.links().size(); ++index) {
        pane.openLink(index);
    }
    EXPECT_EQ(desktop.opened, (QList<QUrl>{QUrl(u"file:///usr/share/quillon4/LICENSE"_s),
                                  QUrl(u"https://www.gnu.org/licenses/gpl-3.0.html"_s),
                                  QUrl(u"https://registry.example/"_s)}));
    EXPECT_EQ(pane.state().failure, QString());
}

TEST_F(AboutPreferencesViewControllerTest, WhatIsNotThereIsNotLinked)
{
    const AboutPreferencesViewController bare(desktop, {}, {});
    ASSERT_EQ(bare.links().size(), 1);
    EXPECT_EQ(bare.links().first().title, u"The License on the Web"_s);
}

TEST_F(AboutPreferencesViewControllerTest, WithoutABrowserItSaysWhereTheLinkLeads)
{
    desktop.hasBrowser = false;
    pane.openLink(1);
    EXPECT_EQ(
        pane.state().failure, u"No program here opens https://www.gnu.org/licenses/gpl-3.0.html"_s);
    desktop.hasBrowser = true;
    pane.openLink(1);
    EXPECT_EQ(pane.state().failure, QString());
}

TEST_F(AboutPreferencesViewControllerTest, ALinkThatIsNotThereOpensNothing)
{
    pane.openLink(-1);
    pane.openLink(3);
    EXPECT_TRUE(desktop.opened.isEmpty());
}

} // namespace
} // namespace quillon::test
