// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryController.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "history/HistorySearch.h"
#include "presentation/history/HistoryMoment.h"
#include "store/graph/FetchFailure.h"

#include <algorithm>
#include <utility>

namespace quillon {

HistoryController::HistoryController(const Parts &parts)
    : m_settings(parts.settings)
    , m_scheduler(parts.scheduler)
    , m_rows(parts.records, parts.scheduler)
    , m_note(parts.records)
    , m_deletion(parts.records, parts.scheduler, parts.alerts)
    , m_export(parts.scheduler)
    , m_selection(m_rows, parts.settings, parts.scheduler)
    , m_letters(parts.settings)
{
    for (const auto signal : {&RecordListing::reset, &RecordListing::inserted,
             &RecordListing::removed, &RecordListing::valuesChanged, &RecordListing::progressed}) {
        connect(&m_rows, signal, this, &HistoryController::refreshSoon);
    }
    connect(&m_rows, &RecordListing::valuesChanged, this, &HistoryController::rowsReloaded);
    connect(&m_rows, &RecordListing::valuesChanged, &m_selection, &HistorySelection::lookAgain);
    connect(&m_rows, &RecordListing::failed, this,
        [](const Error &error) { logFetchFailure(logHistory, error); });
    connect(&m_note, &HistoryNote::lost, this,
        [this] { Q_EMIT said(localized("The record has been deleted.")); });
    connect(&m_deletion, &HistoryDeletion::progressChanged, this, &HistoryController::refreshWork);
    connect(&m_deletion, &HistoryDeletion::failed, this, &HistoryController::fail);
    connect(&m_export, &HistoryExport::progressed, this, [this](qsizetype written, qsizetype of) {
        m_exporting = {localized("Exporting…"), written, of};
        refreshWork();
    });
    connect(&m_selection, &HistorySelection::looked, this, &HistoryController::refreshSoon);
    connect(
        &m_selection, &HistorySelection::progressChanged, this, &HistoryController::refreshWork);
    connect(&m_selection, &HistorySelection::cutAt, this, [this](qsizetype count) {
        Q_EMIT said(localized(
            "%Ln was saved. Save again for more.", "%Ln were saved. Save again for more.", count));
    });
    connect(&m_selection, &HistorySelection::failed, this,
        [this] { fail(localized("The records could not be read.")); });
    const auto endExport = [this] {
        m_exporting.reset();
        refreshWork();
    };
    connect(&m_export, &HistoryExport::cancelled, this, endExport);
    connect(&m_export, &HistoryExport::written, this, [this, endExport](qsizetype count) {
        endExport();
        Q_EMIT said(localized("%Ln record exported", "%Ln records exported", count));
    });
    connect(&m_export, &HistoryExport::failed, this, [this, endExport](const QString &reason) {
        endExport();
        fail(filled(localized("The file could not be written. %@"), {reason}));
    });
}

HistoryController::~HistoryController()
{
    windowDidClose();
    for (const auto token : m_observed) {
        m_settings.removeObserver(token);
    }
}

// MARK: the window

void HistoryController::windowDidLoad()
{
    const auto observe = [this](const QString &key, void (HistoryController::*reaction)()) {
        m_observed.push_back(
            m_settings.addObserver(key, [this, reaction](const auto &) { (this->*reaction)(); }));
    };
    observe(keys::lowerCaseHEX, &HistoryController::reloadArrayController);
    observe(keys::historySearchType, &HistoryController::updateSearchField);
    observe(keys::savedAddresses, &HistoryController::lookAtSavedAnew);
    observe(keys::savedNetworks, &HistoryController::lookAtSavedAnew);
    updateSearchField();
}

void HistoryController::windowDidOpen()
{
    if (!std::exchange(m_isOpen, true)) {
        rearmMidnight();
        search();
    }
}

void HistoryController::windowDidClose()
{
    if (!std::exchange(m_isOpen, false)) {
        return;
    }
    m_note.end();
    m_midnight.reset();
    if (m_patience) {
        m_scheduler.cancel(*std::exchange(m_patience, std::nullopt));
    }
    m_selection.clear();
    m_rows.clear();
}

void HistoryController::rearmMidnight()
{
    m_midnight = m_scheduler.alarmAt(nextMidnight(m_scheduler.now()), [this] {
        reloadArrayController();
        rearmMidnight();
    });
}

void HistoryController::reloadArrayController()
{
    Q_EMIT rowsReloaded();
    refreshSoon();
}

// MARK: searching

void HistoryController::setSearchType(const QString &identifier)
{
    m_settings.set(keys::historySearchType, identifier);
    m_settings.synchronize();
    updateSearchField();
}

void HistoryController::updateSearchField()
{
    const QString type = m_settings.getString(keys::historySearchType);
    m_state.update([&](State &state) {
        state.searchTypes = historySearchTypes();
        state.searchType = type;
        state.placeholder = localized("Search");
        // The identifiers are lower-case, so that of all fields never equals this.
        if (type != QLatin1StringView("All")) {
            for (const HistorySearchType &known : std::as_const(state.searchTypes)) {
                if (known.identifier == type) {
                    state.placeholder = known.title;
                }
            }
        }
    });
}

void HistoryController::controlTextDidChange(const QString &text)
{
    m_condition = historyCondition(m_settings.getString(keys::historySearchType), text);
    // The rows first: everything else is shown for longer.
    search();
    m_state.update([&](State &state) { state.searchText = text; });
}

void HistoryController::sortBy(HistoryColumn column, bool isAscending)
{
    m_state.update([&](State &state) {
        state.sortColumn = column;
        state.isAscending = isAscending;
    });
    search();
}

void HistoryController::search()
{
    if (!m_isOpen) {
        return;
    }
    // Where another list takes its place, the note is left like a field.
    m_note.end();
    m_isSlow = false;
    if (m_patience) {
        m_scheduler.cancel(*m_patience);
    }
    m_patience = m_scheduler.onMainAfter(patience, this, [this] {
        m_patience.reset();
        m_isSlow = true;
        refresh();
    });
    Q_EMIT searched();
    m_rows.show(historyRequest(m_condition, m_state->sortColumn, m_state->isAscending));
}

// MARK: what is shown

QString HistoryController::addressText(const Connection &record) const
{
    return m_letters.transformedValue(record.address());
}

QString HistoryController::text(qsizetype row, HistoryColumn column) const
{
    const ManagedObjectPtr object = m_rows.at(row);
    if (!object) {
        return {};
    }
    const Connection record(object);
    if (column == HistoryColumn::Date) {
        return momentText(record.date(), m_scheduler.now());
    }
    return column == HistoryColumn::Address ? addressText(record)
                                            : object->value(attributeOf(column)).toString();
}

QString HistoryController::toolTip(qsizetype row, HistoryColumn column) const
{
    const ManagedObjectPtr object = m_rows.at(row);
    if (!object) {
        return {};
    }
    const Connection record(object);
    if (column == HistoryColumn::Date) {
        return momentInFull(record.date());
    }
    return column == HistoryColumn::Notes ? record.notes()
                                          : sentenceOf(record, addressText(record));
}

QString HistoryController::summary() const
{
    if (!m_rows.isComplete()) {
        return m_isSlow ? localized("Searching…") : m_state->summary;
    }
    const qint64 found = m_rows.size();
    const qint64 total = m_rows.total().value_or(found);
    return m_condition ? recordsText(found, total) : recordsText(found);
}

QString HistoryController::detail() const
{
    const qsizetype count = m_selection.count();
    if (count > 1) {
        return localized("%Ln record selected", "%Ln records selected", count);
    }
    const auto records = m_selection.records(1);
    if (records.isEmpty()) {
        return {};
    }
    const Connection &record = records.first();
    const QString moment = momentInFull(record.date());
    const QString sentence = sentenceOf(record, addressText(record));
    return moment.isEmpty() ? sentence : filled(localized("%@: %@"), {moment, sentence});
}

void HistoryController::refreshSoon()
{
    if (!std::exchange(m_isRefreshDue, true)) {
        m_scheduler.onMain(this, [this] {
            m_isRefreshDue = false;
            refresh();
        });
    }
}

void HistoryController::refresh()
{
    if (m_rows.isComplete() && m_patience) {
        m_scheduler.cancel(*std::exchange(m_patience, std::nullopt));
    }
    // Until it is known what there is, that nothing was found before is what is shown.
    const bool isKnown = m_rows.isComplete() || m_rows.size() > 0 || !m_isOpen;
    m_state.update([&](State &state) {
        state.summary = summary();
        if (isKnown) {
            showEmptiness(state);
        }
        state.addressesEnabled = validateUserInterfaceItem(addressesTag);
        state.networksEnabled = validateUserInterfaceItem(networksTag);
        state.deleteEnabled = m_selection.count() > 0 && !m_deletion.progress();
        state.exportEnabled = m_rows.isComplete() && m_rows.size() > 0 && !m_export.isRunning();
        state.detail = detail();
    });
}

void HistoryController::showEmptiness(State &state) const
{
    const bool isEmpty = m_rows.isComplete() && m_rows.size() == 0;
    state.clearOffered = isEmpty && m_condition;
    if (state.clearOffered) {
        state.emptySentence =
            filled(localized("Nothing contains “%@”. Upper and lower case matter."),
                {shortened(state.searchText)});
    } else {
        state.emptySentence =
            isEmpty ? localized("Every address change is listed here.") : QString();
    }
}

void HistoryController::refreshWork()
{
    m_state.update([&](State &state) {
        state.work = m_exporting;
        if (const auto &progress = m_deletion.progress()) {
            state.work = {localized("Deleting…"), progress->done, progress->of};
        } else if (const auto &saving = m_selection.progress()) {
            state.work = {localized("Saving…"), saving->done, saving->of};
        }
    });
    refreshSoon();
}

void HistoryController::fail(const QString &message)
{
    m_state.update([&](State &state) { state.failure = message; });
}

QList<int> HistoryController::columnWidths() const
{
    const QVariantList stored = m_settings.get(keys::historyColumnWidths).toList();
    QList<int> widths;
    for (const QVariant &width : stored) {
        constexpr int widest = 10'000;
        const int pixels = width.toInt();
        if (pixels < 1 || pixels > widest) {
            return {};
        }
        widths << pixels;
    }
    return widths.size() == qsizetype{historyColumns.size()} ? widths : QList<int>();
}

void HistoryController::setColumnWidths(const QList<int> &widths)
{
    if (widths == columnWidths()) {
        return;
    }
    m_settings.set(keys::historyColumnWidths, QVariantList(widths.begin(), widths.end()));
    m_settings.synchronize();
}

// MARK: the selected records

void HistoryController::select(const QList<Rows> &rows)
{
    m_selection.set(rows);
    refreshSoon();
}

void HistoryController::lookAtSavedAnew()
{
    m_selection.lookAgain();
    refreshSoon();
}

void HistoryController::addAddressesToSaved()
{
    m_selection.save(HistorySelection::List::Addresses);
}

void HistoryController::addNetworksToSaved()
{
    m_selection.save(HistorySelection::List::Networks);
}

bool HistoryController::validateUserInterfaceItem(int tag) const
{
    switch (tag) {
    case addressesTag:
        return m_selection.hasNew(HistorySelection::List::Addresses);
    case networksTag:
        return m_selection.hasNew(HistorySelection::List::Networks);
    default:
        return true;
    }
}

bool HistoryController::keyDown(Key key)
{
    if (key != Key::Delete) {
        return false;
    }
    deleteSelected();
    return true;
}

void HistoryController::deleteSelected()
{
    const qsizetype count = m_selection.count();
    if (count == 0 || m_deletion.progress()) {
        return;
    }
    m_state.update([](State &state) { state.failure.clear(); });
    m_note.end();
    if (count > HistoryDeletion::mostUndoable) {
        m_deletion.removeForGood(m_selection.keys());
        return;
    }
    ManagedObjectList objects;
    for (const Connection &record : m_selection.records(count)) {
        objects << record.record();
    }
    const qsizetype first = m_selection.first().value_or(0);
    m_selection.clear();
    m_deletion.remove(objects);
    if (m_rows.size() > 0) {
        Q_EMIT recordsDeleted(std::min(first, m_rows.size() - 1));
    }
}

void HistoryController::editNote(qsizetype row)
{
    m_note.begin(m_rows.at(row));
}

// MARK: export

void HistoryController::exportTo(const QString &path)
{
    if (path.isEmpty() || !m_rows.isComplete() || m_export.isRunning()) {
        return;
    }
    m_state.update([](State &state) { state.failure.clear(); });
    m_note.end();
    m_exporting = {localized("Exporting…"), 0, m_rows.size()};
    m_export.write(m_rows.snapshot(), path);
    refreshWork();
}

void HistoryController::stopWork()
{
    m_export.cancel();
    m_deletion.stop();
    m_selection.stop();
}

} // namespace quillon
