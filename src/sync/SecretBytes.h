// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstddef>

namespace quillon {

/// Memory for a secret: never swapped out where the system allows that, wiped when it goes, guarded
/// by pages that end the program when they are touched. Made once, filled by whoever made it. A
/// copy would be one secret more to lose: it can only be moved.
class SecretBytes
{
public:
    /// Zeros; null when the system has no such memory left.
    explicit SecretBytes(std::size_t size);
    SecretBytes(SecretBytes &&other) noexcept;
    SecretBytes &operator=(SecretBytes &&other) noexcept;
    SecretBytes(const SecretBytes &) = delete;
    SecretBytes &operator=(const SecretBytes &) = delete;
    ~SecretBytes();

    bool isNull() const { return m_bytes == nullptr; }
    std::size_t size() const { return m_size; }
    unsigned char *data() { return m_bytes; }
    const unsigned char *data() const { return m_bytes; }

private:
    unsigned char *m_bytes = nullptr;
    std::size_t m_size = 0;
};

/// Overwrites the bytes, which nobody else holds, before their memory goes back.
void wipe(QByteArray &bytes);

} // namespace quillon
