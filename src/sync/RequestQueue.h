// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace quillon {

/// Keeps some requests about files under way, never more than it may, until there are no more to
/// give. Nothing that it was given is called after it has gone. Main thread.
class RequestQueue : public QObject
{
public:
    /// The next file; none when there is none for now: it is asked again after each answer.
    using Next = std::function<std::optional<QString>()>;
    using Answered = std::function<void()>;
    using Launch = std::function<void(const QString &name, const Answered &answered)>;
    using Finished = std::function<void()>;

    explicit RequestQueue(int atOnce)
        : m_atOnce(atOnce)
    {
    }

    /// `finished` is called once, when everything was answered; then it can run again.
    void run(Next next, Launch launch, Finished finished);

private:
    void fill();

    int m_atOnce;
    int m_underWay = 0;
    bool m_filling = false;
    Next m_next;
    Launch m_launch;
    Finished m_finished;
};

} // namespace quillon
