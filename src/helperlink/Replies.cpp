// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helperlink/Replies.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "platform/Scheduler.h"

#include <utility>

namespace quillon {

QString errorText(const Error &error)
{
    return filled(errorLogFormat, {error.domain, QString::number(error.code)});
}

void logOnMain(Scheduler &scheduler, const QString &text)
{
    // One level for all: what happens to the helper is to stand in the system log by default.
    scheduler.onMain([text] { qCWarning(logHelperLink, "%s", qUtf8Printable(text)); });
}

void logErrorOnMain(Scheduler &scheduler, const Error &error)
{
    logOnMain(scheduler, errorText(error));
}

YesNoReply::YesNoReply(Scheduler &scheduler, Answer answer, std::shared_ptr<void> keep)
    : m_scheduler(scheduler)
    , m_answer(std::move(answer))
    , m_keep(std::move(keep))
{
}

ErrorReply YesNoReply::reply(const QString &successText) const
{
    return [self = *this, successText](const std::optional<Error> &error) {
        if (self.m_first.taken()) {
            return;
        }
        if (error) {
            logErrorOnMain(self.m_scheduler, *error);
        } else if (!successText.isNull()) {
            logOnMain(self.m_scheduler, successText);
        }
        self.m_answer(!error);
    };
}

ErrorHandler YesNoReply::errorHandler() const
{
    return [self = *this](const Error &error) {
        if (!self.m_first.taken()) {
            logErrorOnMain(self.m_scheduler, error);
            self.m_answer(false);
        }
    };
}

ErrorHandler YesNoReply::errorHandlerOfRemoval(const QString &successText) const
{
    return [self = *this, successText](const Error &error) {
        if (!self.m_first.taken()) {
            logErrorOnMain(self.m_scheduler, error);
            logOnMain(self.m_scheduler, successText);
            self.m_answer(true);
        }
    };
}

} // namespace quillon
