// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCborStreamReader>
#include <QString>

#include <optional>

namespace quillon {

/// Reads CBOR that strangers may have written, item by item, without calls that nest. The first
/// thing that is not as it was asked for makes it fail for good: from then on everything reads as
/// nothing, so a reader asks only at the end and where it loops.
class CborInput
{
public:
    explicit CborInput(const QByteArray &bytes);

    bool hasFailed() const { return m_failed; }
    void fail() { m_failed = true; }
    /// Everything was read as asked, and there is nothing behind it.
    bool isAtEnd();

    void enterArray();
    void leaveArray();
    /// False after a failure, so that every loop ends.
    bool hasNext() const { return !m_failed && m_reader.hasNext(); }

    qint64 integer();
    quint64 unsignedInteger(quint64 highest);
    QString text();
    QByteArray bytes();
    double real();
    /// Whether a null was there, which is passed over.
    bool takeNull();
    /// The tag before the next item, which is passed over.
    std::optional<quint64> takeTag();
    std::optional<bool> takeBoolean();

    bool isInteger() const { return !m_failed && m_reader.isInteger(); }
    bool isText() const { return !m_failed && m_reader.isString(); }
    bool isBytes() const { return !m_failed && m_reader.isByteArray(); }
    bool isReal() const { return !m_failed && m_reader.isDouble(); }

private:
    bool require(bool holds);
    void next();

    QByteArray m_bytes;
    QCborStreamReader m_reader;
    int m_depth = 0;
    bool m_failed = false;
};

} // namespace quillon
