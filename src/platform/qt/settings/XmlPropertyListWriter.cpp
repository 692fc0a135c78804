// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/XmlPropertyList.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void append(QByteArray &out, const QVariant &value, int indent);

/// Only what XML would change or misread; a carriage return as it is would come back as a line
/// feed.
QByteArray escaped(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar unit : text) {
        switch (unit.unicode()) {
        case u'&':
            result += u"&amp;"_s;
            break;
        case u'<':
            result += u"&lt;"_s;
            break;
        case u'>':
            result += u"&gt;"_s;
            break;
        case u'\r':
            result += u"&#13;"_s;
            break;
        default:
            result += unit;
        }
    }
    return result.toUtf8();
}

QByteArray realText(double number)
{
    if (std::isnan(number)) {
        return "nan";
    }
    if (std::isinf(number)) {
        return number > 0 ? "+infinity" : "-infinity";
    }
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

void appendElement(QByteArray &out, const char *name, const QByteArray &content)
{
    out.append('<').append(name).append('>').append(content).append("</").append(name).append(
        ">\n");
}

void appendArray(QByteArray &out, const QVariantList &items, int indent)
{
    if (items.isEmpty()) {
        out.append("<array/>\n");
        return;
    }
    out.append("<array>\n");
    for (const QVariant &item : items) {
        append(out, item, indent + 1);
    }
    out.append(QByteArray(indent, '\t')).append("</array>\n");
}

void appendDictionary(QByteArray &out, const QVariantMap &map, int indent)
{
    if (map.isEmpty()) {
        out.append("<dict/>\n");
        return;
    }
    out.append("<dict>\n");
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        out.append(QByteArray(indent + 1, '\t'));
        appendElement(out, "key", escaped(entry.key()));
        append(out, entry.value(), indent + 1);
    }
    out.append(QByteArray(indent, '\t')).append("</dict>\n");
}

void append(QByteArray &out, const QVariant &value, int indent)
{
    const auto type = propertyListType(value);
    if (!type) {
        return;
    }
    out.append(QByteArray(indent, '\t'));
    switch (*type) {
    case PropertyListType::Boolean:
        out.append(value.toBool() ? "<true/>\n" : "<false/>\n");
        break;
    case PropertyListType::Integer:
        appendElement(out, "integer", QByteArray::number(value.toLongLong()));
        break;
    case PropertyListType::Real:
        appendElement(out, "real", realText(value.toDouble()));
        break;
    case PropertyListType::String:
        appendElement(out, "string", escaped(value.toString()));
        break;
    case PropertyListType::Date:
        appendElement(out, "date", value.toDateTime().toUTC().toString(Qt::ISODate).toLatin1());
        break;
    case PropertyListType::Data:
        appendElement(out, "data", value.toByteArray().toBase64());
        break;
    case PropertyListType::Array:
        appendArray(out, value.toList(), indent);
        break;
    case PropertyListType::Dictionary:
        appendDictionary(out, value.toMap(), indent);
        break;
    }
}

} // namespace

QByteArray xmlPropertyList(const QVariantMap &value)
{
    QByteArray out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                     "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\""
                     " \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                     "<plist version=\"1.0\">\n";
    append(out, normalizedPropertyList(value), 0);
    out.append("</plist>\n");
    return out;
}

} // namespace quillon
