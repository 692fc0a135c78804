// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "devices/HexValueTransformer.h"
#include "history/HistoryColumn.h"
#include "history/HistoryExport.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "presentation/history/HistoryDeletion.h"
#include "presentation/history/HistoryNote.h"
#include "presentation/history/HistorySelection.h"
#include "presentation/history/HistoryTexts.h"
#include "store/RecordListing.h"

#include <QObject>

#include <memory>
#include <vector>

namespace quillon {

/// The history's window: which records it shows, in which order, and what is done to the selected
/// ones. Main thread.
class HistoryController : public QObject
{
    Q_OBJECT

public:
    enum class Key
    {
        Delete,
        Other,
    };
    using Rows = HistorySelection::Rows;
    /// Something that takes its time, and can be stopped.
    struct Work
    {
        QString text;
        qsizetype done = 0;
        qsizetype of = 0;

        bool operator==(const Work &) const = default;
    };
    struct State
    {
        QString placeholder; ///< of the search field
        QList<HistorySearchType> searchTypes;
        QString searchType;        ///< the identifier of the one that is chosen
        QString searchText;        ///< what the records are searched for
        QString summary;           ///< "6 of 212 records"
        QString emptySentence;     ///< in place of the table; empty while there is something in it
        bool clearOffered = false; ///< with that sentence
        HistoryColumn sortColumn = HistoryColumn::Date;
        bool isAscending = false;
        bool addressesEnabled = false; ///< there is something to save
        bool networksEnabled = false;
        bool deleteEnabled = false;
        bool exportEnabled = false;
        QString detail; ///< what happened in the selected record
        std::optional<Work> work;
        QString failure; ///< of the last thing that was tried

        bool operator==(const State &) const = default;
    };
    struct Parts
    {
        RecordStore &records;
        SettingsStore &settings;
        Scheduler &scheduler;
        AlertPresenter &alerts;
    };

    /// A search that takes longer says so.
    static constexpr std::chrono::milliseconds patience{200};

    /// The menu items that validateUserInterfaceItem() knows.
    static constexpr int addressesTag = 1;
    static constexpr int networksTag = 2;

    explicit HistoryController(const Parts &parts);
    ~HistoryController() override;

    const State &state() const { return m_state.get(); }
    const RecordListing &rows() const { return m_rows; }
    HistoryNote &note() { return m_note; }
    HistoryDeletion &deletion() { return m_deletion; }

    /// Once, when the window has been made: follows the settings from then on.
    void windowDidLoad();
    /// Records are read while the window is open alone.
    void windowDidOpen();
    void windowDidClose();

    void setSearchType(const QString &identifier);
    void updateSearchField();
    void controlTextDidChange(const QString &text);
    void sortBy(HistoryColumn column, bool isAscending);
    /// Has everything displayed anew, in the chosen letters and as seen from today.
    void reloadArrayController();

    QString text(qsizetype row, HistoryColumn column) const;
    QString toolTip(qsizetype row, HistoryColumn column) const;

    /// In pixels, by column; empty until the user has chosen some, or when the setting is not of
    /// that shape.
    QList<int> columnWidths() const;
    void setColumnWidths(const QList<int> &widths);

    void select(const QList<Rows> &rows);
    void addAddressesToSaved();
    void addNetworksToSaved();
    bool validateUserInterfaceItem(int tag) const;
    /// False when the key means nothing here.
    bool keyDown(Key key);
    void deleteSelected();
    void editNote(qsizetype row);

    /// What is shown, into the file at `path`.
    void exportTo(const QString &path);
    void stopWork();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// Another list takes the place of the one that is shown, from its top.
    void searched();
    /// What the rows say changed, but not which they are.
    void rowsReloaded();
    /// Records were deleted, and others stay: `next` is the row to go on with.
    void recordsDeleted(qsizetype next);
    /// Something was done that cannot be undone, nor needs to.
    void said(const QString &message);

private:
    void search();
    void rearmMidnight();
    void lookAtSavedAnew();
    void refreshSoon();
    void refresh();
    void showEmptiness(State &state) const;
    void refreshWork();
    void fail(const QString &message);
    QString addressText(const Connection &record) const;
    QString summary() const;
    QString detail() const;

    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    RecordListing m_rows;
    HistoryNote m_note;
    HistoryDeletion m_deletion;
    HistoryExport m_export;
    HistorySelection m_selection;
    HexValueTransformer m_letters;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    std::optional<Predicate> m_condition; ///< of what was typed last
    bool m_isOpen = false;
    bool m_isSlow = false; ///< the search under way has used up our patience
    std::optional<Work> m_exporting;
    bool m_isRefreshDue = false;
    std::optional<Scheduler::Token> m_patience;
    std::unique_ptr<Scheduler::Alarm> m_midnight;
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
