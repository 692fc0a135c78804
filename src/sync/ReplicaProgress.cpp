// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/ReplicaProgress.h"

#include "sync/CborInput.h"

#include <QCborStreamWriter>

#include <limits>

namespace quillon {

namespace {

constexpr quint64 anyNumber = std::numeric_limits<quint64>::max();

void write(QCborStreamWriter &writer, const VersionVector &vector)
{
    writer.startArray(quint64(vector.size()) * 2);
    for (auto it = vector.begin(); it != vector.end(); ++it) {
        writer.append(it.key());
        writer.append(*it);
    }
    writer.endArray();
}

VersionVector readVector(CborInput &input)
{
    VersionVector vector;
    input.enterArray();
    while (input.hasNext()) {
        const WriterId writer = input.unsignedInteger(anyNumber);
        vector.insert(writer, input.unsignedInteger(anyNumber));
    }
    input.leaveArray();
    return vector;
}

void write(QCborStreamWriter &writer, const KnownFiles &known)
{
    write(writer, known.vector());
    writer.startArray();
    for (auto it = known.scattered().begin(); it != known.scattered().end(); ++it) {
        for (const quint64 number : *it) {
            writer.append(it.key());
            writer.append(number);
        }
    }
    writer.endArray();
}

KnownFiles readKnown(CborInput &input)
{
    const VersionVector vector = readVector(input);
    QMap<WriterId, QSet<quint64>> scattered;
    input.enterArray();
    while (input.hasNext()) {
        const WriterId writer = input.unsignedInteger(anyNumber);
        scattered[writer].insert(input.unsignedInteger(anyNumber));
    }
    input.leaveArray();
    return {vector, scattered};
}

void write(QCborStreamWriter &writer, const SnapshotManifest &manifest)
{
    write(writer, manifest.files);
    writer.startArray(quint64(manifest.partSizes.size()));
    for (const qint64 size : manifest.partSizes) {
        writer.append(size);
    }
    writer.endArray();
}

SnapshotManifest readManifest(CborInput &input)
{
    SnapshotManifest manifest;
    manifest.files = readKnown(input);
    input.enterArray();
    while (input.hasNext()) {
        manifest.partSizes.append(input.integer());
    }
    input.leaveArray();
    return manifest;
}

void write(QCborStreamWriter &writer, const QMap<QString, IgnoredFile> &ignored)
{
    writer.startArray();
    for (auto it = ignored.begin(); it != ignored.end(); ++it) {
        writer.append(it.key());
        writer.append(qint64(it->problem));
        writer.append(it->revision);
        writer.append(it->formatVersion);
    }
    writer.endArray();
}

QMap<QString, IgnoredFile> readIgnored(CborInput &input)
{
    QMap<QString, IgnoredFile> ignored;
    input.enterArray();
    while (input.hasNext()) {
        IgnoredFile &file = ignored[input.text()];
        file.problem = FileProblem(input.unsignedInteger(quint64(FileProblem::NotKept)));
        file.revision = input.bytes();
        file.formatVersion = int(input.unsignedInteger(std::numeric_limits<int>::max()));
    }
    input.leaveArray();
    return ignored;
}

} // namespace

QByteArray writtenManifest(const SnapshotManifest &manifest)
{
    QByteArray content;
    QCborStreamWriter writer(&content);
    writer.startArray();
    write(writer, manifest);
    writer.endArray();
    return content;
}

ReadResult<SnapshotManifest> readManifest(const QByteArray &content)
{
    CborInput input(content);
    input.enterArray();
    const SnapshotManifest manifest = readManifest(input);
    input.leaveArray();
    if (!input.isAtEnd()) {
        return FileProblem::Damaged;
    }
    return manifest;
}

QByteArray writtenProgress(const ReplicaProgress &progress)
{
    QByteArray bytes;
    QCborStreamWriter writer(&bytes);
    writer.startArray();
    writer.append(progress.writer);
    writer.append(progress.last.time);
    writer.append(quint64{progress.last.count});
    writer.append(progress.last.writer);
    writer.append(progress.lastNumber);
    write(writer, progress.known);
    writer.startArray();
    for (auto it = progress.sentSizes.begin(); it != progress.sentSizes.end(); ++it) {
        writer.append(it.key());
        writer.append(*it);
    }
    writer.endArray();
    writer.startArray();
    for (auto it = progress.snapshots.begin(); it != progress.snapshots.end(); ++it) {
        writer.append(it.key());
        writer.append(progress.ownSnapshots.contains(it.key()));
        write(writer, *it);
    }
    writer.endArray();
    if (progress.unfinishedSnapshot) {
        writer.append(*progress.unfinishedSnapshot);
    } else {
        writer.append(nullptr);
    }
    write(writer, progress.ignored);
    writer.append(progress.head);
    writer.append(progress.headRevision);
    writer.append(progress.isHeadDue);
    writer.append(quint64{progress.lackingListings});
    writer.endArray();
    return bytes;
}

std::optional<ReplicaProgress> readProgress(const QByteArray &bytes)
{
    ReplicaProgress progress;
    CborInput input(bytes);
    input.enterArray();
    progress.writer = input.unsignedInteger(anyNumber);
    progress.last.time = input.integer();
    progress.last.count = quint32(input.unsignedInteger(std::numeric_limits<quint32>::max()));
    progress.last.writer = input.unsignedInteger(anyNumber);
    progress.lastNumber = input.unsignedInteger(anyNumber);
    progress.known = readKnown(input);
    input.enterArray();
    while (input.hasNext()) {
        const quint64 number = input.unsignedInteger(anyNumber);
        progress.sentSizes.insert(number, input.integer());
    }
    input.leaveArray();
    input.enterArray();
    while (input.hasNext()) {
        const QString name = input.text();
        if (input.takeBoolean().value_or(false)) {
            progress.ownSnapshots.insert(name);
        }
        progress.snapshots.insert(name, readManifest(input));
    }
    input.leaveArray();
    if (!input.takeNull()) {
        progress.unfinishedSnapshot = input.unsignedInteger(anyNumber);
    }
    progress.ignored = readIgnored(input);
    progress.head = input.bytes();
    progress.headRevision = input.bytes();
    progress.isHeadDue = input.takeBoolean().value_or(false);
    progress.lackingListings = quint32(input.unsignedInteger(std::numeric_limits<quint32>::max()));
    input.leaveArray();
    return input.isAtEnd() ? std::optional(progress) : std::nullopt;
}

} // namespace quillon
