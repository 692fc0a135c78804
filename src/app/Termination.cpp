// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Termination.h"

#include "app/RecordSaving.h"

#include <QScopedValueRollback>

namespace quillon {

Termination::Termination(RecordSaving &saving)
    : m_saving(saving)
{
}

void Termination::terminate()
{
    if (m_asking) {
        return;
    }
    const QScopedValueRollback asking(m_asking, true);
    if (m_saving.applicationShouldTerminate() == RecordSaving::TerminateReply::Now) {
        Q_EMIT granted();
    }
}

} // namespace quillon
