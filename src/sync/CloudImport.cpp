// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/CloudImport.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "base/Notifier.h"
#include "platform/Scheduler.h"
#include "store/RecordStore.h"
#include "sync/RecordMirror.h"

namespace quillon {

CloudImport::CloudImport(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_observer(m_deps.notifications.addObserver(notifications::cloudContainerChanged,
          [this](const auto &event) { mergeChangesFromiCloud(event); }))
{
}

CloudImport::~CloudImport()
{
    m_deps.notifications.removeObserver(m_observer);
}

void CloudImport::mergeChangesFromiCloud(const NotificationCenter::Notification &event)
{
    const QVariantMap &told = event.userInfo;
    const bool isImport = told.value(cloudevent::type, -1).toInt() == int(cloudevent::Type::Import);
    if (!isImport || !told.value(cloudevent::succeeded).toBool() ||
        !told.value(cloudevent::endDate).isValid()) {
        return;
    }
    m_deps.scheduler.onMain(this, [this] {
        m_deps.store.managedObjectContext().mergeChangesFromStore();
        m_deps.scheduler.onMain(this, [this] { tell(); });
    });
}

void CloudImport::tell()
{
    Q_EMIT recordsImported();
    m_deps.notifications.post(notifications::ruleTable, this);
    m_deps.notifications.post(notifications::updateNamesArray, this);
    Q_EMIT helperStatusWanted();
    m_deps.notifier.sendNotificationWithBody(localized("iCloud"), localized("updates received"));
}

} // namespace quillon
