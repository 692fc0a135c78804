// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/SavedFromHistory.h"
#include "history/SavedFromMany.h"

#include <QObject>

#include <optional>

namespace quillon {

class RecordListing;

/// The selected rows of the history, and saving what they hold. What one turn can look at it does
/// at once, and more in the background. Main thread.
class HistorySelection : public QObject
{
    Q_OBJECT

public:
    /// Rows from the first to the last, both included.
    struct Rows
    {
        qsizetype first = 0;
        qsizetype last = -1;

        bool operator==(const Rows &) const = default;
    };
    using List = SavedFromMany::List;
    struct Progress
    {
        qsizetype done = 0;
        qsizetype of = 0;
    };

    /// So many records are looked at in one turn.
    static constexpr qsizetype mostAtOnce = 500;

    HistorySelection(const RecordListing &rows, SettingsStore &settings, Scheduler &scheduler);

    /// Rows that the list does not have do not count.
    void set(const QList<Rows> &rows);
    void clear() { set({}); }
    qsizetype count() const;
    /// The topmost row; none is selected otherwise.
    std::optional<qsizetype> first() const;
    QList<Connection> records(qsizetype most) const;
    QList<qint64> keys() const;

    /// Whether there is something to be saved of it; of many records as far as it is known yet.
    bool hasNew(List list) const;
    /// Has that found out anew: a saved list is another one, or the records are.
    void lookAgain();
    void save(List list);
    /// Of saving many records; none when that does not run.
    const std::optional<Progress> &progress() const { return m_progress; }
    void stop();

Q_SIGNALS:
    /// hasNew() may be another.
    void looked();
    void progressChanged();
    /// No more than so many were saved, though there are more.
    void cutAt(qsizetype count);
    void failed();

private:
    bool isMany() const { return count() > mostAtOnce; }

    const RecordListing &m_rows;
    SavedFromHistory m_saved;
    SavedFromMany m_savedFromMany;
    QList<Rows> m_selected;
    SavedFromMany::News m_news; ///< of many
    std::optional<Progress> m_progress;
};

} // namespace quillon
