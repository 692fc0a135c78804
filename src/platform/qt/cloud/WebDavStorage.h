// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"
#include "platform/qt/cloud/WebDavConnection.h"

#include <QObject>

namespace quillon {

/// The folder of an account on a WebDAV server. Preconditions are the server's: some honor them,
/// some overlook them. A folder that is missing is made when it is listed or written to.
class WebDavStorage : public CloudStorage
{
public:
    WebDavStorage(
        const CloudAccount &account, const QString &password, WebDavTransfer::Limits limits = {});
    ~WebDavStorage() override;

    void list(Listed listed) override;
    void read(const QString &name, qint64 limit, Read read) override;
    void readIfChanged(
        const QString &name, const QByteArray &revision, qint64 limit, ReadChanged read) override;
    void create(const QString &name, const QByteArray &bytes, Written written) override;
    void replace(const QString &name, const QByteArray &bytes, const QByteArray &revision,
        Written written) override;
    void remove(const QString &name, Removed removed) override;

private:
    struct Writing;
    using Answered = std::function<void(const WebDavAnswer &)>;
    using Refused = std::function<void(const CloudError &)>;

    void ask(WebDavRequest request, Answered answered, Refused refused);
    void listAgain(const Listed &listed, bool mayMakeFolder);
    void compareLength(const QString &name, const Content &content, const ReadChanged &read);
    void put(const Writing &writing);
    void putRefused(const Writing &writing, const CloudError &error);
    void askWhy(const Writing &writing, const CloudError &error);
    void lookAgain(const Writing &writing, const CloudError &error);
    /// Makes the folder and those above it, as far as they are ours to make.
    void makeFolder(const std::function<void(const std::optional<CloudError> &)> &made);
    void makeFolders(
        qsizetype count, const std::function<void(const std::optional<CloudError> &)> &made);
    QUrl address(const QString &name) const;
    void later(std::function<void()> task);

    const CloudAccount m_account;
    const QUrl m_folder;
    QObject m_context; ///< of what is to be done later
    WebDavConnection m_connection;
};

} // namespace quillon
