// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/TracesView.h"

#include "devices/CurrentInterface.h"
#include "fakes/FakeExposureSource.h"
#include "presentation/networks/TracesModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/ContentScrollArea.h"
#include "unit/networks/NetworkFixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QScrollBar>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;

class TracesViewTest : public NetworkFixture
{
protected:
    TracesViewTest()
    {
        theme.apply();
        current.selectInterface(u"wlp2s0"_s);
        scheduler.runPending();
        source.facts.hostName = u"laptop"_s;
        source.facts.ipv4 = {
            .isUsed = Answer::Yes, .sendsName = Answer::Yes, .sendsIdentifier = Answer::No};
        source.facts.ipv6.isUsed = Answer::No;
        source.facts.ipv6Addresses = QList<ExposureFacts::Ipv6Address>();
    }

    void show()
    {
        view.resize(300, 400);
        view.show();
        settle();
    }
    void settle()
    {
        scheduler.runPending();
        QCoreApplication::processEvents();
    }
    QLabel *value(const QString &name) const
    {
        for (auto *label : view.findChildren<QLabel *>()) {
            if (label->accessibleName() == name && label->isVisible()) {
                return label;
            }
        }
        return nullptr;
    }

    Theme theme;
    FakeExposureSource source{scheduler};
    CurrentInterface current{settings, scheduler, table};
    TracesModel model{source, scheduler, current, table};
    TracesView view{model};
};

TEST_F(TracesViewTest, HasTheTracesReadWhileItIsSeen)
{
    EXPECT_TRUE(source.asked.isEmpty());
    show();
    EXPECT_EQ(source.asked.size(), 1);
    view.hide();
    model.interfaceWasUpdated();
    EXPECT_EQ(source.asked.size(), 1);
}

TEST_F(TracesViewTest, ShowsEachAndWhatCanBeDone)
{
    show();
    const QLabel *name = value(u"Name sent with DHCP, laptop"_s);
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->focusPolicy() & Qt::TabFocus, Qt::TabFocus);
    EXPECT_TRUE(name->textInteractionFlags() & Qt::TextSelectableByKeyboard);
    EXPECT_EQ(name->accessibleDescription(), u"Stays the same on every network."_s);
    source.facts.ipv4.sendsName = Answer::No;
    model.interfaceWasUpdated();
    settle();
    EXPECT_EQ(value(u"Name sent with DHCP, laptop"_s), nullptr);
}

TEST_F(TracesViewTest, ShowsTextsAsTheyAreAndScrolls)
{
    source.facts.ipv4.name = u"<img src=/dev/zero>\u202e%1"_s;
    source.facts.ipv6Addresses = QList<ExposureFacts::Ipv6Address>(
        50, {.octets = QByteArray::fromHex("20010db8000000001234567890abcdef")});
    show();
    const QLabel *name = value(u"Name sent with DHCP, <img src=/dev/zero>\ufffd%1"_s);
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->textFormat(), Qt::PlainText);
    const auto *area = view.findChild<ContentScrollArea *>();
    ASSERT_NE(area, nullptr);
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    EXPECT_LE(area->height(), 400);
}

} // namespace
} // namespace quillon::test
