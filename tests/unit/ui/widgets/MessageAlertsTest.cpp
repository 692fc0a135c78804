// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/MessageAlerts.h"

#include "base/Error.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const Alert question{u"Could not save changes while quitting. Quit anyway?"_s,
    u"Quitting now will lose any changes"_s, {u"Quit anyway"_s, u"Later"_s, u"Cancel"_s}};

class MessageAlertsTest : public ::testing::Test
{
protected:
    /// Runs when the box is open; it must be closed then.
    static void whenOpen(const std::function<void(QMessageBox &)> &act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            act(*box);
        });
    }
    static QPushButton *button(const QMessageBox &box, const QString &title)
    {
        for (auto *candidate : box.findChildren<QPushButton *>()) {
            if (candidate->text() == title) {
                return candidate;
            }
        }
        return nullptr;
    }

    MessageAlerts alerts;
};

TEST_F(MessageAlertsTest, ShowsTheTextsAndTheButtonsInTheirOrder)
{
    whenOpen([](QMessageBox &box) {
        EXPECT_EQ(box.text(), question.message);
        EXPECT_EQ(box.informativeText(), question.informativeText);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        QList<int> lefts;
        for (const QString &title : question.buttons) {
            lefts << button(box, title)->mapTo(&box, QPoint()).x();
        }
        EXPECT_LT(lefts[0], lefts[1]);
        EXPECT_LT(lefts[1], lefts[2]);
        box.close();
    });
    alerts.runModal(question);
}

TEST_F(MessageAlertsTest, TheFirstButtonIsTheDefault)
{
    whenOpen([](QMessageBox &box) {
        EXPECT_EQ(box.defaultButton(), button(box, question.buttons.first()));
        box.defaultButton()->click();
    });
    EXPECT_EQ(alerts.runModal(question), 0);
}

TEST_F(MessageAlertsTest, AnotherButtonCanBeTheDefault)
{
    Alert other = question;
    other.defaultButton = 2;
    whenOpen([](QMessageBox &box) {
        EXPECT_EQ(box.defaultButton(), button(box, u"Cancel"_s));
        box.defaultButton()->click();
    });
    EXPECT_EQ(alerts.runModal(other), 2);
}

TEST_F(MessageAlertsTest, AnswersWithTheButtonThatWasChosen)
{
    for (int index = 0; index < question.buttons.size(); ++index) {
        whenOpen([index](QMessageBox &box) { button(box, question.buttons.at(index))->click(); });
        EXPECT_EQ(alerts.runModal(question), index);
    }
}

TEST_F(MessageAlertsTest, ClosingIsTheLastButton)
{
    whenOpen([](QMessageBox &box) { box.close(); });
    EXPECT_EQ(alerts.runModal(question), 2);
    whenOpen([](QMessageBox &box) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&box, &escape);
    });
    EXPECT_EQ(alerts.runModal(question), 2);
}

TEST_F(MessageAlertsTest, WithoutButtonsItCanStillBeAnswered)
{
    whenOpen([](QMessageBox &box) { button(box, u"OK"_s)->click(); });
    EXPECT_EQ(alerts.runModal({u"Message"_s, {}, {}}), 0);
}

TEST_F(MessageAlertsTest, ASentenceIsNotBrokenIntoShreds)
{
    whenOpen([](QMessageBox &box) {
        EXPECT_GE(box.width(), 360);
        box.close();
    });
    alerts.runModal({u"Quit?"_s, u"Now"_s, {u"OK"_s}});
}

TEST_F(MessageAlertsTest, AnErrorIsShownWithItsDomainAndCodeAndResolvesNothing)
{
    whenOpen([](QMessageBox &box) {
        EXPECT_EQ(box.text(), u"The disk is full"_s);
        EXPECT_EQ(box.informativeText(), u"com.example.records (13)"_s);
        box.close();
    });
    Error error;
    error.domain = u"com.example.records"_s;
    error.code = 13;
    error.message = u"The disk is full"_s;
    EXPECT_FALSE(alerts.presentError(error));
}

} // namespace
} // namespace quillon::test
