// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>
#include <utility>

namespace quillon {

/// An open file of the operating system's, closed with this object; -1 is none.
class FileHandle
{
public:
    explicit FileHandle(int number = -1)
        : m_number(number)
    {
    }
    ~FileHandle()
    {
        if (m_number >= 0) {
            ::close(m_number);
        }
    }
    FileHandle(FileHandle &&other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    FileHandle(const FileHandle &) = delete;
    FileHandle &operator=(const FileHandle &) = delete;
    FileHandle &operator=(FileHandle &&) = delete;

    explicit operator bool() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};

} // namespace quillon
