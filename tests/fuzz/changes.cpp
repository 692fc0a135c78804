// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Require.h"
#include "sync/ChangesFormat.h"
#include "sync/ReplicaProgress.h"

#include <algorithm>
#include <cstdint>

// The bytes are taken as what a change file or a part of a snapshot holds when it has been opened,
// as a manifest, and as the progress that this computer has stored.

namespace quillon::test {

namespace {

void checkStamp(const Stamp &stamp)
{
    require(stamp.time >= 0 && stamp.time <= latestStampTime, "a moment has a later one");
}

void checkChanges(const SyncChanges &changes)
{
    for (const RecordState &record : changes.records) {
        checkStamp(record.inserted);
        checkStamp(record.deleted);
        for (const SyncRegister &attribute : record.attributes) {
            checkStamp(attribute.stamp);
            require(attribute.stamp > record.deleted, "nothing from before a deletion is left");
        }
    }
    for (const SyncRegister &setting : changes.settings) {
        checkStamp(setting.stamp);
        require(!setting.stamp.isNever(), "what is set was set at some moment");
    }
    const auto again = readChanges(writtenChanges(changes));
    require(std::holds_alternative<SyncChanges>(again), "what was read can be written and read");
    require(std::get<SyncChanges>(again) == changes, "and is the same then");
    SyncChanges twice = changes;
    join(twice, changes);
    require(twice == changes, "merged with itself it is the same");
}

void checkManifest(const SnapshotManifest &manifest)
{
    require(manifest.files.covers(manifest.files), "a vector covers itself");
    for (auto it = manifest.files.scattered().begin(); it != manifest.files.scattered().end();
        ++it) {
        for (const quint64 number : *it) {
            require(number > manifest.files.vector().value(it.key()), "behind a gap");
        }
    }
    const auto again = readManifest(writtenManifest(manifest));
    require(std::holds_alternative<SnapshotManifest>(again), "a manifest can be written and read");
    require(std::get<SnapshotManifest>(again) == manifest, "and is the same then");
}

} // namespace

} // namespace quillon::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace quillon;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto changes = readChanges(bytes);
    if (const auto *read = std::get_if<SyncChanges>(&changes)) {
        test::checkChanges(*read);
    }
    const auto manifest = readManifest(bytes);
    if (const auto *read = std::get_if<SnapshotManifest>(&manifest)) {
        test::checkManifest(*read);
    }
    if (const auto progress = readProgress(bytes)) {
        test::require(readProgress(writtenProgress(*progress)) == progress, "progress is kept");
    }
    return 0;
}
