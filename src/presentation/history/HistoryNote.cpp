// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryNote.h"

#include "history/Connection.h"
#include "store/RecordStore.h"

#include <utility>

namespace quillon {

HistoryNote::HistoryNote(RecordStore &records)
    : m_records(records)
{
    connect(&records, &RecordStore::objectsDidChange, this, &HistoryNote::look);
    connect(&records, &RecordStore::recordsMerged, this, &HistoryNote::look);
    connect(
        &records, &RecordStore::managedObjectContextReplaced, this, &HistoryNote::followContext);
}

HistoryNote::~HistoryNote()
{
    if (m_record) {
        forget();
    }
}

void HistoryNote::begin(const ManagedObjectPtr &record)
{
    end();
    if (!record || record->isDeleted()) {
        return;
    }
    m_record = record;
    m_text = Connection(record).notes();
    m_context = &m_records.managedObjectContext();
    m_context->addEditor(*this);
}

void HistoryNote::type(const QString &text)
{
    m_text = text;
    m_isTyped = true;
}

void HistoryNote::end()
{
    commitEditing();
    leave();
}

void HistoryNote::giveUp()
{
    leave();
}

bool HistoryNote::commitEditing()
{
    // Where nothing was typed, what somebody else wrote meanwhile stays. And a record without notes
    // has none, and not an empty one, until somebody writes some.
    const bool isTyped = std::exchange(m_isTyped, false);
    if (m_record && isTyped && Connection(m_record).notes() != m_text) {
        Connection(m_record).setNotes(m_text);
    }
    return true;
}

void HistoryNote::look()
{
    if (m_record && m_record->isDeleted()) {
        leave();
        Q_EMIT lost();
    }
}

void HistoryNote::followContext()
{
    if (!m_record) {
        return;
    }
    ManagedObjectContext &context = m_records.managedObjectContext();
    const auto record = context.objectWithURI(m_record->uriRepresentation());
    if (!record) {
        leave();
        Q_EMIT lost();
        return;
    }
    if (m_context) {
        m_context->removeEditor(*this);
    }
    m_record = record;
    m_context = &context;
    m_context->addEditor(*this);
}

void HistoryNote::leave()
{
    if (m_record) {
        forget();
        Q_EMIT ended();
    }
}

void HistoryNote::forget()
{
    if (m_context) {
        m_context->removeEditor(*this);
    }
    m_record.reset();
    m_text.clear();
    m_isTyped = false;
}

} // namespace quillon
