// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/history/HistoryWindow.h"

#include "unit/ui/history/HistoryViewFixture.h"

#include <QFileDialog>
#include <QMenu>
#include <QProgressBar>

namespace quillon::test {

class HistoryWindowTest : public HistoryViewFixture
{
protected:
    Toast &toast() const { return *window.findChild<Toast *>(); }
    QPushButton &button(const QString &name) const { return part<QPushButton>(name + u"Button"_s); }
};

TEST_F(HistoryWindowTest, IsAWindowWithItsTitleAndItsField)
{
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(controller.rows().size(), 0);
    fill(2);
    show();
    EXPECT_EQ(window.windowTitle(), u"History"_s);
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(field().title(), u"Search All Fields"_s);
    EXPECT_EQ(part<QLabel>(u"historySummary"_s).text(), u"2 records"_s);
}

TEST_F(HistoryWindowTest, ClosedItForgetsWhatItListed)
{
    fill(2);
    show();
    window.close();
    EXPECT_EQ(controller.rows().size(), 0);
    show();
    EXPECT_EQ(table().model()->rowCount(), 2);
}

TEST_F(HistoryWindowTest, TypingSearchesAndDownGoesToTheTable)
{
    fill(12);
    show();
    for (const QChar letter : u"0:10"_s) {
        QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QApplication::sendEvent(&field(), &down);
    }
    settle();
    EXPECT_EQ(table().model()->rowCount(), 1);
    EXPECT_EQ(part<QLabel>(u"historySummary"_s).text(), u"1 of 12 records"_s);
    press(Qt::Key_Down);
    settle();
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(selectedRows(), QList<int>({0}));
    trigger(QKeySequence(Qt::CTRL | Qt::Key_F));
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(field().selectedText(), u"0:10"_s);
}

TEST_F(HistoryWindowTest, WhatIsNotFoundIsSaidInPlaceOfTheTable)
{
    fill(1);
    show();
    field().setText(u"xyz"_s);
    search(u"xyz"_s);
    settle();
    EXPECT_FALSE(table().isVisible());
    QPushButton *clear = nullptr;
    for (auto *each : window.findChildren<QPushButton *>()) {
        clear = each->text() == u"Clear Search"_s ? each : clear;
    }
    ASSERT_NE(clear, nullptr);
    EXPECT_TRUE(clear->isVisible());
    clear->click();
    settle();
    EXPECT_TRUE(table().isVisible());
    EXPECT_EQ(field().text(), QString());
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(table().model()->rowCount(), 1);
}

TEST_F(HistoryWindowTest, ButtonsDoWhatTheySayToTheSelectedRecords)
{
    fill(3);
    show();
    for (const auto &name : {u"saveAddresses"_s, u"saveNetworks"_s, u"deleteRecords"_s}) {
        EXPECT_FALSE(button(name).isEnabled()) << name.toStdString();
    }
    EXPECT_TRUE(button(u"exportHistory"_s).isEnabled());
    table().selectRow(0);
    settle();
    button(u"saveAddresses"_s).click();
    settle();
    EXPECT_EQ(
        settings.getDictionary(keys::savedAddresses).keys(), QStringList({u"02:00:00:00:00:2"_s}));
    EXPECT_FALSE(button(u"saveAddresses"_s).isEnabled());
    button(u"saveNetworks"_s).click();
    settle();
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).size(), 1);
    button(u"deleteRecords"_s).click();
    settle();
    EXPECT_EQ(table().model()->rowCount(), 2);
}

TEST_F(HistoryWindowTest, ADoubleClickOnDeleteDeletesOnce)
{
    fill(3);
    show();
    table().selectRow(0);
    settle();
    QPushButton &remove = button(u"deleteRecords"_s);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
             QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        WidgetSettling::sendMouse(remove, type, remove.rect().center());
        settle();
    }
    EXPECT_EQ(table().model()->rowCount(), 2);
    EXPECT_EQ(selectedRows(), QList<int>({0})) << "the next one, which could be deleted now";
}

TEST_F(HistoryWindowTest, ADeletionIsUndoneByItsToast)
{
    fill(3);
    show();
    table().selectRow(0);
    settle();
    controller.deleteSelected();
    settle();
    EXPECT_TRUE(toast().isVisible());
    EXPECT_EQ(toast().message(), u"Record deleted"_s);
    toast().findChild<QPushButton *>()->click();
    settle();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_FALSE(toast().isVisible());
}

TEST_F(HistoryWindowTest, TheToastCoversNoButton)
{
    fill(3);
    show();
    table().selectRow(0);
    settle();
    controller.deleteSelected();
    settle();
    ASSERT_TRUE(toast().isVisible());
    for (const auto &name : {u"saveAddresses"_s, u"exportHistory"_s, u"deleteRecords"_s}) {
        const QWidget &covered = button(name);
        EXPECT_FALSE(
            toast().geometry().intersects(QRect(covered.mapTo(&window, QPoint()), covered.size())))
            << name.toStdString();
    }
    EXPECT_TRUE(window.rect().contains(toast().geometry()));
}

TEST_F(HistoryWindowTest, TheToastGoesWhenItsUndoIsLost)
{
    fill(3);
    show();
    table().selectRow(0);
    settle();
    controller.deleteSelected();
    settle();
    trigger(QKeySequence(QKeySequence::Undo));
    settle();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_FALSE(toast().isVisible());
    trigger(QKeySequence(QKeySequence::Redo));
    settle();
    EXPECT_EQ(table().model()->rowCount(), 2);
}

TEST_F(HistoryWindowTest, SavingTakesTheOpenNote)
{
    fill(1);
    show();
    table().selectRow(0);
    table().editNote();
    Q_EMIT editor()->textEdited(u"typed"_s);
    int wanted = 0;
    QObject::connect(&edit, &EditMenuModel::saveRequested, [&wanted] { ++wanted; });
    trigger(QKeySequence(QKeySequence::Save));
    EXPECT_EQ(wanted, 1);
    EXPECT_TRUE(store.hasChanges());
}

TEST_F(HistoryWindowTest, AContextMenuHasEverythingAndSortsByEveryColumn)
{
    fill(2);
    show();
    table().selectRow(0);
    Q_EMIT table().customContextMenuRequested(QPoint(5, 5));
    QMenu *menu = nullptr;
    for (auto *each : window.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly)) {
        menu = each;
    }
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->isVisible());
    QStringList texts;
    QMenu *order = nullptr;
    for (QAction *action : menu->actions()) {
        if (!action->isSeparator()) {
            texts << action->text();
        }
        order = action->menu() != nullptr ? action->menu() : order;
    }
    EXPECT_EQ(texts, QStringList({u"Edit Note"_s, u"Save Addresses"_s, u"Save Networks"_s,
                         u"Sort By"_s, u"Export…"_s, u"Delete"_s}));
    ASSERT_NE(order, nullptr);
    EXPECT_EQ(order->actions().size(), 9);
    order->actions()[4]->trigger();
    EXPECT_EQ(state().sortColumn, HistoryColumn::Network);
    EXPECT_TRUE(state().isAscending);
    order->actions().last()->trigger();
    EXPECT_FALSE(state().isAscending);
    menu->close();
    settle();
}

TEST_F(HistoryWindowTest, ExportAsksForAFile)
{
    fill(1);
    show();
    button(u"exportHistory"_s).click();
    settle();
    auto *dialog = window.findChild<QFileDialog *>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
    Q_EMIT dialog->fileSelected(folder.filePath(u"out.csv"_s));
    dialog->close();
    settle();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"out.csv"_s)));
    EXPECT_EQ(toast().message(), u"1 record exported"_s);
    EXPECT_EQ(window.findChild<QFileDialog *>(), nullptr);
}

TEST_F(HistoryWindowTest, AFailureStandsInTheWindow)
{
    fill(1);
    show();
    controller.exportTo(folder.filePath(u"missing/out.csv"_s));
    auto &progress = *window.findChild<QProgressBar *>();
    EXPECT_TRUE(progress.isVisible());
    settle();
    EXPECT_FALSE(progress.isVisible());
    QStringList texts;
    for (const auto *label : window.findChildren<QLabel *>()) {
        if (label->isVisible()) {
            texts << label->text();
        }
    }
    EXPECT_FALSE(texts.filter(u"could not be written"_s).isEmpty())
        << texts.join(u'|').toStdString();
}

TEST_F(HistoryWindowTest, TheEndOfTheProgramTakesTheNote)
{
    fill(1);
    show();
    table().selectRow(0);
    table().editNote();
    Q_EMIT editor()->textEdited(u"typed"_s);
    Q_EMIT presence.terminated();
    EXPECT_TRUE(store.hasChanges());
}

TEST_F(HistoryWindowTest, KeysHeldInTheFieldDeleteNoRecords)
{
    fill(2);
    show();
    field().setFocus();
    press(Qt::Key_Delete);
    press(Qt::Key_Backspace);
    settle();
    EXPECT_EQ(table().model()->rowCount(), 2);
}

} // namespace quillon::test
