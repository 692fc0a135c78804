// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"

#include <QSet>
#include <QStringList>
#include <QUrl>
#include <QXmlStreamReader>

#include <optional>

namespace quillon {

/// The answer to a PROPFIND of a folder and what is in it, read as it comes in. Whoever writes it
/// may be hostile: it is bounded in length, depth and number, nothing in it is expanded or fetched,
/// and what is not plainly a file in the folder is left out.
class WebDavListing
{
public:
    /// Bytes of an answer; enough for more than 100,000 files.
    static constexpr qint64 longestAnswer = qint64(96) << 20;

    /// The body of the request.
    static QByteArray question();

    /// `folder` is what was asked for.
    explicit WebDavListing(const QUrl &folder);

    /// The next piece of it; an error ends it.
    std::optional<CloudError> add(const QByteArray &bytes);
    /// After the last piece.
    CloudResult<QList<CloudFile>> finish();
    /// Whether the folder itself was told of, as a folder.
    bool hasFolder() const { return m_hasFolder; }

private:
    struct Properties
    {
        QString size;
        QString revision;
        bool isFolder = false;
    };

    std::optional<CloudError> read();
    std::optional<CloudError> addText();
    std::optional<CloudError> begin();
    void end();
    void leaveProperties();
    void leaveResponse();
    bool isElement(int depth, QLatin1StringView name) const;

    QXmlStreamReader m_xml;
    const QByteArray m_folder; ///< its path, decoded, with a slash at the end
    QList<CloudFile> m_files;
    QSet<QString> m_names; ///< of m_files
    bool m_hasFolder = false;
    bool m_hasBegun = false;
    /// The elements that we are in, by their names in DAV:, empty for others.
    QStringList m_path;
    QString m_text;
    qint64 m_sinceToken = 0; ///< bytes since the reader last made sense of some
    QString m_href;
    QString m_status;
    QString m_responseStatus;
    Properties m_found;    ///< of the propstat that we are in
    Properties m_accepted; ///< of those with a good status
    qsizetype m_responses = 0;
};

} // namespace quillon
