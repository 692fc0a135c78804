// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"
#include "store/graph/ManagedObjectContext.h"

#include <QObject>

#include <functional>
#include <memory>

namespace quillon {

class Scheduler;

/// Owns the one context of the records, made on first use. A file that cannot be opened ends the
/// process, after the log and whoever made the store were told why: records that a later save would
/// overwrite are worse than no program. The file is left as it is. Main thread.
class RecordStore : public QObject
{
    Q_OBJECT

public:
    /// Told why the file at `path` cannot be opened. When it returns, std::abort() follows. Whoever
    /// asks for records until then is told as well.
    using OpenFailure = std::function<void(const Error &error, const QString &path)>;

    /// The file is `folder`/Quillon.sqlite; the folder is made when it is missing.
    RecordStore(Scheduler &scheduler, QString folder, OpenFailure openFailure = {});
    ~RecordStore() override;

    ManagedObjectContext &managedObjectContext();
    /// The file's place.
    QString path() const;
    /// Whether somebody has asked for the context yet.
    bool hasManagedObjectContext() const { return m_context != nullptr; }
    /// Opens the file anew, so that a change of `iCloudSync` takes effect. What is pending is saved
    /// before: settings that belong to it are written already. What cannot be saved is lost, with a
    /// line in the log. Objects of the old context are not to be used afterwards; the context
    /// itself goes when managedObjectContextReplaced has been told.
    void refreshPersistentContainer();

    // Undo and redo of edits, and whether there is something to save. Nobody's question makes a
    // context.
    bool canUndo() const;
    bool canRedo() const;
    bool hasChanges() const;
    /// How many steps can be undone: as long as that stays, the last step is the same.
    int undoPlace() const;
    void undo();
    void redo();

Q_SIGNALS:
    /// A new context stands in place of the old one: whoever shows records fetches anew.
    void managedObjectContextReplaced();
    // Of whichever context is the current one.
    void objectsDidChange(const quillon::ObjectsDidChange &change);
    void recordsMerged();
    void saved();
    /// canUndo() or canRedo() is not what it was.
    void undoChanged();
    void undoPlaceChanged();

private:
    /// Puts a new context in place of the present one, which it gives back.
    std::unique_ptr<ManagedObjectContext> replaceContext();

    Scheduler &m_scheduler;
    QString m_folder;
    OpenFailure m_openFailure;
    std::unique_ptr<ManagedObjectContext> m_context;
};

} // namespace quillon
