// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HelperLink.h"

#include <QString>

#include <atomic>
#include <functional>
#include <memory>

namespace quillon {

class Scheduler;

// What XPCMethods does with the answers of its peers. Any thread; nothing here needs the object
// that asked, so that an answer may come after it has gone.

/// How an error stands in the log: domain and code.
inline const QString errorLogFormat = QStringLiteral("error %@ / %d\n");

QString errorText(const Error &error);
/// To the system log, in a later turn of the main loop.
void logOnMain(Scheduler &scheduler, const QString &text);
void logErrorOnMain(Scheduler &scheduler, const Error &error);

/// Answers of a peer cross this once: a broken one that answers twice is heard the first time only.
class FirstAnswer
{
public:
    bool taken() const { return m_taken->exchange(true); }

private:
    std::shared_ptr<std::atomic_bool> m_taken = std::make_shared<std::atomic_bool>(false);
};

/// The two handlers of one call whose answer is yes or no. They keep the connection: dropping it
/// with the call under way would lose the answer.
class YesNoReply
{
public:
    using Answer = std::function<void(bool success)>;

    YesNoReply(Scheduler &scheduler, Answer answer, std::shared_ptr<void> keep);

    /// Logs `successText`, unless it is null, or the error.
    ErrorReply reply(const QString &successText = {}) const;
    ErrorHandler errorHandler() const;
    /// A helper that removes itself drops the connection: that is how its success looks.
    ErrorHandler errorHandlerOfRemoval(const QString &successText) const;

private:
    Scheduler &m_scheduler;
    Answer m_answer;
    std::shared_ptr<void> m_keep;
    FirstAnswer m_first;
};

} // namespace quillon
