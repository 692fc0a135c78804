// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HttpClient.h"
#include "platform/Scheduler.h"

#include <QObject>

#include <optional>

namespace quillon {

/// Fetches the list of versions: one request at a time, whose every end comes within two minutes,
/// however slowly the server talks. Main thread.
class UpdateRequest : public QObject
{
    Q_OBJECT

public:
    /// What the list came as; the Error is an UpdateProblem. In a later turn of the main loop.
    using Completion = std::function<void(const Result<QByteArray> &file)>;

    UpdateRequest(HttpClient &http, Scheduler &scheduler);
    ~UpdateRequest() override;

    /// Nothing while one is running.
    void start(const QUrl &feed, Completion completion);
    /// Ends it without a word.
    void cancel();
    bool isRunning() const { return m_completion != nullptr; }

private:
    void end(const Result<QByteArray> &file);

    HttpClient &m_http;
    Scheduler &m_scheduler;
    Completion m_completion; ///< while it runs
    std::optional<HttpClient::Token> m_transfer;
    std::optional<Scheduler::Token> m_deadline;
};

} // namespace quillon
