// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObjectContext.h"

#include <QPointer>
#include <QUndoCommand>

#include <memory>
#include <utility>

namespace quillon {

/// The edits of one turn as one step of undo. It keeps what was before them; undoing swaps that
/// with what is there now, so that redoing brings back what undoing found, corrections included.
class UndoStep : public QUndoCommand
{
public:
    /// `edits` may grow until the turn ends.
    UndoStep(ManagedObjectContext &context, std::shared_ptr<ChangeSet> edits)
        : m_context(&context)
        , m_edits(std::move(edits))
    {
    }

    void undo() override
    {
        if (auto *const context = m_context.data()) {
            context->swap(*m_edits);
        }
    }
    /// The first call comes from the stack that takes the step, when the edits are there already.
    void redo() override
    {
        if (std::exchange(m_isDone, true)) {
            undo();
        }
    }

private:
    QPointer<ManagedObjectContext> m_context;
    std::shared_ptr<ChangeSet> m_edits;
    bool m_isDone = false;
};

} // namespace quillon
