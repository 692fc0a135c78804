// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/XmlPropertyList.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <cmath>
#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// One walk over the text. Problems are raised in the stream reader, which then stops.
class XmlPropertyListReader
{
public:
    explicit XmlPropertyListReader(const QByteArray &text)
        : m_xml(text)
    {
    }

    Result<QVariant> read();

private:
    bool nextChild();
    QVariant value(int depth);
    QVariantMap dictionary(int depth);
    QVariantList array(int depth);
    QVariant boolean(bool value);
    QVariant integer(const QString &text);
    QVariant real(const QString &text);
    QVariant date(const QString &text);
    QVariant data(const QString &text);
    QVariant fail(const QString &what);

    QXmlStreamReader m_xml;
};

Result<QVariant> XmlPropertyListReader::read()
{
    QVariant result;
    if (m_xml.readNextStartElement() && m_xml.name() != "plist"_L1) {
        fail(u"not a property list"_s);
    } else if (!m_xml.hasError() && !nextChild()) {
        fail(u"an empty property list"_s);
    } else {
        // One more level than the value of a key: the dictionary of all keys.
        result = value(propertyListDepthLimit + 1);
        if (nextChild()) {
            fail(u"more than one value"_s);
        }
    }
    while (!m_xml.atEnd()) {
        m_xml.readNext();
    }
    if (m_xml.hasError()) {
        return Error{propertyListErrorDomain, static_cast<int>(m_xml.error()),
            u"line %1: %2"_s.arg(m_xml.lineNumber()).arg(m_xml.errorString())};
    }
    return result;
}

/// To the next element in this one, or, with false, to its end. Text in between is an error, which
/// QXmlStreamReader's own function would skip.
bool XmlPropertyListReader::nextChild()
{
    while (!m_xml.atEnd()) {
        m_xml.readNext();
        if (m_xml.isStartElement() || m_xml.isEndElement()) {
            return m_xml.isStartElement();
        }
        if (m_xml.isCharacters() && !m_xml.isWhitespace()) {
            fail(u"text outside of a value"_s);
        }
    }
    return false;
}

QVariant XmlPropertyListReader::value(int depth)
{
    const QString name = m_xml.name().toString();
    if (name == "dict"_L1 || name == "array"_L1) {
        if (depth == 0) {
            return fail(u"nested too deeply"_s);
        }
        return name == "dict"_L1 ? QVariant(dictionary(depth - 1)) : QVariant(array(depth - 1));
    }
    if (name == "true"_L1 || name == "false"_L1) {
        return boolean(name == "true"_L1);
    }
    const QString text = m_xml.readElementText();
    if (name == "string"_L1) {
        return text;
    }
    if (name == "integer"_L1) {
        return integer(text.trimmed());
    }
    if (name == "real"_L1) {
        return real(text.trimmed());
    }
    if (name == "date"_L1) {
        return date(text.trimmed());
    }
    if (name == "data"_L1) {
        return data(text);
    }
    return fail(u"unknown element \"%1\""_s.arg(name));
}

QVariantMap XmlPropertyListReader::dictionary(int depth)
{
    QVariantMap result;
    while (nextChild()) {
        if (m_xml.name() != "key"_L1) {
            fail(u"a value without a key"_s);
            break;
        }
        const QString key = m_xml.readElementText();
        if (!nextChild() || m_xml.name() == "key"_L1) {
            fail(u"key \"%1\" without a value"_s.arg(key));
            break;
        }
        result.insert(key, value(depth));
    }
    return result;
}

QVariantList XmlPropertyListReader::array(int depth)
{
    QVariantList result;
    while (nextChild()) {
        result.append(value(depth));
    }
    return result;
}

QVariant XmlPropertyListReader::boolean(bool value)
{
    return m_xml.readElementText().isEmpty() ? QVariant(value) : fail(u"a boolean with content"_s);
}

QVariant XmlPropertyListReader::integer(const QString &text)
{
    static const QRegularExpression decimal(u"^[+-]?[0-9]+$"_s);
    static const QRegularExpression hexadecimal(u"^[+-]?0[xX][0-9a-fA-F]+$"_s);
    bool ok = false;
    qlonglong number = 0;
    if (decimal.match(text).hasMatch()) {
        number = text.toLongLong(&ok, 10);
    } else if (hexadecimal.match(text).hasMatch()) {
        number = text.toLongLong(&ok, 16);
    }
    return ok ? QVariant(number) : fail(u"bad integer \"%1\""_s.arg(text));
}

QVariant XmlPropertyListReader::real(const QString &text)
{
    static const QRegularExpression infinite(
        u"^([+-]?)inf(inity)?$"_s, QRegularExpression::CaseInsensitiveOption);
    if (text.compare("nan"_L1, Qt::CaseInsensitive) == 0) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (const auto match = infinite.match(text); match.hasMatch()) {
        const double infinity = std::numeric_limits<double>::infinity();
        return match.captured(1) == "-"_L1 ? -infinity : infinity;
    }
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok ? QVariant(number) : fail(u"bad number \"%1\""_s.arg(text));
}

QVariant XmlPropertyListReader::date(const QString &text)
{
    static const QRegularExpression form(
        u"^[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}Z$"_s);
    if (form.match(text).hasMatch()) {
        const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
        if (propertyListType(moment) == PropertyListType::Date) {
            return moment.toUTC();
        }
    }
    return fail(u"bad date \"%1\""_s.arg(text));
}

QVariant XmlPropertyListReader::data(const QString &text)
{
    QByteArray packed = text.toLatin1();
    packed.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    const auto bytes =
        QByteArray::fromBase64Encoding(packed, QByteArray::AbortOnBase64DecodingErrors);
    return bytes && packed.size() % 4 == 0 ? QVariant(*bytes) : fail(u"bad data"_s);
}

QVariant XmlPropertyListReader::fail(const QString &what)
{
    if (!m_xml.hasError()) {
        m_xml.raiseError(what);
    }
    return {};
}

} // namespace

Result<QVariant> readXmlPropertyList(const QByteArray &text)
{
    return XmlPropertyListReader(text).read();
}

} // namespace quillon
