// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavListing.h"

#include "platform/qt/cloud/WebDavTransfer.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype deepest = 32;
constexpr qsizetype longestText = 8 * 1024;
constexpr qsizetype mostResponses = 250'000;
/// The reader keeps what belongs to one tag or text until that is complete.
constexpr qint64 longestToken = 1 << 20;

CloudError notWebDav(const QString &why)
{
    return {CloudProblem::NotAnAccount, u"a listing that is none: "_s + why};
}

/// As the server means it, with a slash at the end; slashes that are doubled count once.
QByteArray decodedPath(const QByteArray &encoded)
{
    QByteArray path = QByteArray::fromPercentEncoding(encoded);
    if (!path.endsWith('/')) {
        path += '/';
    }
    while (path.contains("//")) {
        path.replace("//", "/");
    }
    return path;
}

/// The path of an href, which may be a whole address, as it is encoded; null when there is none.
QByteArray pathOf(const QString &href)
{
    const QUrl url = QUrl(href.trimmed(), QUrl::TolerantMode);
    return url.isValid() ? url.path(QUrl::FullyEncoded).toLatin1() : QByteArray();
}

/// "HTTP/1.1 200 OK"; nothing at all counts as good.
bool isGoodStatus(const QString &status)
{
    const QStringList parts = status.simplified().split(u' ');
    return status.isEmpty() || (parts.size() >= 2 && parts.at(1) == "200"_L1);
}

} // namespace

QByteArray WebDavListing::question()
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<propfind xmlns="DAV:"><prop><resourcetype/><getcontentlength/><getetag/></prop></propfind>)";
}

WebDavListing::WebDavListing(const QUrl &folder)
    : m_folder(decodedPath(folder.path(QUrl::FullyEncoded).toLatin1()))
{
    m_xml.setEntityExpansionLimit(1);
}

std::optional<CloudError> WebDavListing::add(const QByteArray &bytes)
{
    m_xml.addData(bytes);
    m_sinceToken += bytes.size();
    if (const std::optional<CloudError> error = read()) {
        return error;
    }
    if (m_sinceToken > longestToken) {
        return notWebDav(u"one piece of it is too long"_s);
    }
    return std::nullopt;
}

std::optional<CloudError> WebDavListing::read()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::Invalid) {
            break;
        }
        m_sinceToken = 0;
        std::optional<CloudError> error;
        if (token == QXmlStreamReader::DTD || token == QXmlStreamReader::EntityReference) {
            error = notWebDav(u"it declares what no listing needs"_s);
        } else if (token == QXmlStreamReader::StartElement) {
            error = begin();
        } else if (token == QXmlStreamReader::EndElement) {
            end();
        } else if (token == QXmlStreamReader::Characters) {
            error = addText();
        }
        if (error) {
            return error;
        }
    }
    // More may come.
    if (m_xml.hasError() && m_xml.error() != QXmlStreamReader::PrematureEndOfDocumentError) {
        return notWebDav(u"line %1: %2"_s.arg(m_xml.lineNumber()).arg(m_xml.errorString()));
    }
    return std::nullopt;
}

std::optional<CloudError> WebDavListing::addText()
{
    if (m_text.size() + m_xml.text().size() > longestText) {
        return notWebDav(u"a text in it is too long"_s);
    }
    m_text += m_xml.text();
    return std::nullopt;
}

std::optional<CloudError> WebDavListing::begin()
{
    const bool isOurs = m_xml.namespaceUri() == "DAV:"_L1;
    const QString name = isOurs ? m_xml.name().toString() : QString();
    if (m_path.isEmpty() && name != "multistatus"_L1) {
        return notWebDav(u"it does not begin as one"_s);
    }
    if (m_path.size() >= deepest) {
        return notWebDav(u"it is too deep"_s);
    }
    m_hasBegun = true;
    m_path << name;
    m_text.clear();
    if (m_path.size() == 2 && name == "response"_L1) {
        if (++m_responses > mostResponses) {
            return CloudError{CloudProblem::TooLarge, u"there are too many files"_s};
        }
        m_href.clear();
        m_responseStatus.clear();
        m_accepted = {};
    } else if (m_path.size() == 3 && name == "propstat"_L1) {
        m_found = {};
        m_status.clear();
    } else if (m_path.size() == 6 && name == "collection"_L1 && isElement(5, "resourcetype"_L1)) {
        m_found.isFolder = true;
    }
    return std::nullopt;
}

/// Whether the element of that depth, which we are in, has the name and is where it belongs.
bool WebDavListing::isElement(int depth, QLatin1StringView name) const
{
    static const QStringList way{u"multistatus"_s, u"response"_s, u"propstat"_s, u"prop"_s};
    return depth <= way.size() + 1 && m_path.size() >= depth && m_path.at(depth - 1) == name &&
           m_path.first(depth - 1) == way.first(depth - 1);
}

void WebDavListing::end()
{
    const int depth = static_cast<int>(m_path.size());
    if (isElement(depth, "href"_L1) && depth == 3) {
        m_href = m_text;
    } else if (isElement(depth, "status"_L1)) {
        (depth == 3 ? m_responseStatus : m_status) = m_text;
    } else if (depth == 5 && isElement(depth, "getcontentlength"_L1)) {
        m_found.size = m_text.trimmed();
    } else if (depth == 5 && isElement(depth, "getetag"_L1)) {
        m_found.revision = m_text;
    } else if (depth == 3 && isElement(depth, "propstat"_L1)) {
        leaveProperties();
    } else if (depth == 2 && isElement(depth, "response"_L1)) {
        leaveResponse();
    }
    m_path.removeLast();
    m_text.clear();
}

void WebDavListing::leaveProperties()
{
    if (!isGoodStatus(m_status)) {
        return;
    }
    m_accepted.isFolder = m_accepted.isFolder || m_found.isFolder;
    if (!m_found.size.isEmpty()) {
        m_accepted.size = m_found.size;
    }
    if (!m_found.revision.isEmpty()) {
        m_accepted.revision = m_found.revision;
    }
}

void WebDavListing::leaveResponse()
{
    const QByteArray path = pathOf(m_href);
    if (path.isEmpty() || !isGoodStatus(m_responseStatus)) {
        return;
    }
    if (m_accepted.isFolder) {
        m_hasFolder = m_hasFolder || decodedPath(path) == m_folder;
        return;
    }
    const qsizetype slash = path.lastIndexOf('/');
    const QString name = QString::fromUtf8(QByteArray::fromPercentEncoding(path.mid(slash + 1)));
    if (!isCloudFileName(name) || decodedPath(path.first(slash + 1)) != m_folder ||
        m_names.contains(name)) {
        return;
    }
    m_names.insert(name);
    bool isNumber = false;
    const qint64 size = m_accepted.size.toLongLong(&isNumber);
    m_files << CloudFile{
        name, isNumber && size >= 0 ? size : -1, webDavRevision(m_accepted.revision.toUtf8())};
}

CloudResult<QList<CloudFile>> WebDavListing::finish()
{
    if (!m_hasBegun) {
        return notWebDav(u"it does not begin as one"_s);
    }
    if (m_xml.hasError() || !m_xml.atEnd() || !m_path.isEmpty()) {
        return CloudError{CloudProblem::Unreachable, u"a listing that was cut off"_s};
    }
    return std::exchange(m_files, {});
}

} // namespace quillon
