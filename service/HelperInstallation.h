// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <sys/types.h>

namespace quillon::service {

class PollLoop;

/// Runs the tool with the rights of an administrator, after polkit's prompt, to put itself in
/// place. One at a time.
class HelperInstallation
{
public:
    enum class Outcome
    {
        Installed,
        NotAuthorized, ///< the prompt was refused, dismissed or could not be shown
        Failed,        ///< with what the tool printed
    };
    using Reply = std::function<void(Outcome outcome, const std::string &message)>;

    /// `tool` is an absolute path.
    HelperInstallation(PollLoop &loop, std::string tool);
    ~HelperInstallation();
    HelperInstallation(const HelperInstallation &) = delete;
    HelperInstallation &operator=(const HelperInstallation &) = delete;

    /// Called when none runs. `reply` is called once, after as long as a person at the prompt
    /// needs.
    void start(Reply reply);

private:
    bool spawn();
    void readMessage();
    void childEnded();
    void finish(Outcome outcome, const std::string &message);
    void closeDescriptors();

    PollLoop &m_loop;
    const std::string m_tool;
    Reply m_reply;
    pid_t m_child = -1;
    int m_childDescriptor = -1;
    int m_messageDescriptor = -1;
    std::string m_message;
};

} // namespace quillon::service
