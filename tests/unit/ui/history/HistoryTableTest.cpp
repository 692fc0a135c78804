// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/history/HistoryTable.h"

#include "unit/ui/history/HistoryViewFixture.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

namespace quillon::test {

class HistoryTableTest : public HistoryViewFixture
{
protected:
    int widthOf(HistoryColumn column) const
    {
        return table().columnWidth(static_cast<int>(column));
    }
    bool isFolded(HistoryColumn column) const
    {
        return table().isColumnHidden(static_cast<int>(column));
    }
    /// The number of the record in the row at the top of what is in sight.
    QString top() const { return shown(table().rowAt(1), HistoryColumn::Address).section(u':', 5); }
};

TEST_F(HistoryTableTest, ShowsARowForEachRecord)
{
    fill(3);
    show();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_EQ(shown(0, HistoryColumn::Address), u"02:00:00:00:00:2"_s);
    EXPECT_EQ(shown(0, HistoryColumn::Network), u"Harbor"_s);
    EXPECT_EQ(table().rowHeight(0), HistoryTable::recordHeight);
    EXPECT_EQ(table().model()->headerData(3, Qt::Horizontal, Qt::DisplayRole), u"Address"_s);
}

TEST_F(HistoryTableTest, TextsFromOutsideAreOneLineWithoutMarkup)
{
    insert(1).setNotes(u"<img src='/dev/zero'>\nsecond"_s);
    save();
    show();
    EXPECT_EQ(shown(0, HistoryColumn::Notes), u"<img src='/dev/zero'> second"_s);
    const QString tip = table()
                            .model()
                            ->index(0, static_cast<int>(HistoryColumn::Notes))
                            .data(Qt::ToolTipRole)
                            .toString();
    EXPECT_FALSE(tip.contains(u"<img"_s)) << tip.toStdString();
}

TEST_F(HistoryTableTest, ARecordThatComesInAtTheTopLeavesTheRestWhereItIs)
{
    fill(100);
    show();
    constexpr int rows = 40;
    table().verticalScrollBar()->setValue(rows * HistoryTable::recordHeight);
    table().selectRow(rows + 2);
    const QString before = top();
    insert(500);
    save();
    settle();
    EXPECT_EQ(table().model()->rowCount(), 101);
    EXPECT_EQ(top(), before);
    EXPECT_EQ(selectedRows(), QList<int>({rows + 3}));
    EXPECT_TRUE(state().detail.contains(shown(rows + 3, HistoryColumn::Address)));
}

TEST_F(HistoryTableTest, WhoLooksAtTheTopSeesANewRecord)
{
    fill(100);
    show();
    insert(500, u"02:11"_s);
    save();
    settle();
    EXPECT_EQ(table().verticalScrollBar()->value(), 0);
    EXPECT_EQ(shown(0, HistoryColumn::Address), u"02:11"_s);
}

TEST_F(HistoryTableTest, AListThatIsToldAsAWholeKeepsPlaceAndSelection)
{
    fill(300);
    show();
    constexpr int rows = 100;
    table().verticalScrollBar()->setValue(rows * HistoryTable::recordHeight);
    table().selectRow(rows);
    const QString selected = shown(rows, HistoryColumn::Address);
    {
        FakeScheduler another;
        auto opened = ManagedObjectContext::open(quillonModel(), path, another);
        ASSERT_TRUE(opened);
        const auto all = opened.value()->fetch(Connection::fetchRequest()).value();
        for (qsizetype each = 0; each < all.size(); each += 2) {
            if (all[each]->value(model::connection::address) != selected) {
                opened.value()->deleteObject(all[each]);
            }
        }
        ASSERT_FALSE(opened.value()->save());
    }
    context().mergeChangesFromStore();
    settle();
    ASSERT_EQ(selectedRows().size(), 1);
    EXPECT_EQ(shown(selectedRows().first(), HistoryColumn::Address), selected);
    EXPECT_GT(table().verticalScrollBar()->value(), 0);
}

TEST_F(HistoryTableTest, AnotherSearchBeginsAtItsTop)
{
    fill(200);
    show();
    table().verticalScrollBar()->setValue(3000);
    search(u":1"_s);
    settle();
    EXPECT_EQ(table().verticalScrollBar()->value(), 0);
}

TEST_F(HistoryTableTest, AHeadSortsAndTheSameHeadReverses)
{
    insert(1, u"b"_s);
    insert(2, u"a"_s);
    save();
    show();
    QHeaderView &head = *table().horizontalHeader();
    EXPECT_EQ(head.sortIndicatorSection(), 0);
    EXPECT_EQ(head.sortIndicatorOrder(), Qt::DescendingOrder);
    Q_EMIT head.sectionClicked(3);
    settle();
    EXPECT_EQ(shown(0, HistoryColumn::Address), u"A"_s);
    EXPECT_EQ(head.sortIndicatorSection(), 3);
    EXPECT_EQ(head.sortIndicatorOrder(), Qt::AscendingOrder);
    Q_EMIT head.sectionClicked(3);
    settle();
    EXPECT_EQ(shown(0, HistoryColumn::Address), u"B"_s);
    Q_EMIT head.sectionClicked(0);
    settle();
    EXPECT_EQ(head.sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(HistoryTableTest, AMirroredWindowShowsAddressesAsTheyAre)
{
    insert(1, u"62:68:66:48:DC:27"_s);
    save();
    show();
    const auto picture = [this] {
        const QModelIndex index = table().model()->index(0, int(HistoryColumn::Address));
        return table().viewport()->grab(table().visualRect(index)).toImage();
    };
    const auto inked = [](const QImage &image) {
        QRect box;
        for (int y = 0; y < image.height() - 2; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 128) {
                    box |= QRect(x, y, 1, 1);
                }
            }
        }
        return image.copy(box);
    };
    const QImage usual = inked(picture());
    ASSERT_FALSE(usual.isNull());
    window.setLayoutDirection(Qt::RightToLeft);
    settle();
    const QImage mirrored = inked(picture());
    ASSERT_EQ(mirrored.size(), usual.size());
    // The edges of letters may fall between other pixels.
    int differences = 0;
    int dark = 0;
    for (int y = 0; y < usual.height(); ++y) {
        for (int x = 0; x < usual.width(); ++x) {
            const bool isDark = qGray(usual.pixel(x, y)) < 128;
            dark += int(isDark);
            differences += int(isDark != (qGray(mirrored.pixel(x, y)) < 128));
        }
    }
    EXPECT_LT(differences, dark / 5) << "of " << dark;
}

TEST_F(HistoryTableTest, TheEditorOfANoteHasRoomForTheRingOfTheKeyboard)
{
    fill(1);
    show();
    table().selectRow(0);
    table().editNote();
    ASSERT_NE(editor(), nullptr);
    constexpr int ring = 2 * Theme::ringWidth;
    EXPECT_TRUE(table().viewport()->rect().contains(
        editor()->geometry().adjusted(-ring, -ring, ring, ring)));
}

TEST_F(HistoryTableTest, ByTheKeyTheMenuOpensAtItsRow)
{
    fill(100);
    show();
    table().selectRow(50);
    QList<QPoint> places;
    QObject::connect(&table(), &QWidget::customContextMenuRequested, &table(),
        [&places](const QPoint &place) { places << place; });
    QContextMenuEvent byKey(
        QContextMenuEvent::Keyboard, table().rect().center(), QPoint(), Qt::NoModifier);
    QApplication::sendEvent(&table(), &byKey);
    ASSERT_EQ(places.size(), 1);
    EXPECT_EQ(table().rowAt(places.first().y()), 50) << "and the row is in sight";
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, QPoint(20, 5), QPoint(), Qt::NoModifier);
    QApplication::sendEvent(table().viewport(), &byMouse);
    EXPECT_EQ(places.value(1), QPoint(20, 5));
    for (auto *menu : window.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly)) {
        menu->close();
    }
    settle();
}

TEST_F(HistoryTableTest, F2EditsTheNoteOfTheRowAndReturnSavesIt)
{
    fill(2);
    show();
    table().setFocus();
    table().selectRow(1);
    press(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    EXPECT_TRUE(editor()->hasFocus());
    editor()->insert(u"in the harbor"_s);
    Q_EMIT editor()->textEdited(editor()->text());
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(shown(1, HistoryColumn::Notes), u"in the harbor"_s);
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(selectedRows(), QList<int>({1}));
}

TEST_F(HistoryTableTest, EscapeGivesTheNoteUp)
{
    fill(1);
    show();
    table().setFocus();
    table().selectRow(0);
    press(Qt::Key_Return);
    ASSERT_NE(editor(), nullptr);
    Q_EMIT editor()->textEdited(u"nonsense"_s);
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(shown(0, HistoryColumn::Notes), QString());
    EXPECT_FALSE(controller.note().isEditing());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(HistoryTableTest, LeavingTheNoteTakesIt)
{
    fill(1);
    show();
    table().setFocus();
    table().selectRow(0);
    table().editNote();
    Q_EMIT editor()->textEdited(u"typed"_s);
    field().setFocus();
    settle();
    EXPECT_EQ(shown(0, HistoryColumn::Notes), u"typed"_s);
}

TEST_F(HistoryTableTest, ANoteIsEditedWhileRecordsComeIn)
{
    fill(3);
    show();
    table().selectRow(1);
    table().editNote();
    editor()->setText(u"typed"_s);
    editor()->setModified(true);
    Q_EMIT editor()->textEdited(u"typed"_s);
    insert(500);
    save();
    settle();
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), u"typed"_s);
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(shown(2, HistoryColumn::Notes), u"typed"_s);
}

TEST_F(HistoryTableTest, TheEditorGoesWithItsRecord)
{
    fill(1);
    show();
    table().selectRow(0);
    table().editNote();
    Q_EMIT editor()->textEdited(u"lost"_s);
    {
        FakeScheduler another;
        auto opened = ManagedObjectContext::open(quillonModel(), path, another);
        ASSERT_TRUE(opened);
        opened.value()->deleteObject(
            opened.value()->fetch(Connection::fetchRequest()).value().first());
        ASSERT_FALSE(opened.value()->save());
    }
    context().mergeChangesFromStore();
    settle();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(table().model()->rowCount(), 0);
    EXPECT_FALSE(store.hasChanges());
}

TEST_F(HistoryTableTest, ALongOrBrokenNoteIsOpenedAndClosedUnchanged)
{
    const QString book = QString(40'000, u'x') + u"\nsecond line"_s;
    insert(1).setNotes(book);
    save();
    show();
    table().selectRow(0);
    table().editNote();
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text().size(), book.size());
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(controller.text(0, HistoryColumn::Notes), book);
    EXPECT_FALSE(store.hasChanges());
}

TEST_F(HistoryTableTest, DeleteDeletesTheSelectedRowsAndSelectsTheNext)
{
    fill(4);
    show();
    table().setFocus();
    table().selectRow(1);
    press(Qt::Key_Delete);
    settle();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_EQ(selectedRows(), QList<int>({1}));
    press(Qt::Key_Backspace);
    settle();
    EXPECT_EQ(table().model()->rowCount(), 2);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&table(), &held);
    settle();
    EXPECT_EQ(table().model()->rowCount(), 2) << "held, it deletes no more";
}

TEST_F(HistoryTableTest, SelectingEverythingIsOneRange)
{
    fill(1000);
    show();
    table().selectAll();
    settle();
    EXPECT_EQ(table().selectionModel()->selection().size(), 1);
    EXPECT_TRUE(state().detail.contains(u"selected"_s));
    table().setFocus();
    press(Qt::Key_Delete);
    settle();
    EXPECT_EQ(table().model()->rowCount(), 0);
}

TEST_F(HistoryTableTest, NarrowItFoldsTheBssidAndThenTheDevice)
{
    fill(1);
    show();
    window.resize(1100, 520);
    settle();
    EXPECT_FALSE(isFolded(HistoryColumn::Bssid));
    EXPECT_FALSE(isFolded(HistoryColumn::Device));
    window.resize(window.minimumWidth(), 520);
    settle();
    EXPECT_TRUE(isFolded(HistoryColumn::Bssid));
    EXPECT_TRUE(isFolded(HistoryColumn::Device));
    EXPECT_FALSE(isFolded(HistoryColumn::Notes));
    int middle = window.width();
    while (isFolded(HistoryColumn::Device) && middle < 1100) {
        window.resize(middle += 10, 520);
        settle();
    }
    EXPECT_TRUE(isFolded(HistoryColumn::Bssid)) << "comes back last";
    window.resize(1100, 520);
    settle();
    EXPECT_FALSE(isFolded(HistoryColumn::Bssid));
    EXPECT_TRUE(controller.columnWidths().isEmpty()) << "folding is no choice of the user's";
}

TEST_F(HistoryTableTest, TheWidthsThatTheUserMadeAreRemembered)
{
    fill(1);
    show();
    window.resize(1100, 520);
    settle();
    table().horizontalHeader()->resizeSection(0, 211);
    EXPECT_TRUE(controller.columnWidths().isEmpty());
    WidgetSettling::sendMouse(
        *table().horizontalHeader()->viewport(), QEvent::MouseButtonRelease, QPoint(211, 5));
    EXPECT_EQ(controller.columnWidths().value(0), 211);
    HistoryTable another(controller, theme);
    EXPECT_EQ(another.columnWidth(0), 211);
    EXPECT_EQ(another.columnWidth(3), widthOf(HistoryColumn::Address));
}

} // namespace quillon::test
