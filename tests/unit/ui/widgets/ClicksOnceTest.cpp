// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ClicksOnce.h"

#include "unit/ui/WidgetFixture.h"

#include <QPushButton>

namespace quillon::test {
namespace {

class ClicksOnceTest : public WidgetFixture
{
protected:
    ClicksOnceTest()
    {
        column->addWidget(button);
        button->installEventFilter(&once);
        QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
        show();
    }
    void send(QEvent::Type type) { sendMouse(*button, type, button->rect().center()); }

    ClicksOnce once;
    QPushButton *button = new QPushButton;
    int clicks = 0;
};

TEST_F(ClicksOnceTest, TakeTwoFastOnesForOne)
{
    click(*button);
    send(QEvent::MouseButtonDblClick);
    send(QEvent::MouseButtonRelease);
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(button->isDown());
}

TEST_F(ClicksOnceTest, TakeTwoSlowOnesForTwo)
{
    click(*button);
    click(*button);
    EXPECT_EQ(clicks, 2);
}

} // namespace
} // namespace quillon::test
