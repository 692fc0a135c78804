// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/ui/window/MainWindowFixture.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTranslator>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// A language in which everything takes half as much room again.
class WordyLanguage : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString english = QString::fromUtf8(text);
        return english + QString(english.size() / 2 + 1, u'n');
    }
    bool isEmpty() const override { return false; }
};

class MainWindowLayoutTest : public MainWindowFixture
{
protected:
    /// The window anew, without the helper, in a language that needs more room.
    void speakWordily()
    {
        WordyLanguage language;
        QCoreApplication::installTranslator(&language);
        readMe.setHelperInstalled(false);
        makeView();
        QCoreApplication::removeTranslator(&language);
        QCoreApplication::processEvents();
    }

    void expectNothingCutOff() const
    {
        for (QWidget *widget : view->findChildren<QWidget *>()) {
            const bool hasText = qobject_cast<QLabel *>(widget) != nullptr ||
                                 qobject_cast<QPushButton *>(widget) != nullptr;
            if (!hasText || !widget->isVisible()) {
                continue;
            }
            const auto *label = qobject_cast<QLabel *>(widget);
            if (label != nullptr && label->wordWrap()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << label->text().toStdString();
            } else {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << widget->accessibleName().toStdString();
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
            }
        }
    }
};

TEST_F(MainWindowLayoutTest, NothingIsCutOffInAWordyLanguage)
{
    speakWordily();
    expectNothingCutOff();
}

TEST_F(MainWindowLayoutTest, NothingIsCutOffInLargeTypeAndFromRightToLeft)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(2 * usual.pointSizeF());
    QApplication::setFont(large);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    theme.apply();
    speakWordily();
    expectNothingCutOff();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(usual);
}

} // namespace
} // namespace quillon::test
