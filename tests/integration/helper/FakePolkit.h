// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace quillon::test {

/// Stands in polkit's place on the sandbox's bus, to show what the helper asks and to give answers
/// that the real one never would.
class FakePolkit
{
public:
    struct Question
    {
        std::string subjectKind;
        /// Keys of the subject's details.
        std::map<std::string, std::string> subject;
        std::string action;
        std::map<std::string, std::string> details;
        std::uint32_t flags = 0;
        std::string cancellation;
    };
    /// What to do with a question: leave it open, or answer.
    enum class Answer
    {
        Yes,
        No,
        LeaveOpen,
        Error,
        Nonsense,
    };
    using Decision = std::function<Answer(const Question &question)>;

    explicit FakePolkit(Decision decision);
    ~FakePolkit();

    std::vector<Question> questions() const;
    std::vector<std::string> cancelled() const;
    /// Answers every open question with yes.
    void openQuestionsAreGranted();

private:
    void check(sdbus::MethodCall call);
    static void answer(const sdbus::MethodCall &call, bool yes);

    Decision m_decision;
    mutable std::mutex m_mutex;
    std::vector<Question> m_questions;
    std::vector<std::string> m_cancelled;
    std::vector<sdbus::MethodCall> m_open;
    std::unique_ptr<sdbus::IConnection> m_connection;
    std::unique_ptr<sdbus::IObject> m_object;
};

} // namespace quillon::test
