// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QSslConfiguration>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

namespace quillon::test {

/// A real web server with WebDAV on this computer, over HTTPS, for one user; gone with the object.
/// In a sandbox, where all ports are ours and the system trusts an authority of the sandbox.
class DavServer
{
public:
    enum class Program
    {
        Lighttpd,
        Apache,
    };
    enum class Certificate
    {
        Trusted,    ///< signed by the sandbox's authority
        SelfSigned, ///< nobody knows it
    };

    explicit DavServer(Program program, Certificate certificate = Certificate::Trusted);
    ~DavServer();
    DavServer(const DavServer &) = delete;
    DavServer &operator=(const DavServer &) = delete;

    void start();
    void stop();
    /// Whoever asks may not do that any more: its files are read only.
    void forbidWriting() const;
    /// Where its files are.
    QUrl address() const;
    static QString user() { return QStringLiteral("märy@example.org"); }
    static QString password() { return QStringLiteral("pass wörd:1"); }
    /// SHA-256 of its certificate, as openssl says.
    QByteArray fingerprint() const;
    /// What a server of our own needs to show the same certificate.
    QSslConfiguration configuration() const;
    /// Where they are on the disk.
    QString path(const QString &name = {}) const;

private:
    QString in(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    void write(const char *name, const QByteArray &text) const;
    void makeCertificate(Certificate certificate) const;
    QStringList lighttpd() const;
    QStringList apache() const;

    const Program m_program;
    QTemporaryDir m_folder;
    QProcess m_process;
};

/// What `program` puts out; a failure of the test when it does not end well.
QByteArray outputOf(const QString &program, const QStringList &arguments);

} // namespace quillon::test
