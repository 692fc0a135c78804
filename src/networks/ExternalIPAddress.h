// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HttpClient.h"

#include <QObject>
#include <QUrl>

#include <memory>

namespace quillon {

class SettingsStore;

/// Under which address the internet sees this computer, asked of a public web service and kept in
/// `externalIPAddress`. Every fetch stands for itself; the last answer to arrive wins. Main thread.
class ExternalIPAddress : public QObject
{
    Q_OBJECT

public:
    /// The service's scheme, host and port; it is asked for "/?format=json" and answers with a JSON
    /// object whose "ip" is the address. Client and store outlive this object, which may go while a
    /// fetch runs.
    ExternalIPAddress(HttpClient &client, SettingsStore &settings, const QUrl &service);

    /// Starts one fetch, unless `shouldUpdateExternalIP` is off and `force` is false. A transfer
    /// that fails leaves the stored address as it is; an answer without use replaces it by the
    /// localized "Unknown...". Both leave a line in the log, as does an "ip" whose text is no
    /// address; that text itself, which comes from outside, is not logged.
    void updateExternalIPAddress(bool force);
    /// Stores the text and flushes the settings. A null string removes the stored one.
    void saveExternalIPAddress(const QString &address);

    /// A fetch has not been answered yet.
    bool isLookingUp() const { return m_unanswered > 0; }
    /// The answer that came last held no address, or was none. False before the first.
    bool hasFailed() const { return m_hasFailed; }

Q_SIGNALS:
    void lookUpBegan();
    /// After the answer was stored, where there is something to store.
    void lookUpEnded();

private:
    void answered(const Result<HttpClient::Response> &answer);

    HttpClient &m_client;
    SettingsStore &m_settings;
    QUrl m_question;
    int m_unanswered = 0;
    bool m_hasFailed = false;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);
};

} // namespace quillon
