// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SecretBytes.h"

#include <cstring>
#include <sodium.h>
#include <utility>

namespace quillon {

SecretBytes::SecretBytes(std::size_t size)
    : m_bytes(sodium_init() < 0 ? nullptr : static_cast<unsigned char *>(sodium_malloc(size)))
    , m_size(m_bytes ? size : 0)
{
    if (m_bytes) {
        std::memset(m_bytes, 0, size);
    }
}

SecretBytes::SecretBytes(SecretBytes &&other) noexcept
    : m_bytes(std::exchange(other.m_bytes, nullptr))
    , m_size(std::exchange(other.m_size, 0))
{
}

SecretBytes &SecretBytes::operator=(SecretBytes &&other) noexcept
{
    std::swap(m_bytes, other.m_bytes);
    std::swap(m_size, other.m_size);
    return *this;
}

SecretBytes::~SecretBytes()
{
    sodium_free(m_bytes);
}

void wipe(QByteArray &bytes)
{
    if (!bytes.isEmpty()) {
        sodium_memzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
        bytes.clear();
    }
}

} // namespace quillon
