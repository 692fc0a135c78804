// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HttpClient.h"

#include <QObject>

#include <optional>

namespace quillon {

class RegistryImport;
class VendorCount;
class VendorList;

/// A refresh of the vendor database from the registration authority's public MA-L registry, as the
/// user starts and watches it, and the way back from one. A transfer that fails is only logged: the
/// refresh waits for the user to cancel it. Main thread.
class RegistryDownload : public QObject
{
    Q_OBJECT

public:
    RegistryDownload(HttpClient &http, const QUrl &registry, RegistryImport &import,
        VendorCount &count, VendorList &list);
    /// Ends the transfer; an import goes on by itself.
    ~RegistryDownload() override;

    void startDownload();
    /// Ends the transfer, if it still runs; an import goes on and resets the button once more.
    void cancelDownload();
    /// An import runs or waits, also one whose refresh was cancelled; or a restoration does.
    bool isImporting() const;
    /// Whether the database from before the last refresh can be brought back, and does so.
    bool canRestorePrevious() const;
    void restorePrevious();
    /// The end of every refresh and restoration: counts, and rebuilds the vendor list.
    void resetDownloadButton();

Q_SIGNALS:
    void downloadBegun();
    /// Bytes of the latest piece, of all so far and of the whole (-1 when nobody knows).
    void progressed(qint64 chunk, qint64 received, qint64 expected);
    void downloadCancelled();
    void downloadButtonReset();

private:
    void didFinishDownloading(const QString &path);

    HttpClient &m_http;
    QUrl m_registry;
    RegistryImport &m_import;
    VendorCount &m_count;
    VendorList &m_list;
    std::optional<HttpClient::Token> m_downloadTask;
};

} // namespace quillon
