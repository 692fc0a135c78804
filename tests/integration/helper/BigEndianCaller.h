// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillon::test {

/// A connection to the system bus that writes its messages in the byte order of other machines, as
/// the protocol allows. It reads no answer.
class BigEndianCaller
{
public:
    /// Connects as this user.
    explicit BigEndianCaller(const std::string &user);
    ~BigEndianCaller();
    BigEndianCaller(const BigEndianCaller &) = delete;
    BigEndianCaller &operator=(const BigEndianCaller &) = delete;

    /// Asks the helper for a change, with an authorization of so many bytes.
    void change(const std::string &device, const std::string &address, std::size_t authorization);

private:
    void send(const std::string &bytes) const;

    int m_socket = -1;
    unsigned m_number = 0;
};

} // namespace quillon::test
