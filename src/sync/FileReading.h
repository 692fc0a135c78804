// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RequestQueue.h"
#include "sync/RoundState.h"

namespace quillon {

/// Reads sealed files of the account, some at once. Main thread.
class FileReading
{
public:
    /// What is wrong with the file; nothing when it was taken.
    using Take = std::function<std::optional<FileProblem>(const QString &, const QByteArray &)>;
    /// Whether all files were taken.
    using Finished = std::function<void(bool all)>;

    explicit FileReading(RoundState &state);

    /// In that order, though they may come in another one. A file that is wrong is left alone, and
    /// the others are read nevertheless.
    void run(const QStringList &names, Take take, Finished finished);

private:
    void read(const QString &name, const RequestQueue::Answered &answered);
    void take(const QString &name, const CloudResult<CloudStorage::Content> &result);
    void refuse(const QString &name, FileProblem problem, const QByteArray &readRevision = {});

    RoundState &m_state;
    RequestQueue m_queue;
    QStringList m_names;
    Take m_take;
    bool m_all = true;
};

} // namespace quillon
