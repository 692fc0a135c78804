// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

class AlertPresenter;
class RecordStore;

/// The program's wish to end, from wherever it comes: it ends once its records are saved, or the
/// user does without. Main thread.
class Termination : public QObject
{
    Q_OBJECT

public:
    Termination(RecordStore &store, AlertPresenter &alerts);

    /// While the user is asked, further wishes wait for the same answer.
    void terminate();

Q_SIGNALS:
    /// Nothing keeps the program from ending.
    void granted();

private:
    /// Whether the program may end: saves first, and asks when that fails.
    bool applicationShouldTerminate();
    bool quitAnyway();

    RecordStore &m_store;
    AlertPresenter &m_alerts;
    bool m_asking = false;
};

} // namespace quillon
