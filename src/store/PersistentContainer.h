// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "store/graph/ManagedObjectContext.h"

#include <memory>

namespace quillon {

class RecordFile;
class Scheduler;

/// One opened store file and the context on it.
class PersistentContainer
{
public:
    /// Opens the file, makes it when it is missing, brings an older one up to date in one
    /// transaction. Error: the domain is recordFileErrorDomain (RecordFile.h).
    static Result<std::unique_ptr<PersistentContainer>> load(
        const Model &model, const QString &path, Scheduler &scheduler);
    ~PersistentContainer();

    ManagedObjectContext &viewContext() { return *m_viewContext; }

private:
    PersistentContainer(std::unique_ptr<RecordFile> file, const Model &model, Scheduler &scheduler);

    std::unique_ptr<RecordFile> m_file;
    std::unique_ptr<ManagedObjectContext> m_viewContext;
};

} // namespace quillon
