// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeScheduler.h"
#include "platform/CloudStorage.h"

#include <QMap>

namespace quillon::test {

/// An account in memory with the weaknesses of real ones.
class ProbedStorage : public CloudStorage
{
public:
    explicit ProbedStorage(FakeScheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    bool overlooksPreconditions = false;
    bool tellsRevisions = true;
    bool changesBytes = false;
    /// From that request on, counted from 0, all are answered with `problem`.
    int failsFrom = -1;
    CloudProblem problem = CloudProblem::Failed;
    /// Called before each request.
    std::function<void(int number)> before;

    QMap<QString, QByteArray> files;
    int requests = 0;

    void list(Listed listed) override
    {
        if (fails(listed)) {
            return;
        }
        QList<CloudFile> found;
        for (auto file = files.begin(); file != files.end(); ++file) {
            found << CloudFile{file.key(), file->size(), revisionOf(*file)};
        }
        later([=] { listed(found); });
    }
    void read(const QString &name, qint64, Read read) override
    {
        if (fails(read)) {
            return;
        }
        if (!files.contains(name)) {
            later([=] { read(CloudError{CloudProblem::NotThere, {}}); });
            return;
        }
        QByteArray bytes = files.value(name);
        if (changesBytes) {
            bytes.replace("\r\n", "\n");
        }
        later([=, this] { read(Content{bytes, revisionOf(bytes)}); });
    }
    void readIfChanged(const QString &, const QByteArray &, qint64, ReadChanged read) override
    {
        later([=] { read(CloudError{CloudProblem::Failed, {}}); });
    }
    void create(const QString &name, const QByteArray &bytes, Written written) override
    {
        write(name, bytes, written, files.contains(name));
    }
    void replace(const QString &name, const QByteArray &bytes, const QByteArray &revision,
        Written written) override
    {
        write(
            name, bytes, written, !revision.isEmpty() && revision != revisionOf(files.value(name)));
    }
    void remove(const QString &name, Removed removed) override
    {
        if (fails(removed)) {
            return;
        }
        files.remove(name);
        later([=] { removed(std::nullopt); });
    }

private:
    QByteArray revisionOf(const QByteArray &bytes) const
    {
        return tellsRevisions ? "of " + QByteArray::number(bytes.size()) : QByteArray();
    }
    void write(const QString &name, const QByteArray &bytes, const Written &written, bool isAnother)
    {
        if (fails(written)) {
            return;
        }
        if (isAnother && !overlooksPreconditions) {
            later([=] { written(CloudError{CloudProblem::Changed, {}}); });
            return;
        }
        files.insert(name, bytes);
        later([=, this] { written(revisionOf(bytes)); });
    }
    template <typename Done>
    bool fails(const Done &done)
    {
        const int number = requests++;
        if (before) {
            before(number);
        }
        if (failsFrom < 0 || number < failsFrom) {
            return false;
        }
        later([done, problem = problem] { done(CloudError{problem, {}}); });
        return true;
    }
    void later(Scheduler::Task task) { m_scheduler.onMain(std::move(task)); }

    FakeScheduler &m_scheduler;
};

} // namespace quillon::test
