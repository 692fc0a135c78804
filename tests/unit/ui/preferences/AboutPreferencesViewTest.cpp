// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/AboutPreferencesView.h"

#include "ui/widgets/InlineLine.h"
#include "unit/ui/preferences/PanesFixture.h"

#include <QLabel>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AboutPreferencesViewTest : public PanesFixture
{
protected:
    AboutPreferencesViewTest()
    {
        machine.settings.setBool(keys::showInMenu, true);
        features().presence.goTo(Destination::About);
        open(PreferencesPane::About);
    }

    QPushButton &link(const QString &title) const
    {
        for (auto *button : window->findChildren<QPushButton *>()) {
            if (button->text() == title) {
                return *button;
            }
        }
        qFatal("no %s", qUtf8Printable(title));
    }
};

TEST_F(AboutPreferencesViewTest, EveryControlIsNamed)
{
    expectNamed();
    EXPECT_TRUE(part<QLabel>("aboutVersion").text().startsWith(u"Version "_s));
}

TEST_F(AboutPreferencesViewTest, LinksOpenAndAFailureIsTold)
{
    link(u"The License on the Web"_s).click();
    EXPECT_EQ(
        machine.links.opened, QList<QUrl>{QUrl(u"https://www.gnu.org/licenses/gpl-3.0.html"_s)});
    machine.links.hasBrowser = false;
    link(u"Where Vendors Are Registered"_s).click();
    const auto *line = window->findChild<InlineLine *>(u"aboutFailure"_s);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(), u"No program here opens https://registry.example/"_s);
    EXPECT_EQ(line->kind(), InlineLine::Kind::Danger);
}

} // namespace
} // namespace quillon::test
