// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Notifier.h"

#include <QList>
#include <gtest/gtest.h>

#include <algorithm>
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

    void ask(const Question &question) override
    {
        withdraw(question.identifier);
        questions.append(question);
        ++questionsEver;
    }
    void withdraw(const QString &identifier) override
    {
        questions.removeIf([&](const Question &shown) { return shown.identifier == identifier; });
    }
    /// The user answers the question, which then is on the screen no longer.
    void choose(const QString &identifier, const QString &action)
    {
        const auto question = std::ranges::find(questions, identifier, &Question::identifier);
        ASSERT_NE(question, questions.end());
        const auto chosen =
            std::ranges::find(question->actions, action, &NotificationAction::title);
        ASSERT_NE(chosen, question->actions.end());
        const auto act = chosen->chosen;
        questions.erase(question);
        act();
    }

    QList<Question> questions; ///< on the screen
    int questionsEver = 0;

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
