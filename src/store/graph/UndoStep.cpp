// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/graph/UndoStep.h"

#include "store/graph/ManagedObjectContext.h"

#include <utility>

namespace quillon {

UndoStep::UndoStep(ManagedObjectContext &context, std::shared_ptr<ChangeSet> edits)
    : m_context(&context)
    , m_edits(std::move(edits))
{
}

void UndoStep::undo()
{
    if (auto *const context = m_context.data()) {
        context->exchange(*m_edits);
    }
}

void UndoStep::redo()
{
    if (std::exchange(m_isDone, true)) {
        undo();
    }
}

} // namespace quillon
