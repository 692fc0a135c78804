// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RoundState.h"

#include "base/Log.h"
#include "sync/Replica.h"
#include "sync/ReplicaStorage.h"

#include <algorithm>

namespace quillon {

namespace {

/// Whether every other request would be answered in the same way.
bool isAboutEverything(CloudProblem problem)
{
    return problem == CloudProblem::WrongPassword || problem == CloudProblem::Unreachable ||
           problem == CloudProblem::UntrustedCertificate || problem == CloudProblem::NotAnAccount;
}

const char *spelled(FileProblem problem)
{
    if (problem == FileProblem::Newer) {
        return "written by a later version of the program";
    }
    return problem == FileProblem::TooLarge ? "too large" : "damaged, or not of this account";
}

} // namespace

void RoundState::fail(const CloudError &error)
{
    if (!outcome.error) {
        outcome.error = error;
    }
    isStopped |= isAboutEverything(error.problem);
}

void RoundState::failWriting(const CloudError &error)
{
    fail(error);
    refusesWrites = true;
}

void RoundState::failStoring()
{
    outcome.couldNotStore = true;
    isStopped = true;
}

void RoundState::refuse(const QString &name, FileProblem problem, const QByteArray &readRevision)
{
    const auto ignored = deps.storage.progress().ignored;
    const auto before = ignored.find(name);
    if (before == ignored.end() || before->problem != problem) {
        outcome.refused.append({name, problem});
        qCWarning(logSync, "%s is left alone: %s", qUtf8Printable(name), spelled(problem));
    }
    const CloudFile *file = listed(name);
    const QByteArray revision = file && readRevision.isEmpty() ? file->revision : readRevision;
    if (!deps.replica.ignore(name, problem, revision)) {
        failStoring();
    }
}

const CloudFile *RoundState::listed(const QString &name) const
{
    if (!listing) {
        return nullptr;
    }
    const auto file = std::ranges::find(*listing, name, &CloudFile::name);
    return file == listing->end() ? nullptr : &*file;
}

void RoundState::setListed(const QString &name, qint64 size, const QByteArray &revision)
{
    if (listing) {
        setUnlisted(name);
        listing->append({name, size, revision});
    }
}

void RoundState::setUnlisted(const QString &name)
{
    if (listing) {
        listing->removeIf([&name](const CloudFile &file) { return file.name == name; });
    }
}

} // namespace quillon
