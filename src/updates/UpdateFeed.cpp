// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateFeed.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Of the elements that are ours; the others are those of RSS 2.0, which have none.
constexpr QLatin1StringView ours = "urn:quillon:appcast:1"_L1;
/// Characters.
constexpr qsizetype longestAddress = 2048;

/// Reads one list, and stops where it is not as it should be.
class FeedReader
{
public:
    explicit FeedReader(const QByteArray &text)
        : m_xml(text)
    {
    }

    Result<UpdateFeed> read()
    {
        readRss();
        // What stands behind the root element must be in order as well.
        while (!m_xml.atEnd()) {
            m_xml.readNext();
        }
        if (m_xml.hasError()) {
            return Error{u"UpdateFeedError"_s, m_xml.error(),
                u"line %1: %2"_s.arg(m_xml.lineNumber()).arg(m_xml.errorString())};
        }
        return m_feed;
    }

private:
    void refuse(const QString &why)
    {
        if (!m_xml.hasError()) {
            m_xml.raiseError(why);
        }
    }

    bool is(QLatin1StringView name, QLatin1StringView space = {}) const
    {
        return m_xml.name() == name && m_xml.namespaceUri() == space;
    }

    /// By hand up to the root: a document type would bring entities along.
    void readRss()
    {
        while (m_xml.readNext() != QXmlStreamReader::StartElement) {
            if (m_xml.isDTD()) {
                refuse(u"a document type"_s);
            }
            if (m_xml.hasError() || m_xml.atEnd()) {
                return;
            }
        }
        if (!is("rss"_L1)) {
            refuse(u"not a list of versions"_s);
            return;
        }
        bool hasChannel = false;
        while (m_xml.readNextStartElement()) {
            if (!is("channel"_L1)) {
                m_xml.skipCurrentElement();
            } else if (hasChannel) {
                refuse(u"a second channel"_s);
            } else {
                hasChannel = true;
                readChannel();
            }
        }
        if (!hasChannel) {
            refuse(u"no channel"_s);
        }
    }

    void readChannel()
    {
        std::optional<QString> application;
        std::optional<QString> issued;
        std::optional<QString> expires;
        while (m_xml.readNextStartElement()) {
            if (is("application"_L1, ours)) {
                readOnce(application);
            } else if (is("issued"_L1, ours)) {
                readOnce(issued);
            } else if (is("expires"_L1, ours)) {
                readOnce(expires);
            } else if (is("item"_L1)) {
                readRelease();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        m_feed.application = application.value_or(QString());
        m_feed.issued = moment(issued.value_or(QString()));
        if (expires) {
            m_feed.expires = moment(*expires);
        }
        if (!application) {
            refuse(u"no application"_s);
        }
    }

    void readRelease()
    {
        std::optional<QString> version;
        std::optional<QString> link;
        std::optional<QString> notes;
        while (m_xml.readNextStartElement()) {
            if (is("version"_L1, ours)) {
                readOnce(version);
            } else if (is("link"_L1)) {
                readOnce(link);
            } else if (is("description"_L1)) {
                readOnce(notes);
            } else {
                m_xml.skipCurrentElement();
            }
        }
        const auto number = UpdateVersion::fromText(version.value_or(QString()));
        const QUrl page(link.value_or(QString()), QUrl::StrictMode);
        if (!number) {
            refuse(u"not a version"_s);
        } else if (!isUpdateAddress(page)) {
            refuse(u"a version without an https address"_s);
        } else {
            m_feed.releases.append({*number, page, notes.value_or(QString())});
        }
    }

    /// The element's text, which holds no other element.
    void readOnce(std::optional<QString> &text)
    {
        if (text) {
            refuse(u"the element %1 twice"_s.arg(m_xml.name()));
        } else {
            text = m_xml.readElementText().trimmed();
        }
    }

    QDateTime moment(const QString &text)
    {
        static const QRegularExpression form(
            QRegularExpression::anchoredPattern(u"\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ"_s));
        QDateTime moment;
        if (form.match(text).hasMatch()) {
            moment = QDateTime::fromString(text, Qt::ISODate);
        }
        if (!moment.isValid()) {
            refuse(u"not a moment in UTC"_s);
        }
        return moment;
    }

    QXmlStreamReader m_xml;
    UpdateFeed m_feed;
};

} // namespace

std::optional<UpdateRelease> UpdateFeed::newest() const
{
    const auto newest = std::max_element(releases.begin(), releases.end(),
        [](const UpdateRelease &a, const UpdateRelease &b) { return a.version < b.version; });
    return newest == releases.end() ? std::nullopt : std::optional(*newest);
}

Result<UpdateFeed> readUpdateFeed(const QByteArray &text)
{
    return FeedReader(text).read();
}

bool isUpdateAddress(const QUrl &url)
{
    return url.isValid() && url.scheme() == "https"_L1 && !url.host().isEmpty() &&
           url.userInfo().isEmpty() && url.toString().size() <= longestAddress;
}

} // namespace quillon
