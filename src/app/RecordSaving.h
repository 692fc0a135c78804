// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

class AlertPresenter;
class RecordStore;

/// Saving on demand and at quit, with what the user is told when it fails. Main thread.
class RecordSaving
{
public:
    enum class TerminateReply
    {
        Now,
        Cancel,
    };

    RecordSaving(RecordStore &store, AlertPresenter &alerts);

    /// Takes open edits and saves. A failure is presented; what is unsaved stays pending.
    void saveAction();
    /// Whether the program may end: saves first, and asks when that fails.
    TerminateReply applicationShouldTerminate();

private:
    bool quitAnyway();

    RecordStore &m_store;
    AlertPresenter &m_alerts;
};

} // namespace quillon
