// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/Footer.h"

#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "presence/Presence.h"
#include "unit/ui/WidgetFixture.h"

#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using testing::ElementsAre;

class FooterTest : public WidgetFixture
{
protected:
    FooterTest()
    {
        column->addWidget(footer);
        show();
    }
    QStringList ways() const
    {
        QStringList titles;
        for (const auto *button : footer->findChildren<QPushButton *>()) {
            if (button->isVisible()) {
                titles.append(button->text());
            }
        }
        return titles;
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    Presence presence{settings};
    Footer *footer = new Footer(presence, theme);
};

TEST_F(FooterTest, LeadsToTheWindowsThatAreThere)
{
    EXPECT_THAT(ways(), ElementsAre());
    presence.offer(Destination::History);
    presence.offer(Destination::Overview);
    EXPECT_THAT(ways(), ElementsAre(u"Overview"_s, u"History"_s));
    presence.offer(Destination::Preferences);
    EXPECT_THAT(ways(), ElementsAre(u"Overview"_s, u"History"_s, u"Preferences"_s));
    QList<Destination> chosen;
    QObject::connect(&presence, &Presence::destinationChosen,
        [&chosen](Destination destination) { chosen.append(destination); });
    for (auto *button : footer->findChildren<QPushButton *>()) {
        button->click();
    }
    EXPECT_THAT(
        chosen, ElementsAre(Destination::Overview, Destination::History, Destination::Preferences));
}

} // namespace
} // namespace quillon::test
