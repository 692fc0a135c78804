// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObjectContext.h"

#include <QObject>
#include <QPointer>

namespace quillon {

class RecordStore;

/// The note that is being edited in place. What is typed is taken when the editing ends, and
/// whenever the records are saved; each taking is one step of undo. Main thread.
class HistoryNote : public QObject, private ManagedObjectContext::Editor
{
    Q_OBJECT

public:
    explicit HistoryNote(RecordStore &records);
    ~HistoryNote() override;

    bool isEditing() const { return m_record != nullptr; }
    /// The one that was being edited is taken.
    void begin(const ManagedObjectPtr &record);
    /// As it was when the editing began, and then as it was typed.
    const QString &text() const { return m_text; }
    void type(const QString &text);
    /// Takes what was typed, and ends.
    void end();
    void giveUp();

Q_SIGNALS:
    /// It is not edited any more, whoever ended it.
    void ended();
    /// The record is gone, and what was typed with it.
    void lost();

private:
    bool commitEditing() override;
    void look();
    void followContext();
    void leave();
    void forget();

    RecordStore &m_records;
    ManagedObjectPtr m_record;
    QString m_text;
    bool m_isTyped = false;                   ///< and not taken yet
    QPointer<ManagedObjectContext> m_context; ///< that it is an editor of
};

} // namespace quillon
