// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/CborInput.h"
#include "sync/SyncValue.h"

#include <QByteArray>
#include <QCborStreamWriter>
#include <QHash>
#include <QList>

namespace quillon {

/// Stamps and values within one file: each writer stands once in a table, and of a time only the
/// distance to that of the stamp before it.
class StampOutput
{
public:
    explicit StampOutput(QCborStreamWriter &writer)
        : m_writer(writer)
    {
    }

    /// To be called for all stamps before the first of them is written.
    void meet(const Stamp &stamp);
    void writeTable();
    void write(const Stamp &stamp);
    /// A date is written as its distance to the moment of the stamp, which is small where a record
    /// says when it was made.
    void write(const SyncValue &value, const Stamp &stamp);

private:
    QCborStreamWriter &m_writer;
    QList<WriterId> m_writers;
    QHash<WriterId, quint64> m_indices;
    qint64 m_time = 0;
};

class StampInput
{
public:
    explicit StampInput(CborInput &input)
        : m_input(input)
    {
    }

    void readTable();
    Stamp read();
    /// One that is not "never".
    Stamp readWritten();
    SyncValue readValue(const Stamp &stamp);

private:
    SyncValue readTagged(quint64 tag, const Stamp &stamp);

    CborInput &m_input;
    QList<WriterId> m_writers;
    qint64 m_time = 0;
};

} // namespace quillon
