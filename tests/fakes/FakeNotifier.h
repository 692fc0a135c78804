// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Notifier.h"

#include <QList>

#include <mutex>
#include <ostream>

namespace quillon::test {

/// Keeps what the user would have been told.
class FakeNotifier : public Notifier
{
public:
    struct Message
    {
        QString title;
        QString body;

        bool operator==(const Message &) const = default;
        /// Lets a failing expectation show it.
        friend void PrintTo(const Message &message, std::ostream *out)
        {
            *out << message.title.toStdString() << ": " << message.body.toStdString();
        }
    };

    void sendNotificationWithBody(const QString &title, const QString &body) override
    {
        const std::lock_guard lock(m_mutex);
        m_messages.append({title, body});
    }

    QList<Message> messages() const
    {
        const std::lock_guard lock(m_mutex);
        return m_messages;
    }

private:
    mutable std::mutex m_mutex;
    QList<Message> m_messages;
};

} // namespace quillon::test
