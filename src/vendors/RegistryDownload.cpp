// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/RegistryDownload.h"

#include "base/Log.h"
#include "vendors/RegistryImport.h"
#include "vendors/VendorCount.h"
#include "vendors/VendorList.h"

#include <QFile>
#include <QPointer>

namespace quillon {

RegistryDownload::RegistryDownload(HttpClient &http, const QUrl &registry, RegistryImport &import,
    VendorCount &count, VendorList &list)
    : m_http(http)
    , m_registry(registry)
    , m_import(import)
    , m_count(count)
    , m_list(list)
{
}

RegistryDownload::~RegistryDownload()
{
    if (m_downloadTask) {
        m_http.cancel(*m_downloadTask);
    }
}

void RegistryDownload::startDownload()
{
    const QPointer self(this);
    HttpClient::DownloadHandler handler;
    handler.didWriteData = [self](const HttpClient::Progress &progress) {
        if (auto *const that = self.data()) {
            Q_EMIT that->progressed(progress.chunk, progress.received, progress.expected);
        }
    };
    handler.didFinishDownloading = [self](const QString &path) {
        if (auto *const that = self.data()) {
            that->didFinishDownloading(path);
        }
    };
    handler.didFail = [](const Error &error) {
        qCWarning(logVendors, "Registry not downloaded: %s", qUtf8Printable(error.message));
    };
    m_downloadTask = m_http.download(m_registry, std::move(handler));
    Q_EMIT downloadBegun();
}

void RegistryDownload::didFinishDownloading(const QString &path)
{
    // Open, it outlives its name, which goes when this returns.
    auto body = std::make_shared<QFile>(path);
    if (!body->open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        qCWarning(logVendors, "Download not read: %s", qUtf8Printable(body->errorString()));
    }
    m_import.importDownload(std::move(body));
}

void RegistryDownload::cancelDownload()
{
    if (m_downloadTask) {
        m_http.cancel(*m_downloadTask);
    }
    Q_EMIT downloadCancelled();
    resetDownloadButton();
}

bool RegistryDownload::isImporting() const
{
    return m_import.isAtWork();
}

bool RegistryDownload::canRestorePrevious() const
{
    return m_import.canRestorePrevious();
}

void RegistryDownload::restorePrevious()
{
    m_import.restorePrevious();
}

void RegistryDownload::resetDownloadButton()
{
    Q_EMIT downloadButtonReset();
    m_count.updateVendorCount();
    m_list.loadVendorField();
}

} // namespace quillon
