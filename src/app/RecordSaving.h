// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

class AlertPresenter;
class RecordStore;

/// Saving on demand, with what the user is told when it fails. Main thread.
class RecordSaving
{
public:
    RecordSaving(RecordStore &store, AlertPresenter &alerts);

    /// Takes open edits and saves. A failure is presented; what is unsaved stays pending.
    void saveAction();

private:
    RecordStore &m_store;
    AlertPresenter &m_alerts;
};

} // namespace quillon
