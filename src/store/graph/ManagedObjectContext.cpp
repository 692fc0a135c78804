// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/graph/ManagedObjectContext.h"

#include "base/Assertion.h"
#include "platform/Scheduler.h"
#include "store/file/RecordFile.h"
#include "store/graph/UndoStep.h"

#include <QPointer>
#include <QUndoStack>

#include <algorithm>

namespace quillon {

ManagedObjectContext::UndoDisabled::UndoDisabled(ManagedObjectContext &context)
    : m_context(context)
{
    ++m_context.m_undoDisabled;
}

ManagedObjectContext::UndoDisabled::~UndoDisabled()
{
    --m_context.m_undoDisabled;
}

Result<std::unique_ptr<ManagedObjectContext>> ManagedObjectContext::open(
    const Model &model, const QString &path, Scheduler &scheduler)
{
    auto file = RecordFile::open(model, path);
    if (!file) {
        return file.error();
    }
    const auto version = file.value()->versionOfOthers();
    if (!version) {
        return version.error();
    }
    return std::unique_ptr<ManagedObjectContext>(
        new ManagedObjectContext(model, std::move(file.value()), version.value(), scheduler));
}

ManagedObjectContext::ManagedObjectContext(
    const Model &model, std::unique_ptr<RecordFile> file, qint64 version, Scheduler &scheduler)
    : m_model(model)
    , m_file(std::move(file))
    , m_scheduler(scheduler)
    , m_nextKey(firstUnsavedKey)
    , m_mergedVersion(version)
    , m_undoManager(std::make_unique<QUndoStack>())
{
}

ManagedObjectContext::~ManagedObjectContext()
{
    for (ManagedObject *const object : std::as_const(m_registered)) {
        object->m_context = nullptr;
    }
}

ManagedObjectContext::Identity ManagedObjectContext::identityOf(const ManagedObject &object)
{
    return {object.m_entity.name(), object.m_id};
}

ManagedObjectPtr ManagedObjectContext::registered(const Entity &entity, const QUuid &id) const
{
    ManagedObject *const object = m_registered.value({entity.name(), id});
    return object ? object->shared_from_this() : nullptr;
}

ManagedObjectPtr ManagedObjectContext::registerNew(const Entity &entity, const QUuid &id)
{
    const ManagedObjectPtr object(new ManagedObject(*this, entity, id));
    m_registered.insert({entity.name(), id}, object.get());
    return object;
}

bool ManagedObjectContext::isGone(const ManagedObjectPtr &object)
{
    return object && object->m_isDeleted && !object->m_isInFile;
}

ManagedObjectPtr ManagedObjectContext::objectOf(const Entity &entity, const RecordRow &row)
{
    auto object = registered(entity, row.id);
    if (object && !isGone(object)) {
        return object;
    }
    // Somebody who still holds a deleted record sees it come back when another program undoes that.
    object = object ? object : registerNew(entity, row.id);
    object->m_key = row.key;
    object->m_isInFile = true;
    object->m_isDeleted = false;
    object->m_values = object->m_stored = row.values;
    return object;
}

ManagedObjectPtr ManagedObjectContext::insertNewObject(const QString &entity)
{
    const Entity *const found = m_model.entity(entity);
    assertCondition(found != nullptr, "ManagedObjectContext::insertNewObject", __FILE__, __LINE__,
        "the model has the entity");
    Q_ASSUME(found != nullptr);
    auto object = registerNew(*found, QUuid::createUuid());
    object->m_key = m_nextKey++;
    object->m_isDeleted = true;
    setPresent(object, true);
    return object;
}

void ManagedObjectContext::deleteObject(const ManagedObjectPtr &object)
{
    if (object && object->m_context == this) {
        setPresent(object, false);
    }
}

ManagedObjectPtr ManagedObjectContext::objectWithURI(const QString &uri)
{
    const QStringList parts = uri.split(u'/');
    const Entity *const entity = m_model.entity(parts.value(3));
    if (!entity) {
        return nullptr;
    }
    const QUuid id = QUuid::fromString(parts.value(4));
    ManagedObjectPtr object = registered(*entity, id);
    if (!object || isGone(object)) {
        const auto rows = m_file->row(*entity, id);
        object =
            rows && !rows.value().isEmpty() ? objectOf(*entity, rows.value().first()) : nullptr;
    }
    const bool isIt = object && !object->m_isDeleted && object->uriRepresentation() == uri;
    return isIt ? object : nullptr;
}

// MARK: changes

void ManagedObjectContext::assign(const ManagedObjectPtr &object, qsizetype attribute,
    const QVariant &value, ManagedObject::Change kind)
{
    const QVariant before = object->m_values[attribute];
    if (before == value) {
        return;
    }
    switch (kind) {
    case ManagedObject::Change::Edit:
        m_pending.addValue(object, attribute, before);
        if (m_undoDisabled == 0) {
            openStep().addValue(object, attribute, before);
        }
        scheduleProcessing();
        break;
    case ManagedObject::Change::Correction:
        // It belongs to the edit that caused it: undoing that undoes this.
        if (m_openStep && m_openStep->find(*object)) {
            m_openStep->addValue(object, attribute, before);
        }
        break;
    }
    object->m_values[attribute] = value;
    noteUnsaved(object);
}

void ManagedObjectContext::setPresent(const ManagedObjectPtr &object, bool present)
{
    if (object->m_isDeleted != present) {
        return;
    }
    m_pending.add(object);
    if (m_undoDisabled == 0) {
        openStep().add(object);
    }
    object->m_isDeleted = !present;
    noteUnsaved(object);
    scheduleProcessing();
}

void ManagedObjectContext::noteUnsaved(const ManagedObjectPtr &object)
{
    if (object->hasChanges()) {
        m_unsaved.insert(object);
    } else {
        m_unsaved.remove(object);
    }
}

void ManagedObjectContext::scheduleProcessing()
{
    if (!std::exchange(m_isEndScheduled, true)) {
        m_scheduler.onMain(this, [this] { endTurn(); });
    }
}

void ManagedObjectContext::endTurn()
{
    m_isEndScheduled = false;
    const QPointer self(this);
    processPendingChanges();
    // What observers changed meanwhile belongs to what they were told: the turn ends with that.
    if (self && !m_isEndScheduled) {
        m_openStep.reset();
    }
}

void ManagedObjectContext::processPendingChanges()
{
    if (m_pending.isEmpty()) {
        return;
    }
    // What observers change forms the next event, which they may end themselves: hence the nesting.
    const ChangeSet told = std::exchange(m_pending, {});
    const ChangeSet *const outer = std::exchange(m_told, &told);

    ObjectsDidChange change;
    change.isUndone = std::exchange(m_isUndonePending, false);
    for (const ChangeSet::Change &changed : told) {
        const bool isPresent = !changed.object->m_isDeleted;
        if (changed.wasPresent != isPresent) {
            (isPresent ? change.inserted : change.deleted) << changed.object;
        } else if (isPresent && !changed.before.isEmpty()) {
            change.updated << changed.object;
        }
    }
    const QPointer self(this);
    if (!change.inserted.isEmpty() || !change.updated.isEmpty() || !change.deleted.isEmpty()) {
        Q_EMIT objectsDidChange(change);
    }
    if (self) {
        m_told = outer;
    }
}

QVariantMap ManagedObjectContext::previousValues(const ManagedObject &object) const
{
    const auto *const changed = (m_told ? *m_told : m_pending).find(object);
    QVariantMap previous;
    if (changed) {
        for (auto it = changed->before.begin(); it != changed->before.end(); ++it) {
            previous.insert(object.m_entity.attributes()[it.key()].name, it.value());
        }
    }
    return previous;
}

bool ManagedObjectContext::hasChanges() const
{
    return !m_unsaved.isEmpty();
}

// MARK: undo

QUndoStack &ManagedObjectContext::undoManager()
{
    return *m_undoManager;
}

ChangeSet &ManagedObjectContext::openStep()
{
    const bool isOnStack = m_openStep && m_openStep.use_count() > 1;
    if (!isOnStack) {
        m_openStep = std::make_shared<ChangeSet>();
        m_undoManager->push(new UndoStep(*this, m_openStep));
    }
    return *m_openStep;
}

void ManagedObjectContext::swap(ChangeSet &edits)
{
    const UndoDisabled isNoEdit(*this);
    m_openStep.reset();
    ChangeSet present;
    for (const ChangeSet::Change &was : edits) {
        present.add(was.object);
        setPresent(was.object, was.wasPresent);
        for (auto it = was.before.begin(); it != was.before.end(); ++it) {
            present.addValue(was.object, it.key(), was.object->m_values[it.key()]);
            assign(was.object, it.key(), it.value(), ManagedObject::Change::Edit);
        }
    }
    m_isUndonePending = !m_pending.isEmpty();
    edits = std::move(present);
}

// MARK: editors

void ManagedObjectContext::addEditor(Editor &editor)
{
    m_editors << &editor;
}

void ManagedObjectContext::removeEditor(Editor &editor)
{
    m_editors.removeAll(&editor);
}

bool ManagedObjectContext::commitEditing()
{
    // An editor that ends takes itself, or another one, out of the list.
    const QList<Editor *> editors = m_editors;
    return std::all_of(editors.begin(), editors.end(),
        [this](Editor *editor) { return !m_editors.contains(editor) || editor->commitEditing(); });
}

} // namespace quillon
