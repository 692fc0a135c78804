// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/EditMenuModel.h"

#include "store/RecordStore.h"

namespace quillon {

EditMenuModel::EditMenuModel(RecordStore &records)
    : m_records(records)
{
    refresh();
}

void EditMenuModel::refresh()
{
    m_state.update([&](State &state) {
        state.undoEnabled = m_records.canUndo();
        state.redoEnabled = m_records.canRedo();
        state.saveEnabled = m_records.hasChanges();
    });
}

void EditMenuModel::undo()
{
    m_records.undo();
}

void EditMenuModel::redo()
{
    m_records.redo();
}

void EditMenuModel::save()
{
    if (m_records.hasChanges()) {
        Q_EMIT saveRequested();
    }
}

} // namespace quillon
