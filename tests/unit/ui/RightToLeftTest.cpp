// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Places.h"
#include "base/Isolates.h"
#include "base/Languages.h"
#include "base/Localized.h"
#include "fakes/QtPrinting.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/RowButton.h"
#include "unit/ui/UserInterfaceFixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QGlyphRun>
#include <QLabel>
#include <QRegularExpression>
#include <QTextLayout>
#include <QXmlStreamReader>

#include <functional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Whether what stands there in the text is seen in one piece and from left to right, in a text
/// that begins where its language begins.
bool readsAsItIs(const QString &text, qsizetype place, qsizetype size)
{
    QTextLayout layout(text);
    QTextOption option(Qt::AlignLeft);
    option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine().setLineWidth(QWIDGETSIZE_MAX);
    layout.endLayout();
    qreal end = 0;
    for (qsizetype at = place; at < place + size; ++at) {
        const auto glyphs = layout.glyphRuns(static_cast<int>(at), 1);
        if (glyphs.size() != 1 || glyphs.first().positions().isEmpty()) {
            return false;
        }
        const qreal begin = glyphs.first().positions().first().x();
        const qreal width = glyphs.first().boundingRect().width();
        if (at > place && (begin < end || begin > end + 2 * width + 20)) {
            return false;
        }
        end = begin;
    }
    return true;
}

/// The translations of a right-to-left table, each form of them.
QStringList texts(const QString &language)
{
    QFile file(testData() + u"/../../translations/quillon_"_s + language + u".ts"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList found;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (!reader.readNextStartElement()) {
            continue;
        }
        if (reader.name() == "numerusform"_L1) {
            found.append(reader.readElementText());
        } else if (reader.name() == "translation"_L1) {
            // Of one with forms these are blanks.
            reader.readNext();
            if (reader.isCharacters() && !reader.isWhitespace()) {
                found.append(reader.text().toString());
            }
        }
    }
    return found;
}

TEST(RightToLeft, ATurnedAddressIsSeen)
{
    const QString address = u"00:ab:cd:ef:12:34"_s;
    const QString bare = u"عنوان "_s + address;
    EXPECT_FALSE(readsAsItIs(bare, bare.indexOf(address), address.size()))
        << "or the tests below see nothing";
    const QString isolatedOne = u"عنوان "_s + isolated(address);
    EXPECT_TRUE(readsAsItIs(isolatedOne, isolatedOne.indexOf(address), address.size()));
}

TEST(RightToLeft, EveryValueReadsAsItIsInEverySentence)
{
    const auto table = texts(u"ar"_s);
    ASSERT_GT(table.size(), 500);
    for (const QString &value : {u"00:ab:cd:ef:12:34"_s, u"2001:db8::1"_s, u"192.0.2.10"_s,
             u"wlp2s0"_s, u"/srv/a/.config/b-1.plist"_s, u"Ctrl+Alt+1"_s, u"1.10~rc2"_s}) {
        for (const QString &text : table) {
            const QString sentence = plainLine(filled(text, {value, value, value, value}));
            // Not the room before the titles of a menu, nor what a long line has left out.
            qsizetype place = text.startsWith("%@"_L1) ? value.size() : 0;
            for (;;) {
                place = sentence.indexOf(value, place);
                if (place < 0) {
                    break;
                }
                EXPECT_TRUE(readsAsItIs(sentence, place, value.size()))
                    << sentence.toStdString() << " at " << place;
                place += value.size();
            }
        }
    }
}

/// The whole program with its windows in Arabic.
class RightToLeftTest : public UserInterfaceFixture
{
protected:
    void run()
    {
        createWithWindows();
        startWithWindows();
        features().presence.openWindow();
        desktop->trayHost.become(true);
        machine.scheduler.runPending();
        QCoreApplication::processEvents();
        features().statusMenu.menuWillOpen();
    }

    const UserLanguage language{QStringList{u"ar-EG"_s}};
};

TEST_F(RightToLeftTest, AddressesAreNotTurnedInLabelsAndMenus)
{
    run();
    static const QRegularExpression address(u"(?:[0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}"_s);
    int seen = 0;
    const auto look = [&seen](const QString &text) {
        auto matches = address.globalMatch(text);
        while (matches.hasNext()) {
            const auto match = matches.next();
            EXPECT_TRUE(readsAsItIs(text, match.capturedStart(), match.capturedLength()))
                << text.toStdString();
            ++seen;
        }
    };
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            look(label->text());
        }
        look(widget->toolTip());
    }
    for (const MenuEntry &entry : features().statusMenu.entries()) {
        look(entry.title);
    }
    EXPECT_GE(seen, 4) << "of two interfaces, each its two addresses";
}

TEST_F(RightToLeftTest, WhatIsCopiedAndStoredHasNoMarks)
{
    run();
    int copied = 0;
    for (QWidget *widget : QApplication::allWidgets()) {
        if (qobject_cast<RowButton *>(widget) == nullptr) {
            continue;
        }
        for (QAction *action : widget->actions()) {
            QGuiApplication::clipboard()->clear();
            action->trigger();
            const QString text = QGuiApplication::clipboard()->text();
            EXPECT_EQ(text, withoutIsolates(text)) << widget->accessibleName().toStdString();
            copied += text.isEmpty() ? 0 : 1;
        }
    }
    EXPECT_GT(copied, 0);
    features().mainWindow.randomizeAddress();
    machine.scheduler.advance(std::chrono::seconds(2));
    const QVariantMap settings = machine.settings.stored();
    const std::function<void(const QVariant &)> look = [&look](const QVariant &value) {
        if (value.typeId() == QMetaType::QVariantMap) {
            for (const QVariant &inner : value.toMap()) {
                look(inner);
            }
        }
        const QString text = value.toString();
        EXPECT_EQ(text, withoutIsolates(text));
    };
    ASSERT_FALSE(settings.isEmpty());
    look(settings);
}

} // namespace
} // namespace quillon::test
