// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordStore.h"

#include "base/DurableFolder.h"
#include "base/Localized.h"
#include "base/Log.h"
#include "store/model/QuillonModel.h"

#include <QDir>
#include <QUndoStack>

#include <cstdlib>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString logLine(const Error &error, const QString &path)
{
    return filled(u"Unresolved error %@, %@"_s,
        {error.message, u"{code = %1; domain = %2; path = \"%3\"}"_s.arg(
                            QString::number(error.code), error.domain, path)});
}

} // namespace

RecordStore::RecordStore(Scheduler &scheduler, QString folder, OpenFailure openFailure)
    : m_scheduler(scheduler)
    , m_folder(std::move(folder))
    , m_openFailure(std::move(openFailure))
{
}

RecordStore::~RecordStore()
{
    // A stack tells of its end by being empty.
    if (m_context) {
        m_context->undoManager().disconnect(this);
    }
}

ManagedObjectContext &RecordStore::managedObjectContext()
{
    if (!m_context) {
        replaceContext();
    }
    return *m_context;
}

QString RecordStore::path() const
{
    return QDir(m_folder).filePath(u"Quillon.sqlite"_s);
}

void RecordStore::refreshPersistentContainer()
{
    if (m_context) {
        if (const auto error = m_context->save()) {
            qCWarning(logRecords, "Changes are lost, as they could not be saved: %s",
                qUtf8Printable(error->message));
        }
    }
    // The old one stays until everybody has turned to the new one.
    const auto old = replaceContext();
    Q_EMIT managedObjectContextReplaced();
}

bool RecordStore::canUndo() const
{
    return m_context && m_context->undoManager().canUndo();
}

bool RecordStore::canRedo() const
{
    return m_context && m_context->undoManager().canRedo();
}

bool RecordStore::hasChanges() const
{
    return m_context && m_context->hasChanges();
}

int RecordStore::undoPlace() const
{
    return m_context ? m_context->undoManager().index() : 0;
}

void RecordStore::undo()
{
    if (m_context) {
        m_context->undoManager().undo();
    }
}

void RecordStore::redo()
{
    if (m_context) {
        m_context->undoManager().redo();
    }
}

std::unique_ptr<ManagedObjectContext> RecordStore::replaceContext()
{
    // For its owner alone: records tell where somebody has been. What prevents it shows when the
    // file is opened.
    makeFolder(m_folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    auto opened = ManagedObjectContext::open(quillonModel(), path(), m_scheduler);
    if (!opened) {
        qCWarning(logRecords, "%s", qUtf8Printable(logLine(opened.error(), path())));
        if (m_openFailure) {
            m_openFailure(opened.error(), path());
        }
        std::abort();
    }
    if (m_context) {
        m_context->disconnect(this);
        m_context->undoManager().disconnect(this);
    }
    ManagedObjectContext &context = *opened.value();
    connect(
        &context, &ManagedObjectContext::objectsDidChange, this, &RecordStore::objectsDidChange);
    connect(&context, &ManagedObjectContext::recordsMerged, this, &RecordStore::recordsMerged);
    connect(&context, &ManagedObjectContext::saved, this, &RecordStore::saved);
    const QUndoStack &undoManager = context.undoManager();
    connect(&undoManager, &QUndoStack::canUndoChanged, this, &RecordStore::undoChanged);
    connect(&undoManager, &QUndoStack::canRedoChanged, this, &RecordStore::undoChanged);
    connect(&undoManager, &QUndoStack::indexChanged, this, &RecordStore::undoPlaceChanged);
    return std::exchange(m_context, std::move(opened.value()));
}

} // namespace quillon
