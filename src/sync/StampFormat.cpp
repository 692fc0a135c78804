// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/StampFormat.h"

#include <QtEndian>

#include <cmath>
#include <limits>

namespace quillon {

namespace {

// Tags of version 1 of the format; one byte each.
constexpr quint64 dateTag = 6;
constexpr quint64 treeTag = 7;
constexpr quint64 lowerAddressTag = 8;
constexpr quint64 upperAddressTag = 9;

constexpr qsizetype writerSize = 8;
constexpr qsizetype addressSize = 6;

// Differences of any two numbers, also of such that somebody made up.
qint64 plus(qint64 a, qint64 b)
{
    return qint64(quint64(a) + quint64(b));
}
qint64 minus(qint64 a, qint64 b)
{
    return qint64(quint64(a) - quint64(b));
}

QString addressText(const QByteArray &address, quint64 tag)
{
    const QByteArray digits = address.toHex(':');
    return QString::fromLatin1(tag == upperAddressTag ? digits.toUpper() : digits);
}

/// The six bytes of an address; empty for every text that is not spelled as addressText() does.
QByteArray addressBytes(const QString &text, quint64 tag)
{
    if (text.size() != 3 * addressSize - 1) {
        return {};
    }
    const QByteArray bytes = QByteArray::fromHex(text.toLatin1());
    return bytes.size() == addressSize && addressText(bytes, tag) == text ? bytes : QByteArray();
}

class ValueOutput
{
public:
    ValueOutput(QCborStreamWriter &writer, const Stamp &stamp)
        : m_writer(writer)
        , m_stamp(stamp)
    {
    }

    void operator()(std::monostate) const { m_writer.append(nullptr); }
    void operator()(bool value) const { m_writer.append(value); }
    void operator()(qint64 value) const { m_writer.append(value); }
    void operator()(double value) const { m_writer.append(value); }
    void operator()(const QByteArray &value) const { m_writer.append(value); }
    void operator()(const QString &value) const
    {
        for (const quint64 tag : {lowerAddressTag, upperAddressTag}) {
            if (const QByteArray address = addressBytes(value, tag); !address.isEmpty()) {
                m_writer.append(QCborTag(tag));
                m_writer.append(address);
                return;
            }
        }
        m_writer.append(value);
    }
    void operator()(SyncDate date) const
    {
        m_writer.append(QCborTag(dateTag));
        m_writer.append(minus(date.milliseconds, m_stamp.time));
    }
    void operator()(const SyncTree &tree) const
    {
        m_writer.append(QCborTag(treeTag));
        m_writer.append(tree.bytes);
    }

private:
    QCborStreamWriter &m_writer;
    const Stamp &m_stamp;
};

} // namespace

void StampOutput::meet(const Stamp &stamp)
{
    if (!stamp.isNever() && !m_indices.contains(stamp.writer)) {
        m_indices.insert(stamp.writer, quint64(m_writers.size()));
        m_writers.append(stamp.writer);
    }
}

void StampOutput::writeTable()
{
    QByteArray table(m_writers.size() * writerSize, '\0');
    for (qsizetype i = 0; i < m_writers.size(); ++i) {
        qToBigEndian(m_writers[i], table.data() + i * writerSize);
    }
    m_writer.append(table);
}

void StampOutput::write(const Stamp &stamp)
{
    if (stamp.isNever()) {
        m_writer.append(nullptr);
        return;
    }
    m_writer.append(minus(stamp.time, m_time));
    m_writer.append(quint64{stamp.count});
    m_writer.append(m_indices.value(stamp.writer));
    m_time = stamp.time;
}

void StampOutput::write(const SyncValue &value, const Stamp &stamp)
{
    std::visit(ValueOutput(m_writer, stamp), value);
}

void StampInput::readTable()
{
    const QByteArray table = m_input.bytes();
    if (table.size() % writerSize != 0) {
        m_input.fail();
        return;
    }
    for (qsizetype i = 0; i < table.size(); i += writerSize) {
        m_writers.append(qFromBigEndian<WriterId>(table.constData() + i));
    }
}

Stamp StampInput::read()
{
    return m_input.takeNull() ? Stamp() : readWritten();
}

Stamp StampInput::readWritten()
{
    Stamp stamp;
    stamp.time = plus(m_time, m_input.integer());
    stamp.count = quint32(m_input.unsignedInteger(std::numeric_limits<quint32>::max()));
    const auto index = qsizetype(m_input.unsignedInteger(quint64(m_writers.size())));
    if (stamp.time < 1 || stamp.time > latestStampTime || index >= m_writers.size()) {
        m_input.fail();
        return {};
    }
    stamp.writer = m_writers[index];
    m_time = stamp.time;
    return stamp;
}

SyncValue StampInput::readTagged(quint64 tag, const Stamp &stamp)
{
    if (tag == dateTag) {
        return SyncDate{plus(stamp.time, m_input.integer())};
    }
    const QByteArray bytes = m_input.bytes();
    if (tag == treeTag) {
        return SyncTree{bytes};
    }
    if ((tag != lowerAddressTag && tag != upperAddressTag) || bytes.size() != addressSize) {
        m_input.fail();
        return {};
    }
    return addressText(bytes, tag);
}

SyncValue StampInput::readValue(const Stamp &stamp)
{
    if (m_input.takeNull()) {
        return {};
    }
    if (const auto boolean = m_input.takeBoolean()) {
        return *boolean;
    }
    if (const auto tag = m_input.takeTag()) {
        return readTagged(*tag, stamp);
    }
    if (m_input.isInteger()) {
        return m_input.integer();
    }
    if (m_input.isText()) {
        return m_input.text();
    }
    if (m_input.isBytes()) {
        return m_input.bytes();
    }
    const double real = m_input.real();
    if (std::isnan(real)) {
        m_input.fail();
    }
    return real;
}

} // namespace quillon
