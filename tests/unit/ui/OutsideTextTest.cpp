// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/MenuView.h"
#include "ui/vendors/VendorTableView.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/MessageAlerts.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/PopoverRow.h"
#include "ui/widgets/RowButton.h"
#include "unit/ui/OpenedFile.h"
#include "unit/ui/UserInterfaceFixture.h"
#include "vendors/VendorTable.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Stands in a text for the path of a picture that must not be opened.
const QString picture = u"PICTURE"_s;

/// What somebody outside of the program wrote, and what of it is shown: on one line, in a tool tip,
/// in a message. Without the last two they are as the line.
struct OutsideText
{
    QString written;
    QString line;
    QString tip = {};
    QString message = {};
};

const QList<OutsideText> outsideTexts{
    {u"<img src=\"PICTURE\">"_s, u"<img src=\"PICTURE\">"_s},
    {u"x<img src='PICTURE'/><br>y"_s, u"x<img src='PICTURE'/><br>y"_s},
    {u"<table background=\"PICTURE\"><tr><td>x"_s, u"<table background=\"PICTURE\"><tr><td>x"_s},
    {u"<b>x</b>"_s, u"<b>x</b>"_s},
    {u"&lt;b&gt; &amp;"_s, u"&lt;b&gt; &amp;"_s},
    {u"&File"_s, u"&File"_s},
    {u"AT&T & a_b & c__d&"_s, u"AT&T & a_b & c__d&"_s},
    {u"# *x* [y](PICTURE) [*]"_s, u"# *x* [y](PICTURE) [*]"_s},
    {u"%1 %d %s"_s, u"%1 %d %s"_s},
    {u"a\u202Eb\u2066c"_s, u"a\uFFFDb\uFFFDc"_s},
    {u"two\nlines\r\tand\u2028more"_s, u"two lines  and more"_s, {}, u"two\nlines  and more"_s},
    {QString(10'000, u'i'), QString(119, u'i') + u'…', QString(999, u'i') + u'…',
        QString(1999, u'i') + u'…'},
};

/// The whole program with its windows, on a machine that somebody filled with such texts.
class OutsideTextTest : public UserInterfaceFixture, public ::testing::WithParamInterface<qsizetype>
{
protected:
    OutsideTextTest()
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(picturePath));
        opened.emplace(picturePath);
        // The address in use must be one, or the interface is not taken.
        machine.host.plug({written, u"zzz0"_s, written, u"3c:22:fb:00:00:03"_s, {written}});
        setDeviceRecord(enp1s0, record::vendor, written);
        machine.settings.set(keys::vendorIDUpdatedDate, written);
        createWithWindows();
        offerVendor();
        startWithWindows();
        machine.settings.set(keys::externalIPAddress, written);
        features().presence.openWindow();
        desktop->trayHost.become(true);
        machine.scheduler.runPending();
    }

    QString filledIn(QString text) const { return text.replace(picture, picturePath); }

    QString orLine(const QString &text) const { return text.isEmpty() ? line : filledIn(text); }

    /// How an entry is shown that is made of the text and `end`.
    QString entry(const QString &end = {}) const
    {
        constexpr qsizetype keptEnd = 24;
        return line.endsWith(u'…')
                   ? QString(95, u'i') + u'…' + (QString(keptEnd, u'i') + end).right(keptEnd)
                   : QString(line + end);
    }

    /// A manufacturer's name, as the public registry has it.
    void offerVendor()
    {
        const QString csv = folder.filePath(u"oui.csv"_s);
        QFile file(csv);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        QString quoted = written;
        quoted.replace(u'"', u"\"\""_s);
        file.write("Registry,Assignment,Organization Name,Organization Address\r\nMA-L,0000FF,\"");
        file.write(quoted.toUtf8() + "\",\"" + quoted.toUtf8() + "\"\r\n");
        file.close();
        ASSERT_TRUE(fillVendorTable(csv, machine.data.filePath(u"oui.db"_s)));
    }

    /// Of the preferences, with such texts where others can write.
    QWidget *openPanes()
    {
        machine.settings.set(keys::showKeyCombo, written);
        machine.owners.setName(written);
        machine.owners.own(u"zzz0"_s);
        features().preferencesWindow.openPreferencesWindow();
        auto *preferences = part<QWidget>("preferences");
        for (const PreferencesPaneInfo &info : preferencesPanes()) {
            features().preferencesWindow.showPane(info.pane);
            machine.scheduler.runPending();
            QCoreApplication::processEvents();
            preferences->grab();
        }
        return preferences;
    }

    template <typename T>
    static T *part(const char *name)
    {
        for (QWidget *widget : QApplication::allWidgets()) {
            if (auto *found = qobject_cast<T *>(widget);
                found != nullptr && found->objectName() == QLatin1String(name)) {
                return found;
            }
        }
        ADD_FAILURE() << "no " << name;
        return nullptr;
    }

    /// What a person reads in the tool tip at this place; empty when none comes.
    static QString readToolTip(QWidget &widget, const QPoint &place)
    {
        QHelpEvent ask(QEvent::ToolTip, place, widget.mapToGlobal(place));
        QCoreApplication::sendEvent(&widget, &ask);
        if (!QToolTip::isVisible()) {
            return {};
        }
        const QString shown = QToolTip::text();
        QToolTip::hideText();
        if (!Qt::mightBeRichText(shown)) {
            return shown;
        }
        QTextDocument document;
        document.setHtml(shown);
        return document.toPlainText();
    }

    QTemporaryDir folder;
    const QString picturePath = folder.filePath(u"p.png"_s);
    const QString written = filledIn(outsideTexts.at(GetParam()).written);
    const QString line = filledIn(outsideTexts.at(GetParam()).line);
    const QString tip = orLine(outsideTexts.at(GetParam()).tip);
    const QString message = orLine(outsideTexts.at(GetParam()).message);
    std::optional<OpenedFile> opened;
};

TEST_P(OutsideTextTest, IsShownAsItIsInTheWindow)
{
    select(u"zzz0"_s);
    features().rules.countdown.showCountdown(u"zzz0"_s, written, false);
    features().vendors.pane.showAdditionNoted(written);
    QCoreApplication::processEvents();
    auto *window = part<QWidget>("windowView");
    for (auto *row : window->findChildren<PopoverRow *>()) {
        row->popover();
    }
    window->grab();

    for (const char *name : {"portName", "timerLabel", "hardwareAddress", "ipAddress"}) {
        const auto *label = part<QLabel>(name);
        const QString expected =
            QString::fromLatin1(name).endsWith("Address"_L1) ? label->accessibleName() : line;
        EXPECT_EQ(label->accessibleName().compare(line, Qt::CaseInsensitive), 0) << name;
        const QString shown = label->text();
        EXPECT_TRUE(
            shown == expected || (shown.endsWith(u'…') && expected.startsWith(shown.chopped(1))))
            << name << ": " << shown.toStdString();
    }
    EXPECT_TRUE(part<RowButton>("externalAddress")->accessibleName().endsWith(line));
    const QWidget *preferences = openPanes();
    EXPECT_EQ(part<InlineLine>("updatedLabel")->text(), line);
    for (QWidget *widget : QApplication::allWidgets()) {
        if (const auto *label = qobject_cast<QLabel *>(widget);
            label != nullptr && !label->inherits("QTipLabel")) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
        }
    }
    EXPECT_EQ(window->windowTitle(), u"Quillon"_s);
    EXPECT_LT(window->width(), 1280) << "the screen is not that wide";
    EXPECT_LT(preferences->minimumSizeHint().width(), 1280);
    EXPECT_FALSE(opened->wasOpened());
}

TEST_P(OutsideTextTest, IsShownAsItIsInToolTips)
{
    features().vendors.field.showVendorViewPopover();
    machine.scheduler.runPending();
    features().vendors.field.showText(written);
    QCoreApplication::processEvents();
    auto *field = part<QLineEdit>("vendorTextfield");
    auto *list = part<VendorTableView>("vendorTable");
    ASSERT_EQ(list->model()->rowCount(), 2);
    const int row = list->model()->index(0, 0).data().toString() == "Random Address"_L1 ? 1 : 0;
    const QModelIndex index = list->model()->index(row, 0);
    EXPECT_EQ(index.data().toString(), entry(u" (0000FF)"_s));
    EXPECT_EQ(field->text(), entry());

    EXPECT_EQ(readToolTip(*field, field->rect().center()), tip);
    EXPECT_EQ(readToolTip(*list->viewport(), list->visualRect(index).center()),
        tip.endsWith(u'…') ? tip : QString(tip + u" (0000FF)"_s));
    list->grab();

    // Nobody's tool tip is HTML but by way of plainToolTip().
    for (QWidget *widget : QApplication::allWidgets()) {
        const auto *button = qobject_cast<RowButton *>(widget);
        const bool isValue =
            button != nullptr && button->toolTip() == plainToolTip(button->value());
        EXPECT_TRUE(!Qt::mightBeRichText(widget->toolTip()) || widget == field || isValue)
            << widget->toolTip().toStdString();
    }
    EXPECT_FALSE(opened->wasOpened());
}

TEST_P(OutsideTextTest, IsShownAsItIsInTheFields)
{
    features().vendors.choice.updateVendorField(enp1s0);
    setDeviceRecord(written, record::current, u"3c:22:fb:00:00:04"_s);
    features().mainWindow.populateSelectionButton();
    auto *selector = part<QComboBox>("deviceSelectionButton");
    const int index = selector->findData(written);
    ASSERT_GE(index, 0);
    EXPECT_EQ(selector->itemText(index), line);
    Q_EMIT selector->activated(index);
    machine.scheduler.runPending();
    EXPECT_EQ(features().devices.currentInterface.device(), written);
    EXPECT_EQ(selector->currentText(), line);

    setDeviceRecord(written, record::vendor, written);
    features().vendors.choice.updateVendorField(written);
    EXPECT_EQ(part<QLineEdit>("vendorTextfield")->text(), entry());
    machine.settings.set(keys::currentInterfaceDict,
        QVariantMap{{record::device, written}, {record::current, written}});
    features().mainWindow.populateHexField();
    machine.scheduler.runPending();
    EXPECT_EQ(part<QLineEdit>("hexField")->text().compare(line, Qt::CaseInsensitive), 0);
    part<QWidget>("windowView")->grab();
    EXPECT_FALSE(opened->wasOpened());
}

TEST_P(OutsideTextTest, IsShownAsItIsInTheMenu)
{
    features().statusMenu.menuWillOpen();
    QString expected = line.endsWith(u'…') ? line : QString(line + u" \u00B7 zzz0"_s);
    QStringList shown;
    for (QWidget *widget : QApplication::allWidgets()) {
        if (auto *menu = qobject_cast<MenuView *>(widget)) {
            menu->grab();
            for (const QAction *action : menu->actions()) {
                shown << action->text();
            }
        }
    }
    EXPECT_TRUE(shown.contains(expected.replace(u'&', u"&&"_s))) << shown.join(u'\n').toStdString();
    EXPECT_FALSE(opened->wasOpened());
}

TEST_P(OutsideTextTest, IsShownAsItIsInMessages)
{
    MessageAlerts alerts;
    int shown = 0;
    const auto whenOpen = [&] {
        QTimer::singleShot(0, qApp, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            for (const QLabel *label : box->findChildren<QLabel *>()) {
                EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
            }
            EXPECT_EQ(box->text(), message);
            box->grab();
            ++shown;
            box->close();
        });
    };
    whenOpen();
    alerts.runModal({written, written, {u"OK"_s}});
    whenOpen();
    Error error;
    error.domain = written;
    error.message = written;
    alerts.presentError(error);
    EXPECT_EQ(shown, 2);
    EXPECT_FALSE(opened->wasOpened());
}

INSTANTIATE_TEST_SUITE_P(All, OutsideTextTest, ::testing::Range(qsizetype(0), outsideTexts.size()));

TEST(OutsideText, ThatIsHtmlOpensAPictureWhereNobodyMindsIt)
{
    // What the tests above rest on: such a text does open the file, and the watch tells.
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"p.png"_s);
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(path));
    const OpenedFile opened(path);
    QLabel label(u"<img src=\"%1\">"_s.arg(path));
    label.grab();
    EXPECT_TRUE(opened.wasOpened());
    EXPECT_FALSE(opened.wasOpened());
}

} // namespace
} // namespace quillon::test
