// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordStore.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "platform/AlertPresenter.h"
#include "platform/SettingsStore.h"
#include "store/RecordFailure.h"
#include "store/file/RecordFile.h"
#include "store/model/QuillonModel.h"

#include <QDir>
#include <QFileInfo>

#include <cstdlib>
#include <utility>

namespace quillon {

namespace {

/// Makes the folder for its owner alone: records tell where somebody has been. What prevents it
/// shows when the file is opened.
void makeFolder(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists() && QDir().mkpath(info.path())) {
        QDir().mkdir(
            folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
}

QString logLine(const Error &error, const QString &path)
{
    return filled(QStringLiteral("Unresolved error %@, %@"),
        {error.message, QStringLiteral("{code = %1; domain = %2; path = \"%3\"}")
                            .arg(QString::number(error.code), error.domain, path)});
}

Alert alertFor(const Error &error, const QString &path)
{
    const QStringList buttons{localized("Quit")};
    if (isRecordFileError(error, RecordFileError::Newer)) {
        return {localized("The records were written by a newer version of Quillon"),
            filled(localized("They are left untouched; please install that version again to use "
                             "them: %@"),
                {path}),
            buttons};
    }
    return {localized("The records cannot be opened"),
        filled(localized("%@\n\nRules and history are in this file, which is left as it is: %@"),
            {reasonOf(error), path}),
        buttons};
}

} // namespace

RecordStore::RecordStore(const Collaborators &collaborators, QString folder)
    : m_with(collaborators)
    , m_folder(std::move(folder))
{
}

RecordStore::~RecordStore() = default;

PersistentContainer &RecordStore::persistentContainer()
{
    if (!m_container) {
        use(opened());
    }
    return *m_container;
}

ManagedObjectContext &RecordStore::managedObjectContext()
{
    return persistentContainer().viewContext();
}

void RecordStore::refreshPersistentContainer()
{
    if (m_container) {
        if (const auto error = m_container->viewContext().save()) {
            qCWarning(logRecords, "Changes are lost, as they could not be saved: %s",
                qUtf8Printable(error->message));
        }
    }
    // The old one stays until everybody has turned to the new one.
    const auto old = use(opened());
    Q_EMIT managedObjectContextReplaced();
}

std::unique_ptr<PersistentContainer> RecordStore::use(
    std::unique_ptr<PersistentContainer> container)
{
    if (m_container) {
        m_container->viewContext().disconnect(this);
    }
    ManagedObjectContext &context = container->viewContext();
    connect(
        &context, &ManagedObjectContext::objectsDidChange, this, &RecordStore::objectsDidChange);
    connect(&context, &ManagedObjectContext::recordsMerged, this, &RecordStore::recordsMerged);
    return std::exchange(m_container, std::move(container));
}

std::unique_ptr<PersistentContainer> RecordStore::opened()
{
    makeFolder(m_folder);
    const QString path = QDir(m_folder).filePath(QStringLiteral("Quillon.sqlite"));
    auto container = load(m_with.settings.getBool(keys::iCloudSync), path);
    if (!container) {
        endProcess(container.error(), path);
    }
    return std::move(container.value());
}

Result<std::unique_ptr<PersistentContainer>> RecordStore::load(
    [[maybe_unused]] bool cloudMirrored, const QString &path)
{
    // Which container it is to be is decided here and nowhere else. A mirrored one would keep the
    // records in the same file, so that switching loses none; for now both are that file alone.
    return PersistentContainer::load(quillonModel(), path, m_with.scheduler);
}

void RecordStore::endProcess(const Error &error, const QString &path)
{
    qCWarning(logRecords, "%s", qUtf8Printable(logLine(error, path)));
    // Nothing else is to be lost by this.
    m_with.settings.flush();
    m_with.alerts.runModal(alertFor(error, path));
    if (isRecordFileError(error, RecordFileError::Newer)) {
        std::_Exit(EXIT_FAILURE);
    }
    std::abort();
}

} // namespace quillon
