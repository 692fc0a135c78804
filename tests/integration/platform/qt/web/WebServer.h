// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Places.h"
#include "integration/platform/linux/Waiting.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QUrl>
#include <QVariantMap>
#include <gtest/gtest.h>

namespace quillon::test {

/// The sandbox's web servers, on ports 80 and 443, while this lives. Rules are those of
/// sandbox-web.
class WebServer
{
public:
    WebServer() { start(); }
    ~WebServer() { stop(); }
    WebServer(const WebServer &) = delete;
    WebServer &operator=(const WebServer &) = delete;

    void start()
    {
        writeRules();
        QFile::remove(path("ready"));
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(testData() + QStringLiteral("/../../tools/sandbox.d/sandbox-web"),
            {QStringLiteral("--rules"), path("rules"), QStringLiteral("--log"), path("log"),
                QStringLiteral("--ready"), path("ready")});
        EXPECT_TRUE(eventually([this] { return QFile::exists(path("ready")); }));
    }

    void stop()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// `page` is "/path", "host/path" or one of them with "?query".
    void serve(const char *page, const QVariantMap &rule)
    {
        m_rules.insert(QString::fromLatin1(page), rule);
        writeRules();
    }

    /// What was asked for so far, and the TLS handshakes that failed.
    QList<QJsonObject> log() const
    {
        QList<QJsonObject> entries;
        QFile file(path("log"));
        if (file.open(QIODevice::ReadOnly)) {
            for (const QByteArray &line : file.readAll().split('\n')) {
                if (!line.isEmpty()) {
                    entries << QJsonDocument::fromJson(line).object();
                }
            }
        }
        return entries;
    }

    static QUrl secure(const char *page, const char *host = "trusted.test")
    {
        return QUrl(QStringLiteral("https://%1%2").arg(QLatin1String(host), QLatin1String(page)));
    }
    static QUrl plain(const char *page)
    {
        return QUrl(QStringLiteral("http://trusted.test") + QLatin1String(page));
    }

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    void writeRules()
    {
        QSaveFile file(path("rules"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QJsonDocument::fromVariant(m_rules).toJson());
        ASSERT_TRUE(file.commit());
    }

    QTemporaryDir m_folder;
    QVariantMap m_rules;
    QProcess m_process;
};

} // namespace quillon::test
