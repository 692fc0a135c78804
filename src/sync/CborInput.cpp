// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/CborInput.h"

#include <limits>

namespace quillon {

CborInput::CborInput(const QByteArray &bytes)
    : m_bytes(bytes)
    , m_reader(m_bytes)
{
}

bool CborInput::require(bool holds)
{
    m_failed = m_failed || !holds || m_reader.lastError() != QCborError::NoError;
    return !m_failed;
}

void CborInput::next()
{
    // None of the items that are passed over has others in it.
    require(m_reader.next(1));
}

bool CborInput::isAtEnd()
{
    return require(m_depth == 0) && m_reader.currentOffset() == m_bytes.size();
}

void CborInput::enterArray()
{
    if (require(m_reader.isArray()) && require(m_reader.enterContainer())) {
        ++m_depth;
    }
}

void CborInput::leaveArray()
{
    if (require(m_depth > 0 && !m_reader.hasNext())) {
        --m_depth;
        require(m_reader.leaveContainer());
    }
}

qint64 CborInput::integer()
{
    qint64 value = 0;
    if (!require(m_reader.isInteger())) {
        return 0;
    }
    if (m_reader.isUnsignedInteger()) {
        const quint64 read = m_reader.toUnsignedInteger();
        require(read <= quint64(std::numeric_limits<qint64>::max()));
        value = qint64(read);
    } else {
        // What is read is the negative number's distance from zero.
        const quint64 read = quint64(m_reader.toNegativeInteger());
        require(read > 0 && read <= quint64(std::numeric_limits<qint64>::max()));
        value = m_failed ? 0 : -qint64(read);
    }
    next();
    return m_failed ? 0 : value;
}

quint64 CborInput::unsignedInteger(quint64 highest)
{
    if (!require(m_reader.isUnsignedInteger()) ||
        !require(m_reader.toUnsignedInteger() <= highest)) {
        return 0;
    }
    const quint64 value = m_reader.toUnsignedInteger();
    next();
    return m_failed ? 0 : value;
}

QString CborInput::text()
{
    QString text;
    if (!require(m_reader.isString())) {
        return text;
    }
    auto part = m_reader.readString();
    for (; part.status == QCborStreamReader::Ok; part = m_reader.readString()) {
        text += part.data;
    }
    return require(part.status == QCborStreamReader::EndOfString) ? text : QString();
}

QByteArray CborInput::bytes()
{
    QByteArray bytes;
    if (!require(m_reader.isByteArray())) {
        return bytes;
    }
    auto part = m_reader.readByteArray();
    for (; part.status == QCborStreamReader::Ok; part = m_reader.readByteArray()) {
        bytes += part.data;
    }
    return require(part.status == QCborStreamReader::EndOfString) ? bytes : QByteArray();
}

double CborInput::real()
{
    if (!require(m_reader.isDouble())) {
        return 0;
    }
    const double value = m_reader.toDouble();
    next();
    return value;
}

bool CborInput::takeNull()
{
    const bool isNull = !m_failed && m_reader.isNull();
    if (isNull) {
        next();
    }
    return isNull;
}

std::optional<quint64> CborInput::takeTag()
{
    if (m_failed || !m_reader.isTag()) {
        return std::nullopt;
    }
    const auto tag = quint64(m_reader.toTag());
    next();
    return tag;
}

std::optional<bool> CborInput::takeBoolean()
{
    if (m_failed || !m_reader.isBool()) {
        return std::nullopt;
    }
    const bool value = m_reader.toBool();
    next();
    return value;
}

} // namespace quillon
