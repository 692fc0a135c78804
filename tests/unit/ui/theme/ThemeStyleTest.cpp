// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/ThemeStyle.h"

#include "unit/ui/WidgetFixture.h"

#include <QComboBox>
#include <QPushButton>
#include <QStyle>
#include <QWheelEvent>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ThemeStyleTest : public WidgetFixture
{
protected:
    ThemeStyleTest()
    {
        column->addWidget(button);
        show();
        button->setFocus();
    }

    bool underlines() const
    {
        return button->style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, button) != 0;
    }
    void send(QEvent::Type type)
    {
        QKeyEvent event(type, Qt::Key_Alt, Qt::NoModifier);
        QApplication::sendEvent(button, &event);
    }

    QPushButton *button = new QPushButton(u"&Randomize"_s);
};

TEST_F(ThemeStyleTest, UnderlinesLettersWhileAltIsHeld)
{
    EXPECT_FALSE(underlines());
    const QImage plain = button->grab().toImage();
    send(QEvent::KeyPress);
    EXPECT_TRUE(underlines());
    EXPECT_NE(button->grab().toImage(), plain);
    send(QEvent::KeyRelease);
    EXPECT_FALSE(underlines());
    EXPECT_EQ(button->grab().toImage(), plain);
}

TEST_F(ThemeStyleTest, AltThatIsLetGoElsewhereIsNotHeld)
{
    send(QEvent::KeyPress);
    QEvent away(QEvent::WindowDeactivate);
    QApplication::sendEvent(&window, &away);
    EXPECT_FALSE(underlines());
}

TEST_F(ThemeStyleTest, TheWheelChoosesNothingInAPopUp)
{
    auto *popUp = new QComboBox;
    popUp->addItems({u"Daily"_s, u"Weekly"_s, u"Monthly"_s});
    column->addWidget(popUp);
    popUp->setFocus();
    const QPointF place(5, 5);
    QWheelEvent down(place, popUp->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(popUp, &down);
    EXPECT_EQ(popUp->currentText(), u"Daily"_s);
}

} // namespace
} // namespace quillon::test
