// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/cloud/DavServer.h"

#include "integration/platform/linux/Waiting.h"

#include <QDir>
#include <QFile>
#include <QSslCertificate>
#include <QSslKey>
#include <QTcpSocket>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 port = 4443;

// An empty key of mimetype.assign: without it a GET brings no ETag.
constexpr auto lighttpdSettings = R"(
server.modules = ("mod_auth", "mod_authn_file", "mod_openssl", "mod_webdav")
server.document-root = "FOLDER/files"
server.bind = "127.0.0.1"
server.port = PORT
server.errorlog = "FOLDER/log"
server.upload-dirs = ("FOLDER")
ssl.engine = "enable"
ssl.pemfile = "FOLDER/certificate.pem"
ssl.privkey = "FOLDER/key.pem"
mimetype.assign = ("" => "application/octet-stream")
auth.backend = "plain"
auth.backend.plain.userfile = "FOLDER/users"
auth.require = ("" => ("method" => "basic", "realm" => "files", "require" => "valid-user"))
webdav.activate = "enable"
webdav.is-readonly = "disable"
webdav.sqlite-db-name = "FOLDER/locks.db"
)";

constexpr auto apacheSettings = R"(
ServerRoot /usr/lib/apache2
ServerName 127.0.0.1
Listen 127.0.0.1:PORT
PidFile FOLDER/pid
ErrorLog FOLDER/log
DefaultRuntimeDir FOLDER
LoadModule mpm_event_module modules/mod_mpm_event.so
LoadModule authn_core_module modules/mod_authn_core.so
LoadModule authn_file_module modules/mod_authn_file.so
LoadModule authz_core_module modules/mod_authz_core.so
LoadModule authz_user_module modules/mod_authz_user.so
LoadModule auth_basic_module modules/mod_auth_basic.so
LoadModule socache_shmcb_module modules/mod_socache_shmcb.so
LoadModule ssl_module modules/mod_ssl.so
LoadModule dav_module modules/mod_dav.so
LoadModule dav_fs_module modules/mod_dav_fs.so
DavLockDB FOLDER/locks
DocumentRoot FOLDER/files
SSLEngine on
SSLCertificateFile FOLDER/certificate.pem
SSLCertificateKeyFile FOLDER/key.pem
<Directory FOLDER/files>
    Dav On
    AuthType Basic
    AuthName files
    AuthUserFile FOLDER/users
    Require valid-user
</Directory>
)";

} // namespace

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

DavServer::DavServer(Program program, Certificate certificate)
    : m_program(program)
{
    makeCertificate(certificate);
    EXPECT_TRUE(QDir(m_folder.path()).mkpath(u"files"_s));
    start();
}

DavServer::~DavServer()
{
    stop();
}

void DavServer::start()
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    const QStringList command = m_program == Program::Lighttpd ? lighttpd() : apache();
    m_process.start(command.first(), command.mid(1));
    EXPECT_TRUE(eventually([] {
        QTcpSocket socket;
        socket.connectToHost(u"127.0.0.1"_s, port);
        return socket.waitForConnected(100);
    }));
}

void DavServer::stop()
{
    m_process.terminate();
    m_process.waitForFinished();
}

void DavServer::forbidWriting() const
{
    EXPECT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner | QFile::ExeOwner));
}

QUrl DavServer::address() const
{
    return QUrl(u"https://127.0.0.1:%1/"_s.arg(port));
}

QByteArray DavServer::fingerprint() const
{
    const QByteArray text = outputOf(u"openssl"_s,
        {u"x509"_s, u"-in"_s, in("certificate.pem"), u"-noout"_s, u"-fingerprint"_s, u"-sha256"_s});
    return QByteArray::fromHex(text.mid(text.indexOf('=') + 1).trimmed().replace(':', ""));
}

QSslConfiguration DavServer::configuration() const
{
    QFile key(in("key.pem"));
    EXPECT_TRUE(key.open(QIODevice::ReadOnly));
    QSslConfiguration configuration;
    configuration.setLocalCertificateChain(QSslCertificate::fromPath(in("certificate.pem")));
    configuration.setPrivateKey(QSslKey(&key, QSsl::Ec));
    return configuration;
}

QString DavServer::path(const QString &name) const
{
    return in("files/") + name;
}

void DavServer::write(const char *name, const QByteArray &text) const
{
    QByteArray filled = text;
    filled.replace("FOLDER", QFile::encodeName(m_folder.path()));
    filled.replace("PORT", QByteArray::number(port));
    QFile file(in(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(filled), filled.size());
}

void DavServer::makeCertificate(Certificate certificate) const
{
    const QString authority = u"/run/quillon-sandbox/authority/"_s;
    const QStringList key{u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:P-256"_s,
        u"-noenc"_s, u"-keyout"_s, in("key.pem")};
    const QStringList what{u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s,
        u"subjectAltName=IP:127.0.0.1"_s, u"-addext"_s, u"basicConstraints=critical,CA:FALSE"_s,
        u"-days"_s, u"2"_s, u"-out"_s, in("certificate.pem")};
    QStringList signer;
    if (certificate == Certificate::Trusted) {
        signer = {
            u"-CA"_s, authority + u"authority.pem"_s, u"-CAkey"_s, authority + u"authority.key"_s};
    }
    outputOf(u"openssl"_s, QStringList{u"req"_s, u"-x509"_s} + signer + key + what);
}

QStringList DavServer::lighttpd() const
{
    // Its list of users ends a name at the first colon, the rest is the password.
    write("users", user().toUtf8() + ':' + password().toUtf8() + '\n');
    write("settings", lighttpdSettings);
    return {u"/usr/sbin/lighttpd"_s, u"-D"_s, u"-f"_s, in("settings")};
}

QStringList DavServer::apache() const
{
    const QByteArray hash = outputOf(u"openssl"_s, {u"passwd"_s, u"-apr1"_s, password()}).trimmed();
    write("users", user().toUtf8() + ':' + hash + '\n');
    write("settings", apacheSettings);
    return {u"/usr/sbin/apache2"_s, u"-X"_s, u"-f"_s, in("settings")};
}

} // namespace quillon::test
