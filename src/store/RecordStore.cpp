// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordStore.h"

#include "base/DurableFolder.h"
#include "base/Localized.h"
#include "base/Log.h"
#include "store/model/QuillonModel.h"

#include <QDir>

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

RecordStore::~RecordStore() = default;

ManagedObjectContext &RecordStore::managedObjectContext()
{
    if (!m_context) {
        replaceContext();
    }
    return *m_context;
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

std::unique_ptr<ManagedObjectContext> RecordStore::replaceContext()
{
    // For its owner alone: records tell where somebody has been. What prevents it shows when the
    // file is opened.
    makeFolder(m_folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    const QString path = QDir(m_folder).filePath(u"Quillon.sqlite"_s);
    auto opened = ManagedObjectContext::open(quillonModel(), path, m_scheduler);
    if (!opened) {
        qCWarning(logRecords, "%s", qUtf8Printable(logLine(opened.error(), path)));
        if (m_openFailure) {
            m_openFailure(opened.error(), path);
        }
        std::abort();
    }
    if (m_context) {
        m_context->disconnect(this);
    }
    ManagedObjectContext &context = *opened.value();
    connect(
        &context, &ManagedObjectContext::objectsDidChange, this, &RecordStore::objectsDidChange);
    connect(&context, &ManagedObjectContext::recordsMerged, this, &RecordStore::recordsMerged);
    return std::exchange(m_context, std::move(opened.value()));
}

} // namespace quillon
