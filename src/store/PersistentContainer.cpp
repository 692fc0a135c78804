// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/PersistentContainer.h"

#include "store/file/RecordFile.h"

#include <utility>

namespace quillon {

Result<std::unique_ptr<PersistentContainer>> PersistentContainer::load(
    const Model &model, const QString &path, Scheduler &scheduler)
{
    auto file = RecordFile::open(model, path);
    if (!file) {
        return file.error();
    }
    return std::unique_ptr<PersistentContainer>(
        new PersistentContainer(std::move(file.value()), model, scheduler));
}

PersistentContainer::PersistentContainer(
    std::unique_ptr<RecordFile> file, const Model &model, Scheduler &scheduler)
    : m_file(std::move(file))
    , m_viewContext(std::make_unique<ManagedObjectContext>(model, *m_file, scheduler))
{
}

PersistentContainer::~PersistentContainer() = default;

} // namespace quillon
