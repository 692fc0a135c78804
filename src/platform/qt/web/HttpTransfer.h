// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

namespace quillon {

/// One GET on its way, with the redirects that it meets. Main thread.
///
/// NetworkHttpClient makes it and calls start() or failSoon(). It deletes itself after it has
/// called `finish` or `fail`; until then dispose() ends it.
class HttpTransfer : public QObject
{
    Q_OBJECT

public:
    /// Where the transfer leads. Each is called in a later turn of the main loop than start().
    struct Sink
    {
        /// The next piece of the body; `expected` is its whole length, -1 when unknown. An Error
        /// ends the transfer with it.
        std::function<std::optional<Error>(const QByteArray &bytes, qint64 expected)> take;
        std::function<void(int status, const QByteArray &contentType)> finish;
        std::function<void(const Error &)> fail;
        /// Whether a bad status is all that matters then: it finishes the transfer whatever becomes
        /// of its body.
        bool judgesStatus = false;
    };
    struct Limits
    {
        qint64 bodyLength = 0;                ///< bytes
        std::chrono::milliseconds silence{0}; ///< for how long nothing may move
    };

    HttpTransfer(Limits limits, Sink sink);
    ~HttpTransfer() override;

    void start(const QUrl &url);
    void failSoon(const Error &error);
    /// Ends it without a further word and deletes it; when called from inside the sink, after that.
    void dispose();

private:
    void connectReply();
    void readHead();
    bool isRedirect() const;
    void follow();
    void readBody();
    void take(const QByteArray &bytes);
    void replyFinished();
    void finish();
    void bodyFailed(const Error &error);
    bool isSettledByStatus() const;
    void end(const Error &error);
    void stop();
    void leave();
    int status() const;
    bool isAnswer() const;
    std::optional<Error> failure() const;

    const Limits m_limits;
    const Sink m_sink;
    QNetworkAccessManager *m_network = nullptr; ///< a child of ours
    QNetworkReply *m_reply = nullptr;           ///< belongs to m_network
    int m_redirects = 0;
    QTimer m_silence;
    QString m_certificateProblems;
    qint64 m_received = 0;
    qint64 m_expected = -1;
    int m_insideSink = 0;
    bool m_over = false;
};

} // namespace quillon
