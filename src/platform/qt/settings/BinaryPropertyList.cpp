// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/BinaryPropertyList.h"

#include "platform/qt/settings/XmlPropertyList.h"

#include <QDateTime>
#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>

namespace quillon {

namespace {

// The layout: magic, objects, a table of the objects' offsets, and a trailer of 32 bytes: 6 unused,
// the width of an offset, the width of a reference, and, 8 bytes each, big-endian, the number of
// objects, the top object and where the table is.
constexpr char magic[] = "bplist00";
constexpr quint64 magicSize = 8;
constexpr quint64 trailerSize = 32;

// Objects may be shared, so a small file can describe a giant value.
constexpr quint64 objectCost = 32;
constexpr quint64 mostBytes = 64 * 1024 * 1024;

constexpr qint64 secondsTo2001 = 978'307'200;

class BinaryPropertyListReader
{
public:
    explicit BinaryPropertyListReader(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_size(static_cast<quint64>(bytes.size()))
    {
    }

    Result<QVariant> read();

private:
    QVariant object(quint64 index, int depth);
    QVariant integer(quint64 at, unsigned width);
    QVariant real(quint64 at, unsigned width);
    QVariant date(quint64 at);
    QVariant text(quint64 at, quint64 length, unsigned unitSize);
    QVariant array(quint64 at, quint64 length, int depth);
    QVariant dictionary(quint64 at, quint64 length, int depth);

    /// `width` bytes at `at` as a big-endian number; 0 and a failure when they are not all there.
    quint64 number(quint64 at, quint64 width);
    /// The count of the object at `at`, in its low four bits or in an integer that follows; `at`
    /// then stands on the content.
    quint64 count(quint64 &at, quint64 marker);
    bool has(quint64 at, quint64 length);
    QVariant fail(const char *what);

    const QByteArray &m_bytes;
    quint64 m_size;
    quint64 m_offsetWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_objectCount = 0;
    quint64 m_tableAt = 0;
    quint64 m_bytesRead = 0;
    QString m_problem;
};

Result<QVariant> BinaryPropertyListReader::read()
{
    QVariant result;
    if (m_size < magicSize + trailerSize) {
        fail("cut off");
    } else {
        const quint64 trailerAt = m_size - trailerSize;
        m_offsetWidth = number(trailerAt + 6, 1);
        m_referenceWidth = number(trailerAt + 7, 1);
        m_objectCount = number(trailerAt + 8, 8);
        const quint64 top = number(trailerAt + 16, 8);
        m_tableAt = number(trailerAt + 24, 8);
        const bool widths = m_offsetWidth >= 1 && m_offsetWidth <= 8 && m_referenceWidth >= 1 &&
                            m_referenceWidth <= 8;
        if (!widths || m_tableAt < magicSize || m_tableAt > trailerAt ||
            m_objectCount > (trailerAt - m_tableAt) / m_offsetWidth) {
            fail("bad trailer");
        } else {
            result = object(top, propertyListDepthLimit + 1);
        }
    }
    if (!m_problem.isNull()) {
        return Error{propertyListErrorDomain, 0, m_problem};
    }
    return result;
}

QVariant BinaryPropertyListReader::object(quint64 index, int depth)
{
    if (index >= m_objectCount) {
        return fail("reference to no object");
    }
    m_bytesRead += objectCost;
    quint64 at = number(m_tableAt + index * m_offsetWidth, m_offsetWidth);
    if (at < magicSize || !has(at, 1)) {
        return fail("object outside of the file");
    }
    const quint64 marker = number(at++, 1);
    const unsigned low = marker & 0x0F;
    switch (marker >> 4) {
    case 0x0:
        return low == 0x8 || low == 0x9 ? QVariant(low == 0x9) : fail("unknown object");
    case 0x1:
        return integer(at, low);
    case 0x2:
        return real(at, low);
    case 0x3:
        return low == 0x3 ? date(at) : fail("unknown object");
    case 0x4: {
        const quint64 length = count(at, marker);
        return has(at, length) ? QVariant(m_bytes.mid(
                                     static_cast<qsizetype>(at), static_cast<qsizetype>(length)))
                               : fail("cut off");
    }
    case 0x5:
    case 0x6: {
        const quint64 length = count(at, marker);
        return text(at, length, (marker >> 4) == 0x5 ? 1 : 2);
    }
    case 0xA: {
        const quint64 length = count(at, marker);
        return array(at, length, depth - 1);
    }
    case 0xD: {
        const quint64 length = count(at, marker);
        return dictionary(at, length, depth - 1);
    }
    default:
        return fail("unknown object");
    }
}

QVariant BinaryPropertyListReader::integer(quint64 at, unsigned width)
{
    // 1, 2 and 4 bytes are unsigned, 8 are signed; 16 are for unsigned numbers beyond that.
    if (width <= 3) {
        return static_cast<qlonglong>(number(at, quint64(1) << width));
    }
    const quint64 high = width == 4 ? number(at, 8) : 1;
    const auto value = width == 4 ? static_cast<qlonglong>(number(at + 8, 8)) : 0;
    const bool fits = (high == 0 && value >= 0) || (high == ~quint64(0) && value < 0);
    return fits ? QVariant(value) : fail("bad integer");
}

QVariant BinaryPropertyListReader::real(quint64 at, unsigned width)
{
    if (width == 2) {
        return static_cast<double>(std::bit_cast<float>(static_cast<quint32>(number(at, 4))));
    }
    return width == 3 ? QVariant(std::bit_cast<double>(number(at, 8))) : fail("bad number");
}

QVariant BinaryPropertyListReader::date(quint64 at)
{
    constexpr double tenThousandYears = 1e4 * 366 * 86'400;
    const double seconds = std::floor(std::bit_cast<double>(number(at, 8)));
    if (!(std::abs(seconds) < tenThousandYears)) {
        return fail("bad date");
    }
    const auto moment =
        QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds) + secondsTo2001, Qt::UTC);
    return propertyListType(moment) == PropertyListType::Date ? QVariant(moment) : fail("bad date");
}

QVariant BinaryPropertyListReader::text(quint64 at, quint64 length, unsigned unitSize)
{
    if (length > m_size || !has(at, length * unitSize)) {
        return fail("cut off");
    }
    const char *begin = m_bytes.constData() + at;
    const auto units = static_cast<qsizetype>(length);
    if (unitSize == 1) {
        return QString::fromLatin1(begin, units);
    }
    QString result(units, Qt::Uninitialized);
    qFromBigEndian<char16_t>(begin, units, result.data());
    return result;
}

QVariant BinaryPropertyListReader::array(quint64 at, quint64 length, int depth)
{
    if (depth < 0) {
        return fail("nested too deeply");
    }
    QVariantList result;
    for (quint64 item = 0; item < length && m_problem.isNull(); ++item) {
        result.append(object(number(at + item * m_referenceWidth, m_referenceWidth), depth));
    }
    return result;
}

QVariant BinaryPropertyListReader::dictionary(quint64 at, quint64 length, int depth)
{
    if (depth < 0) {
        return fail("nested too deeply");
    }
    QVariantMap result;
    for (quint64 entry = 0; entry < length && m_problem.isNull(); ++entry) {
        const QVariant key = object(number(at + entry * m_referenceWidth, m_referenceWidth), depth);
        if (propertyListType(key) != PropertyListType::String) {
            return fail("a key that is not a string");
        }
        result.insert(key.toString(),
            object(number(at + (length + entry) * m_referenceWidth, m_referenceWidth), depth));
    }
    return result;
}

quint64 BinaryPropertyListReader::number(quint64 at, quint64 width)
{
    if (!has(at, width)) {
        fail("cut off");
        return 0;
    }
    quint64 result = 0;
    for (quint64 byte = 0; byte < width; ++byte) {
        result = (result << 8) | static_cast<quint8>(m_bytes.at(static_cast<qsizetype>(at + byte)));
    }
    return result;
}

quint64 BinaryPropertyListReader::count(quint64 &at, quint64 marker)
{
    if ((marker & 0x0F) != 0x0F) {
        return marker & 0x0F;
    }
    const quint64 following = number(at++, 1);
    const quint64 width = quint64(1) << (following & 0x0F);
    if ((following >> 4) != 0x1 || width > 8) {
        fail("bad count");
        return 0;
    }
    const quint64 result = number(at, width);
    at += width;
    return result;
}

bool BinaryPropertyListReader::has(quint64 at, quint64 length)
{
    m_bytesRead += std::min(length, m_size);
    return at <= m_size && length <= m_size - at && m_bytesRead <= mostBytes;
}

QVariant BinaryPropertyListReader::fail(const char *what)
{
    if (m_problem.isNull()) {
        m_problem = QStringLiteral("binary property list: ") + QLatin1String(what);
    }
    return {};
}

} // namespace

bool isBinaryPropertyList(const QByteArray &bytes)
{
    return bytes.startsWith(magic);
}

Result<QVariant> readBinaryPropertyList(const QByteArray &bytes)
{
    return BinaryPropertyListReader(bytes).read();
}

} // namespace quillon
