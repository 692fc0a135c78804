// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "history/KnownPlaces.h"

#include <QObject>
#include <QVariantMap>

#include <optional>

namespace quillon {

class SettingsStore;

/// Puts what the history knows and the saved lists do not into those lists, and takes it back. What
/// is saved already stays as it is. Main thread.
class HistoryImport : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        bool isBusy = false;

        bool operator==(const State &) const = default;
    };

    HistoryImport(SettingsStore &settings, KnownPlaces &places);

    const State &state() const { return m_state.get(); }

    /// Answered by ended(); nothing while it is busy.
    void import();
    bool canUndo() const { return !m_changes.isEmpty(); }
    /// Makes each list what it was before. Of one that was changed meanwhile only those entries go
    /// that are still as they were added.
    void undo();
    /// It cannot be undone any more.
    void forget() { m_changes.clear(); }

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// What the user is told of it; canUndo() says whether something was added.
    void ended(const QString &message);
    /// Networks were added or taken back.
    void networksChanged();

private:
    /// What an import made of one list.
    struct Change
    {
        QString list;
        QVariant before;
        QVariantMap after;
        QStringList added; ///< keys
    };

    void take(const KnownPlaces::Found &found);
    /// How many entries were added.
    qsizetype add(const QString &list, const QList<SavedEntry> &entries,
        std::optional<QString> SavedEntry::*key);
    void write(const QString &list, const QVariant &value);
    void tell(const QString &message);

    SettingsStore &m_settings;
    KnownPlaces &m_places;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    QList<Change> m_changes;
};

} // namespace quillon
