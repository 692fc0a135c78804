// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/PersistentContainer.h"
#include "store/graph/ManagedObjectContext.h"

#include <QObject>

#include <memory>

namespace quillon {

class AlertPresenter;
class Scheduler;
class SettingsStore;

/// Owns the one store container and its one context, made on first use. A store that cannot be
/// opened ends the process, after the log and the user were told why: records that a later save
/// would overwrite are worse than no program. It ends by std::abort(); where the file is sound and
/// only made by a newer version, by a plain exit with EXIT_FAILURE. The file is left as it is.
/// While the alert is open, whoever asks for records gets the alert too. Main thread.
class RecordStore : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        AlertPresenter &alerts;
    };

    /// The file is `folder`/Quillon.sqlite; the folder is made when it is missing.
    RecordStore(const Collaborators &collaborators, QString folder);
    ~RecordStore() override;

    PersistentContainer &persistentContainer();
    ManagedObjectContext &managedObjectContext();
    /// Whether somebody has asked for the context yet.
    bool hasManagedObjectContext() const { return m_container != nullptr; }
    /// Drops the container and makes it again, so that a change of `iCloudSync` takes effect. What
    /// is pending is saved before: settings that belong to it are written already. What cannot be
    /// saved is lost, with a line in the log. Objects of the old context are not to be used
    /// afterwards; the context itself goes when managedObjectContextReplaced has been told.
    void refreshPersistentContainer();

Q_SIGNALS:
    /// A new context stands in place of the old one: whoever shows records fetches anew.
    void managedObjectContextReplaced();
    // Of whichever context is the current one.
    void objectsDidChange(const quillon::ObjectsDidChange &change);
    void recordsMerged();

private:
    /// Never without a container.
    std::unique_ptr<PersistentContainer> opened();
    Result<std::unique_ptr<PersistentContainer>> load(bool cloudMirrored, const QString &path);
    /// Gives back the one used before.
    std::unique_ptr<PersistentContainer> use(std::unique_ptr<PersistentContainer> container);
    [[noreturn]] void endProcess(const Error &error, const QString &path);

    Collaborators m_with;
    QString m_folder;
    std::unique_ptr<PersistentContainer> m_container;
};

} // namespace quillon
