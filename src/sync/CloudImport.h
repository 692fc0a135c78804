// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NotificationCenter.h"

#include <QObject>

namespace quillon {

class Notifier;
class RecordStore;
class Scheduler;

/// Brings records that came from other computers to whoever shows them. Main thread.
class CloudImport : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        RecordStore &store;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        Notifier &notifier;
    };

    explicit CloudImport(const Collaborators &collaborators);
    ~CloudImport() override;

    /// For every "cloudContainerChanged", which is heard by itself: an import that has ended well
    /// is merged. A merge is no change of objects, so nobody who watches those hears of it.
    void mergeChangesFromiCloud(const NotificationCenter::Notification &event);

Q_SIGNALS:
    /// The rule table is to be loaded anew; before "ruleTable" and "updateNamesArray" are posted.
    void recordsImported();
    /// After them: whether the helper is installed is to be looked at.
    void helperStatusWanted();

private:
    void tell();

    Collaborators m_deps;
    NotificationCenter::Token m_observer;
};

} // namespace quillon
