// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>

namespace quillon {

class RecordStore;

/// What the Edit menu can do to records: undo and redo of edits, and saving. Main thread.
class EditMenuModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        bool undoEnabled = false;
        bool redoEnabled = false;
        bool saveEnabled = false; ///< something is not in the file yet

        bool operator==(const State &) const = default;
    };

    explicit EditMenuModel(RecordStore &records);

    const State &state() const { return m_state.get(); }

    /// Records were changed or saved, or others are shown.
    void refresh();

    // Without something to undo, to redo or to save nothing happens.
    void undo();
    void redo();
    void save();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// The user wants the records saved.
    void saveRequested();

private:
    RecordStore &m_records;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
