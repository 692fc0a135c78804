// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "store/graph/ChangeSet.h"
#include "store/graph/ManagedObject.h"
#include "store/model/FetchRequest.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>
#include <optional>
#include <utility>

class QUndoStack;

namespace SQLite {
class Database;
} // namespace SQLite

namespace quillon {

class FetchedRecords;
class RecordFile;
class Scheduler;
struct RecordRow;
struct RowChange;

/// What was done to the records of a context since the last event.
struct ObjectsDidChange
{
    ManagedObjectList inserted;
    ManagedObjectList updated; ///< changedValuesForCurrentEvent() tells the previous values
    ManagedObjectList deleted;
    bool isUndone = false; ///< some of it by undo or redo
};

/// The records as the program sees them: what the file holds, with everything changed since over
/// it. Changes are grouped by turns of the main loop; nothing reaches the file before save(). Main
/// thread.
class ManagedObjectContext : public QObject
{
    Q_OBJECT

public:
    /// Something that holds an edit not yet in the context (an open text field).
    class Editor
    {
    public:
        virtual ~Editor() = default;
        /// False when the edit cannot be taken as it is.
        virtual bool commitEditing() = 0;
    };

    /// While one exists, changes are not registered for undo: facts and derived flags are not
    /// edits.
    class [[nodiscard]] UndoDisabled
    {
    public:
        explicit UndoDisabled(ManagedObjectContext &context);
        ~UndoDisabled();
        UndoDisabled(const UndoDisabled &) = delete;
        UndoDisabled &operator=(const UndoDisabled &) = delete;

    private:
        ManagedObjectContext &m_context;
    };

    /// Of the file at `path`, as RecordFile::open() opens it. Error: recordFileErrorDomain.
    static Result<std::unique_ptr<ManagedObjectContext>> open(
        const Model &model, const QString &path, Scheduler &scheduler);
    ~ManagedObjectContext() override;

    /// A new record with every attribute empty. An unknown entity is a programming error.
    ManagedObjectPtr insertNewObject(const QString &entity);
    void deleteObject(const ManagedObjectPtr &object);

    /// The matching records, unsaved changes taken into account. An entity that the model does not
    /// have, or a file that cannot be read, is an Error.
    Result<ManagedObjectList> fetch(const FetchRequest &request);
    /// The same as a list that reads its records page by page as they are looked at.
    Result<FetchedRecords> fetchLazily(const FetchRequest &request);
    /// The keys of the first that fetch() would give, at most so many, when they are found in a few
    /// milliseconds; none otherwise, and when the file cannot be read.
    std::optional<QList<qint64>> keysAtOnce(const FetchRequest &request, qsizetype most);
    /// What of the entity's records is not in the file yet.
    QList<RowChange> unsavedChanges(const QString &entity) const;
    /// The records of these keys, in their order; null for one that does not exist any more.
    Result<ManagedObjectList> objects(const QString &entity, const QList<qint64> &keys);
    /// Null when the text is not the identity of a record that exists.
    ManagedObjectPtr objectWithURI(const QString &uri);

    /// Tells objectsDidChange of what changed until now. Happens by itself at the end of each turn
    /// that changed something. The step of undo stays open until then, however often it is called.
    void processPendingChanges();
    bool hasChanges() const;
    /// Writes every change in one transaction. On an Error nothing was written and every change
    /// stays pending. Where another program changed the same record, our changed attributes win and
    /// its others are taken over. An observer that ends the context meanwhile ends the save as
    /// well.
    std::optional<Error> save();
    /// Takes over what others wrote to the file; attributes changed here keep our value. What
    /// cannot be read is logged and tried again by the next save.
    void mergeChangesFromStore();
    /// RecordFile::database(). Who changed records there calls mergeChangesFromStore() afterwards.
    std::shared_ptr<SQLite::Database> database() const;

    /// Undo and redo of edits, one step for each turn of the main loop: what a command does, saves
    /// and does then because of that, and what observers answer to it. Never deletes what it needs
    /// on save.
    QUndoStack &undoManager();

    void addEditor(Editor &editor);
    void removeEditor(Editor &editor);
    /// Asks every editor; false at the first that refuses.
    bool commitEditing();

Q_SIGNALS:
    void objectsDidChange(const quillon::ObjectsDidChange &change);
    /// Records were merged from the file: lists are to be fetched anew.
    void recordsMerged();
    void saved();

private:
    friend class ManagedObject;
    friend class FetchedRecords;
    friend class UndoStep;

    ManagedObjectContext(
        const Model &model, std::unique_ptr<RecordFile> file, qint64 version, Scheduler &scheduler);

    // The two ways in which a record changes; both note what was before.
    void assign(const ManagedObjectPtr &object, qsizetype attribute, const QVariant &value,
        ManagedObject::Change kind);
    void setPresent(const ManagedObjectPtr &object, bool present);
    /// Puts back what `edits` hold, and leaves there what it found.
    void swap(ChangeSet &edits);
    ChangeSet &openStep();
    void endTurn();
    void noteUnsaved(const ManagedObjectPtr &object);
    void scheduleProcessing();
    QVariantMap previousValues(const ManagedObject &object) const;

    using Identity = std::pair<QString, QUuid>;
    static Identity identityOf(const ManagedObject &object);
    ManagedObjectPtr registered(const Entity &entity, const QUuid &id) const;
    ManagedObjectPtr registerNew(const Entity &entity, const QUuid &id);
    /// Deleted, and saved so or never saved.
    static bool isGone(const ManagedObjectPtr &object);
    /// The object of a row of the file.
    ManagedObjectPtr objectOf(const Entity &entity, const RecordRow &row);

    /// What a save does to the row of an object with changes.
    static RowChange changeOf(const ManagedObject &object);
    /// `row` is null when the file has none.
    void merge(const ManagedObjectPtr &object, const RecordRow *row);

    const Model m_model;
    std::unique_ptr<RecordFile> m_file;
    Scheduler &m_scheduler;
    QHash<Identity, ManagedObject *> m_registered; ///< while they live
    QSet<ManagedObjectPtr> m_unsaved;
    qint64 m_nextKey;       ///< of the next new record
    qint64 m_mergedVersion; ///< of what others wrote to the file

    ChangeSet m_pending;               ///< since the last objectsDidChange
    bool m_isUndonePending = false;    ///< some of them by undo or redo
    const ChangeSet *m_told = nullptr; ///< those that objectsDidChange tells at this moment
    bool m_isEndScheduled = false;     ///< of the turn

    std::unique_ptr<QUndoStack> m_undoManager;
    int m_undoDisabled = 0;
    /// This turn's edits, shared with the step on the stack, which somebody may clear meanwhile.
    std::shared_ptr<ChangeSet> m_openStep;

    QList<Editor *> m_editors;
};

} // namespace quillon
