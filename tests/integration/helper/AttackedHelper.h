// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/FakePolkit.h"
#include "integration/helper/RawBus.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace quillon::test {

inline constexpr char helperLog[] = "/tmp/helper.log";

/// The real helper under the limits of its own unit, and users who ask it. It is the same one at
/// the end as at the beginning.
class AttackedHelper : public testing::Test
{
protected:
    void SetUp() override
    {
        outputOf(std::string{QUILLON_AS_THE_UNIT} +
                 " /etc/systemd/system/quillon4-helper.service >/dev/null 2>" + helperLog + " &");
        ASSERT_TRUE(waitUntil([this] { return quillon.hasOwner(contract::helperName); }));
        helper = quillon.endpoint();
        process = quillon.processOf(helper);
    }
    void TearDown() override
    {
        EXPECT_EQ(quillonLater.processOf(contract::helperName), process);
        EXPECT_EQ(quillonLater.version(), contract::helperVersion);
    }

    FakePolkit::Decision onlyFor(const BusClient &client)
    {
        return [name = client.uniqueName()](const FakePolkit::Question &question) {
            return question.subject.at("name") == name ? FakePolkit::Answer::Yes
                                                       : FakePolkit::Answer::LeaveOpen;
        };
    }
    /// A number of /proc/PID/status, in kilobytes.
    long statusOf(const std::string &field) const
    {
        std::ifstream status{"/proc/" + std::to_string(process) + "/status"};
        for (std::string line; std::getline(status, line);) {
            if (line.rfind(field + ":", 0) == 0) {
                return std::stol(line.substr(field.size() + 1));
            }
        }
        return 0;
    }
    /// At any time since its start: one huge message and no copy of it.
    void expectLittleMemory() const
    {
#ifndef __SANITIZE_ADDRESS__ // which keeps freed memory for a while
        EXPECT_LT(statusOf("VmHWM"), 64 * 1024);
#endif
    }
    /// Of the processor, in hundredths of a second.
    static long timeUsed(pid_t of)
    {
        std::ifstream file{"/proc/" + std::to_string(of) + "/stat"};
        std::string text;
        std::getline(file, text);
        std::istringstream fields{text.substr(text.rfind(')') + 2)};
        std::string skipped;
        for (int i = 0; i < 11; ++i) {
            fields >> skipped;
        }
        long user = 0;
        long system = 0;
        fields >> user >> system;
        return user + system;
    }
    static void fillChange(sd_bus_message *message, const char *device, const char *address,
        const std::vector<std::uint8_t> &authorization)
    {
        sd_bus_message_append(message, "ssb", device, address, 0);
        sd_bus_message_append_array(message, 'y', authorization.data(), authorization.size());
    }

    BusClient quillon{"quillon"};
    BusClient quillonLater{"quillon"};
    RawBus mallory{"mallory"};
    std::string helper;
    pid_t process = 0;
};

} // namespace quillon::test
