// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryController.h"

#include "networks/SavedEntries.h"
#include "unit/presentation/history/HistoryFixture.h"

#include <QFile>
#include <QLocale>

namespace quillon::test {

using namespace std::chrono_literals;

class HistoryControllerTest : public HistoryWindowFixture
{
};

// MARK: what is listed

TEST_F(HistoryControllerTest, ListsTheNewestFirst)
{
    fill(3);
    open();
    EXPECT_EQ(texts(HistoryColumn::Address),
        QStringList({u"02:00:00:00:00:2"_s, u"02:00:00:00:00:1"_s, u"02:00:00:00:00:0"_s}));
    EXPECT_EQ(state().summary, u"3 records"_s);
    EXPECT_EQ(state().emptySentence, QString());
}

TEST_F(HistoryControllerTest, ShowsWhatARecordHolds)
{
    insert(1).setNotes(u"<b>mine</b>"_s);
    save();
    open();
    EXPECT_EQ(controller.text(0, HistoryColumn::Interface), u"Wi-Fi"_s);
    EXPECT_EQ(controller.text(0, HistoryColumn::Device), u"wlp2s0"_s);
    EXPECT_EQ(controller.text(0, HistoryColumn::Network), u"Harbor"_s);
    EXPECT_EQ(controller.text(0, HistoryColumn::Bssid), u"a4:2b:b0:11:22:33"_s);
    EXPECT_EQ(controller.text(0, HistoryColumn::Notes), u"<b>mine</b>"_s);
    EXPECT_EQ(controller.toolTip(0, HistoryColumn::Notes), u"<b>mine</b>"_s);
    EXPECT_EQ(controller.toolTip(0, HistoryColumn::Address),
        u"Wi-Fi (wlp2s0) was given 02:AA:BB:00:00:01 on Harbor."_s);
    EXPECT_TRUE(controller.toolTip(0, HistoryColumn::Date).contains(u"2025"_s));
    EXPECT_EQ(controller.text(7, HistoryColumn::Notes), QString());
    EXPECT_EQ(controller.toolTip(7, HistoryColumn::Notes), QString());
}

TEST_F(HistoryControllerTest, NothingIsReadBeforeTheWindowOpensOrAfterItClosed)
{
    fill(2);
    controller.windowDidLoad();
    search(u"x"_s);
    EXPECT_EQ(controller.rows().size(), 0);
    EXPECT_FALSE(scheduler.hasTimers());
    controller.controlTextDidChange({});
    controller.windowDidOpen();
    endTurn();
    EXPECT_EQ(controller.rows().size(), 2);
    controller.windowDidClose();
    endTurn();
    EXPECT_EQ(controller.rows().size(), 0);
    EXPECT_FALSE(scheduler.hasTimers());
    insert(9);
    save();
    EXPECT_EQ(controller.rows().size(), 0);
    controller.windowDidOpen();
    endTurn();
    EXPECT_EQ(controller.rows().size(), 3);
}

TEST_F(HistoryControllerTest, AChangeMadeWhileItIsOpenIsThere)
{
    fill(1);
    open();
    insert(5);
    save();
    EXPECT_EQ(controller.rows().size(), 2);
    EXPECT_EQ(state().summary, u"2 records"_s);
    EXPECT_EQ(controller.text(0, HistoryColumn::Address), u"02:AA:BB:00:00:01"_s);
}

TEST_F(HistoryControllerTest, AnEmptyHistorySaysWhatItIsFor)
{
    open();
    EXPECT_EQ(state().emptySentence, u"Every address change is listed here."_s);
    EXPECT_FALSE(state().clearOffered);
    EXPECT_EQ(state().summary, u"0 records"_s);
    EXPECT_FALSE(state().exportEnabled);
    insert(1);
    save();
    EXPECT_EQ(state().emptySentence, QString());
    EXPECT_EQ(state().summary, u"1 record"_s);
    EXPECT_TRUE(state().exportEnabled);
}

TEST_F(HistoryControllerTest, IsSortedByAnyColumn)
{
    insert(1, u"c"_s);
    insert(2, u"a"_s);
    insert(3, u"b"_s);
    save();
    open();
    controller.sortBy(HistoryColumn::Address, true);
    endTurn();
    EXPECT_EQ(texts(HistoryColumn::Address), QStringList({u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_EQ(state().sortColumn, HistoryColumn::Address);
    EXPECT_TRUE(state().isAscending);
    controller.sortBy(HistoryColumn::Address, false);
    endTurn();
    EXPECT_EQ(texts(HistoryColumn::Address), QStringList({u"C"_s, u"B"_s, u"A"_s}));
    controller.sortBy(HistoryColumn::Date, true);
    endTurn();
    EXPECT_EQ(texts(HistoryColumn::Address), QStringList({u"C"_s, u"A"_s, u"B"_s}));
}

TEST_F(HistoryControllerTest, IsSortedByWhatIsShownNotByTheLettersOfTheRecords)
{
    insert(1, u"B0"_s);
    insert(2, u"a1"_s);
    insert(3, u"A2"_s);
    save();
    open();
    controller.sortBy(HistoryColumn::Address, true);
    endTurn();
    EXPECT_EQ(texts(HistoryColumn::Address), QStringList({u"A1"_s, u"A2"_s, u"B0"_s}));
    insert(4, u"a3"_s);
    endTurn();
    EXPECT_EQ(texts(HistoryColumn::Address), QStringList({u"A1"_s, u"A2"_s, u"A3"_s, u"B0"_s}))
        << "one that is not saved as well";
    controller.sortBy(HistoryColumn::Address, false);
    endTurn();
    EXPECT_EQ(texts(HistoryColumn::Address), QStringList({u"B0"_s, u"A3"_s, u"A2"_s, u"A1"_s}));
}

TEST_F(HistoryControllerTest, SwitchingTheLettersRedisplaysTheAddresses)
{
    insert(1);
    save();
    open();
    EXPECT_EQ(controller.text(0, HistoryColumn::Address), u"02:AA:BB:00:00:01"_s);
    int reloads = 0;
    QObject::connect(&controller, &HistoryController::rowsReloaded, [&reloads] { ++reloads; });
    settings.set(keys::lowerCaseHEX, true);
    EXPECT_EQ(reloads, 1);
    EXPECT_EQ(controller.text(0, HistoryColumn::Address), u"02:aa:bb:00:00:01"_s);
    settings.changeFromOutside(keys::lowerCaseHEX, false);
    endTurn();
    EXPECT_EQ(reloads, 2);
}

TEST_F(HistoryControllerTest, MidnightMakesTodayYesterdayAndNothingTicksBefore)
{
    insert(0).setDate(scheduler.now());
    save();
    open();
    scheduler.advance(1s);
    const int before = scheduler.wakeUps();
    int reloads = 0;
    QObject::connect(&controller, &HistoryController::rowsReloaded, [&reloads] { ++reloads; });
    EXPECT_TRUE(controller.text(0, HistoryColumn::Date).startsWith(u"Today"_s));
    scheduler.advance(24h);
    EXPECT_EQ(reloads, 1);
    EXPECT_EQ(scheduler.wakeUps(), before + 1);
    EXPECT_TRUE(controller.text(0, HistoryColumn::Date).startsWith(u"Yesterday"_s));
    scheduler.advance(24h);
    EXPECT_EQ(reloads, 2);
    EXPECT_TRUE(controller.text(0, HistoryColumn::Date).startsWith(u"Jun"_s));
}

// MARK: searching

TEST_F(HistoryControllerTest, AllFieldsFindsATextWhereverItIs)
{
    insert(1).setDevice(u"needle0"_s);
    insert(2).setNotes(u"a needle in the hay"_s);
    insert(3);
    save();
    open();
    search(u"needle"_s);
    EXPECT_EQ(texts(HistoryColumn::Device), QStringList({u"wlp2s0"_s, u"needle0"_s}));
    EXPECT_EQ(state().summary, u"2 of 3 records"_s);
    search({});
    EXPECT_EQ(controller.rows().size(), 3);
    EXPECT_EQ(state().summary, u"3 records"_s);
}

TEST_F(HistoryControllerTest, TheLettersOfASearchMatter)
{
    insert(1);
    save();
    open();
    controller.setSearchType(u"ssid"_s);
    search(u"HARBOR"_s);
    EXPECT_EQ(controller.rows().size(), 0);
    EXPECT_EQ(state().emptySentence, u"Nothing contains “HARBOR”. Upper and lower case matter."_s);
    EXPECT_TRUE(state().clearOffered);
    search(u"Harbor"_s);
    EXPECT_EQ(controller.rows().size(), 1);
    EXPECT_FALSE(state().clearOffered);
}

TEST_F(HistoryControllerTest, ATypeLooksInItsFieldAlone)
{
    insert(1).setNotes(u"Harbor"_s);
    insert(2).setSsid(u"Elsewhere"_s);
    save();
    open();
    controller.setSearchType(u"notes"_s);
    search(u"Harbor"_s);
    EXPECT_EQ(controller.rows().size(), 1);
}

TEST_F(HistoryControllerTest, WhereNothingIsFoundThatStandsUntilAnotherSearchHasAnAnswer)
{
    insert(1);
    save();
    open();
    search(u"xyz"_s);
    ASSERT_TRUE(state().clearOffered);
    QStringList shown;
    QObject::connect(&controller, &HistoryController::changed, &controller,
        [&] { shown << state().emptySentence; });
    search(u"xyz0"_s);
    EXPECT_FALSE(shown.contains(QString())) << "the table is no place for nothing";
    EXPECT_TRUE(state().emptySentence.contains(u"xyz0"_s));
    search(u"Harbor"_s);
    EXPECT_EQ(state().emptySentence, QString());
}

TEST_F(HistoryControllerTest, ALongTextThatIsNotFoundIsSaidInASentence)
{
    open();
    search(QString(30'000, u'x'));
    EXPECT_LT(state().emptySentence.size(), 120);
}

TEST_F(HistoryControllerTest, WhatAnSqlOrAPatternWouldTakeForItsOwnIsText)
{
    insert(1).setNotes(u"100% of 'it'"_s);
    insert(2);
    save();
    open();
    search(u"0%"_s);
    EXPECT_EQ(controller.rows().size(), 1);
    search(u"'it'"_s);
    EXPECT_EQ(controller.rows().size(), 1);
    search(u"_"_s);
    EXPECT_EQ(controller.rows().size(), 0);
    search(QString(100'000, u'x'));
    EXPECT_EQ(controller.rows().size(), 0);
}

TEST_F(HistoryControllerTest, AnUnknownTypeFindsNothing)
{
    insert(1);
    save();
    open();
    for (const auto &type : {u"All"_s, u"colour"_s, u"date"_s, u""_s}) {
        settings.set(keys::historySearchType, type);
        search(u"Harbor"_s);
        EXPECT_EQ(controller.rows().size(), 0) << type.toStdString();
        EXPECT_TRUE(state().clearOffered);
    }
    settings.set(keys::historySearchType, 7);
    search(u"Harbor"_s);
    EXPECT_EQ(controller.rows().size(), 0);
}

TEST_F(HistoryControllerTest, TheFilterLastsUntilTheTextChanges)
{
    insert(1).setNotes(u"Harbor"_s);
    save();
    open();
    search(u"wlp"_s);
    ASSERT_EQ(controller.rows().size(), 1);
    controller.setSearchType(u"notes"_s);
    endTurn();
    EXPECT_EQ(controller.rows().size(), 1);
    insert(2).setNotes(u"new"_s);
    save();
    EXPECT_EQ(controller.rows().size(), 2) << "by the condition of then";
    search(u"wl"_s);
    EXPECT_EQ(controller.rows().size(), 0);
}

/// A machine whose background is busy with other things until it is released.
class BusyScheduler : public FakeScheduler
{
public:
    void inBackground(Task task) override { m_held << std::move(task); }
    void release()
    {
        for (Task &task : std::exchange(m_held, {})) {
            FakeScheduler::inBackground(std::move(task));
        }
        runPending();
    }

private:
    QList<Task> m_held;
};

TEST_F(HistoryControllerTest, ASearchThatTakesLongSaysSoAndKeepsWhatIsShown)
{
    fill(1);
    BusyScheduler busy;
    RecordStore another(busy, folder.path());
    HistoryController slow({another, settings, busy, alerts});
    slow.windowDidOpen();
    busy.release();
    ASSERT_EQ(slow.state().summary, u"1 record"_s);
    slow.controlTextDidChange(u"x"_s);
    busy.advance(HistoryController::patience - 1ms);
    EXPECT_EQ(slow.state().summary, u"1 record"_s) << "most searches are over by then";
    busy.advance(1ms);
    EXPECT_EQ(slow.state().summary, u"Searching…"_s);
    EXPECT_FALSE(slow.state().exportEnabled);
    EXPECT_EQ(slow.rows().size(), 1);
    busy.release();
    EXPECT_EQ(slow.state().summary, u"0 of 1 record"_s);
    EXPECT_EQ(slow.rows().size(), 0);
}

TEST_F(HistoryControllerTest, ThePlaceholderIsTheTitleOfTheType)
{
    open();
    EXPECT_EQ(state().searchType, u"all"_s);
    EXPECT_EQ(state().placeholder, u"Search All Fields"_s) << "though \"All\" means plain Search";
    settings.clearJournal();
    controller.setSearchType(u"bssid"_s);
    EXPECT_EQ(state().placeholder, u"Search BSSIDs"_s);
    EXPECT_EQ(settings.journal(), QStringList({u"set historySearchType"_s, u"synchronize"_s}));
    settings.set(keys::historySearchType, u"All"_s);
    EXPECT_EQ(state().placeholder, u"Search"_s);
    settings.changeFromOutside(keys::historySearchType, u"notes"_s);
    endTurn();
    EXPECT_EQ(state().placeholder, u"Search Notes"_s);
    settings.set(keys::historySearchType, u"colour"_s);
    EXPECT_EQ(state().placeholder, u"Search"_s);
}

TEST_F(HistoryControllerTest, TheMenuHasATypeForEachText)
{
    open();
    QStringList titles;
    for (const HistorySearchType &type : state().searchTypes) {
        titles << type.title;
    }
    EXPECT_EQ(titles, QStringList({u"Search All Fields"_s, u"Search Devices"_s,
                          u"Search Interfaces"_s, u"Search Addresses"_s, u"Search Network Names"_s,
                          u"Search BSSIDs"_s, u"Search Notes"_s}));
}

// MARK: the selected records

TEST_F(HistoryControllerTest, WithoutASelectionNothingCanBeSavedOrDeleted)
{
    fill(2);
    open();
    EXPECT_FALSE(controller.validateUserInterfaceItem(1));
    EXPECT_FALSE(controller.validateUserInterfaceItem(2));
    EXPECT_TRUE(controller.validateUserInterfaceItem(0));
    EXPECT_TRUE(controller.validateUserInterfaceItem(3));
    EXPECT_FALSE(state().addressesEnabled);
    EXPECT_FALSE(state().networksEnabled);
    EXPECT_FALSE(state().deleteEnabled);
    EXPECT_EQ(state().detail, QString());
    settings.clearJournal();
    controller.addAddressesToSaved();
    controller.addNetworksToSaved();
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(HistoryControllerTest, SavesWhatIsSelectedUntilThatIsSaved)
{
    fill(3);
    open();
    select(0, 1);
    EXPECT_TRUE(state().addressesEnabled);
    EXPECT_TRUE(state().networksEnabled);
    controller.addAddressesToSaved();
    endTurn();
    EXPECT_EQ(savedEntries(settings, keys::savedAddresses).size(), 2);
    EXPECT_FALSE(state().addressesEnabled);
    EXPECT_TRUE(state().networksEnabled);
    controller.addNetworksToSaved();
    endTurn();
    EXPECT_EQ(
        savedEntries(settings, keys::savedNetworks).keys(), QStringList({u"a4:2b:b0:11:22:33"_s}));
    EXPECT_FALSE(state().networksEnabled);
    select(1, 2);
    EXPECT_TRUE(state().addressesEnabled) << "one of the two is not saved";
    settings.changeFromOutside(keys::savedNetworks, QVariantMap());
    endTurn();
    EXPECT_TRUE(state().networksEnabled);
}

TEST_F(HistoryControllerTest, AnAddressIsSavedAsTheRecordHoldsIt)
{
    insert(1);
    save();
    settings.set(keys::lowerCaseHEX, true);
    open();
    select(0, 0);
    controller.addAddressesToSaved();
    EXPECT_EQ(
        savedEntries(settings, keys::savedAddresses).keys(), QStringList({u"02:AA:bb:00:00:01"_s}));
}

TEST_F(HistoryControllerTest, RecordsWithoutANetworkDisableNetworksButAreSavedWithOthers)
{
    insert(1).setBssid(u""_s);
    insert(2);
    save();
    open();
    select(1, 1);
    EXPECT_FALSE(state().networksEnabled);
    select(0, 1);
    EXPECT_TRUE(state().networksEnabled);
    controller.addNetworksToSaved();
    EXPECT_EQ(savedEntries(settings, keys::savedNetworks).keys(),
        QStringList({u""_s, u"a4:2b:b0:11:22:33"_s}));
}

TEST_F(HistoryControllerTest, TellsInWordsWhatHappened)
{
    insert(1);
    insert(2).setSsid(u""_s);
    save();
    open();
    select(1, 1);
    EXPECT_TRUE(
        state().detail.endsWith(u": Wi-Fi (wlp2s0) was given 02:AA:BB:00:00:01 on Harbor."_s))
        << state().detail.toStdString();
    select(0, 0);
    EXPECT_TRUE(state().detail.endsWith(u"was given 02:AA:BB:00:00:01."_s));
    select(0, 1);
    EXPECT_EQ(state().detail, u"2 records selected"_s);
    settings.set(keys::lowerCaseHEX, true);
    select(0, 0);
    EXPECT_TRUE(state().detail.endsWith(u"was given 02:aa:bb:00:00:01."_s));
}

TEST_F(HistoryControllerTest, TheDeleteKeyDeletesWhatIsSelectedAndNoOtherKeyDoes)
{
    fill(4);
    open();
    EXPECT_FALSE(controller.keyDown(HistoryController::Key::Other));
    EXPECT_TRUE(controller.keyDown(HistoryController::Key::Delete));
    EXPECT_EQ(controller.rows().size(), 4) << "nothing is selected";
    EXPECT_TRUE(said.isEmpty());
    qsizetype wanted = -1;
    QObject::connect(&controller, &HistoryController::recordsDeleted,
        [&wanted](qsizetype row) { wanted = row; });
    select(1, 2);
    EXPECT_TRUE(state().deleteEnabled);
    EXPECT_TRUE(controller.keyDown(HistoryController::Key::Delete));
    EXPECT_EQ(controller.rows().size(), 2) << "at once";
    EXPECT_EQ(wanted, 1);
    EXPECT_EQ(said, QStringList({u"2 records deleted"_s}));
    select(1, 1);
    controller.deleteSelected();
    EXPECT_EQ(wanted, 0) << "there is none behind it";
    EXPECT_EQ(said.last(), u"Record deleted"_s);
    EXPECT_TRUE(store.hasChanges()) << "they are saved like any change";
}

TEST_F(HistoryControllerTest, TheSameKeyAgainDeletesNothingMore)
{
    fill(3);
    open();
    select(0, 0);
    controller.deleteSelected();
    controller.deleteSelected();
    endTurn();
    EXPECT_EQ(controller.rows().size(), 2);
}

TEST_F(HistoryControllerTest, ASelectionBeyondTheRowsIsNoMatter)
{
    fill(2);
    open();
    select(1, 9);
    EXPECT_TRUE(state().detail.contains(u"was given"_s));
    controller.deleteSelected();
    EXPECT_EQ(controller.rows().size(), 1);
}

// MARK: more than can be kept

TEST_F(HistoryControllerTest, ManyAreDeletedForGoodAndOnlyWhenThatIsConfirmed)
{
    constexpr int many = HistoryDeletion::mostUndoable + 1;
    fill(many);
    open();
    select(0, many - 1);
    alerts.answer = 1;
    controller.deleteSelected();
    endTurn();
    ASSERT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(
        alerts.alerts.first().message, u"Delete %1 records?"_s.arg(QLocale().toString(10'001)));
    EXPECT_EQ(alerts.alerts.first().buttons, QStringList({u"Delete"_s, u"Cancel"_s}));
    EXPECT_EQ(alerts.alerts.first().defaultButton, 1) << "Return does not destroy";
    EXPECT_EQ(controller.rows().size(), many);

    alerts.answer = 0;
    controller.deleteSelected();
    ASSERT_TRUE(state().work);
    EXPECT_EQ(state().work->of, many);
    EXPECT_FALSE(store.canUndo());
    endTurn();
    EXPECT_EQ(controller.rows().size(), 0);
    EXPECT_FALSE(state().work);
    EXPECT_EQ(said, QStringList({u"%1 records deleted"_s.arg(QLocale().toString(10'001))}));
    EXPECT_FALSE(canUndoSaid);
}

TEST_F(HistoryControllerTest, SavingManyIsWorkThatCanBeStopped)
{
    fill(HistorySelection::mostAtOnce + 1);
    open();
    select(0, HistorySelection::mostAtOnce);
    EXPECT_TRUE(state().addressesEnabled);
    controller.addAddressesToSaved();
    ASSERT_TRUE(state().work);
    EXPECT_EQ(state().work->text, u"Saving…"_s);
    EXPECT_EQ(state().work->of, HistorySelection::mostAtOnce + 1);
    controller.stopWork();
    EXPECT_FALSE(state().work);
    endTurn();
    EXPECT_TRUE(savedEntries(settings, keys::savedAddresses).isEmpty());
    controller.addAddressesToSaved();
    endTurn();
    EXPECT_EQ(
        savedEntries(settings, keys::savedAddresses).size(), HistorySelection::mostAtOnce + 1);
    EXPECT_FALSE(state().addressesEnabled);
    EXPECT_FALSE(state().work);
    EXPECT_TRUE(said.isEmpty()) << "as for a few";
}

// MARK: widths and export

TEST_F(HistoryControllerTest, RemembersTheWidthsOfItsColumns)
{
    const QList<int> widths{1, 2, 3, 4, 5, 6, 7};
    EXPECT_TRUE(controller.columnWidths().isEmpty());
    controller.setColumnWidths(widths);
    EXPECT_EQ(controller.columnWidths(), widths);
    settings.clearJournal();
    controller.setColumnWidths(widths);
    EXPECT_TRUE(settings.journal().isEmpty());
    for (const QVariant &other : {QVariant(u"wide"_s), QVariant(QVariantList{1, 2, 3}),
             QVariant(QVariantList{1, 2, 3, 4, 5, 6, -7}),
             QVariant(QVariantList{1, 2, 3, 4, 5, 6, 1'000'000}),
             QVariant(QVariantList{1, 2, 3, 4, 5, 6, u"wide"_s})}) {
        settings.set(keys::historyColumnWidths, other);
        EXPECT_TRUE(controller.columnWidths().isEmpty());
    }
}

TEST_F(HistoryControllerTest, ExportsWhatIsShown)
{
    fill(3);
    insert(9).setNotes(u"=1"_s);
    save();
    open();
    search(u"=1"_s);
    const QString file = folder.filePath(u"history.csv"_s);
    controller.exportTo(file);
    ASSERT_TRUE(state().work);
    EXPECT_EQ(state().work->text, u"Exporting…"_s);
    endTurn();
    EXPECT_FALSE(state().work);
    EXPECT_EQ(said, QStringList({u"1 record exported"_s}));
    QFile opened(file);
    ASSERT_TRUE(opened.open(QFile::ReadOnly));
    EXPECT_TRUE(opened.readAll().endsWith(",Harbor,a4:2b:b0:11:22:33,'=1\r\n"));
}

TEST_F(HistoryControllerTest, AnExportThatFailsSaysWhyUntilTheNextThingIsDone)
{
    fill(1);
    open();
    controller.exportTo(folder.filePath(u"missing/history.csv"_s));
    endTurn();
    EXPECT_TRUE(state().failure.startsWith(u"The file could not be written. "_s));
    EXPECT_FALSE(state().work);
    controller.exportTo(folder.filePath(u"history.csv"_s));
    EXPECT_EQ(state().failure, QString());
    controller.stopWork();
    endTurn();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"history.csv"_s)));
    EXPECT_FALSE(state().work);
    EXPECT_TRUE(state().exportEnabled);
}

TEST_F(HistoryControllerTest, WithoutAFileNothingIsExported)
{
    fill(1);
    open();
    controller.exportTo({});
    EXPECT_FALSE(state().work);
}

} // namespace quillon::test
