// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavAddress.h"

#include <QHostAddress>
#include <QStringList>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestAddress = 2048;

/// What a Nextcloud shows to people: what stands before it is where it is installed. With the slash
/// behind, so that "/apps" may be a folder's name.
constexpr std::array pagesForPeople{"/index.php/"_L1, "/remote.php/"_L1, "/public.php/"_L1,
    "/apps/"_L1, "/settings/"_L1, "/login/"_L1, "/s/"_L1, "/f/"_L1, "/ocs/"_L1};

bool isThisComputer(const QString &host)
{
    return host == "localhost"_L1 || QHostAddress(host).isLoopback();
}

QUrl withPath(QUrl url, const QString &encodedPath)
{
    url.setPath(encodedPath.endsWith(u'/') ? encodedPath : encodedPath + u'/', QUrl::StrictMode);
    return url;
}

QString encodedPart(const QString &part)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(part));
}

/// What leads nowhere, or out of a folder.
bool isStep(const QString &part)
{
    return part.isEmpty() || part == "."_L1 || part == ".."_L1;
}

/// The server as https has it, with the path as it was typed; invalid when there is none.
QUrl parsed(const QString &typed)
{
    QString text = typed.trimmed();
    if (text.isEmpty() || text.size() > longestAddress) {
        return {};
    }
    const qsizetype mark = text.indexOf("://"_L1);
    const QString scheme = mark < 0 ? QString() : text.first(mark).toLower();
    static const QStringList known{
        u""_s, u"https"_s, u"http"_s, u"dav"_s, u"davs"_s, u"webdav"_s, u"webdavs"_s};
    if (!known.contains(scheme)) {
        return {};
    }
    if (mark >= 0) {
        text = text.mid(mark + 3);
    }
    QUrl url(u"https://"_s + text, QUrl::TolerantMode);
    if (scheme == "http"_L1 && isThisComputer(url.host())) {
        url.setScheme(scheme);
    }
    if (!url.isValid() || url.host().isEmpty()) {
        return {};
    }
    // Nothing that only a person at a browser could use, and no password in an address.
    return url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment |
                        QUrl::NormalizePathSegments);
}

/// Where a page for people says that the program is installed; null when it is no such page.
QString installation(const QString &path)
{
    const QString whole = path + u'/';
    qsizetype end = -1;
    for (const QLatin1StringView page : pagesForPeople) {
        const qsizetype found = whole.indexOf(page);
        if (found >= 0 && (end < 0 || found < end)) {
            end = found;
        }
    }
    return end < 0 ? QString() : whole.first(end + 1);
}

/// The folder of a user in an address of a Nextcloud, however far into it the address leads.
QString filesOfUser(const QString &path)
{
    constexpr auto files = "/remote.php/dav/files/"_L1;
    const qsizetype start = path.indexOf(files);
    if (start < 0) {
        return {};
    }
    const qsizetype name = start + files.size();
    const qsizetype end = path.indexOf(u'/', name);
    return end == name || path.size() == name ? QString() : path.first(end < 0 ? path.size() : end);
}

} // namespace

bool isSafeServer(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == "https"_L1 ||
               (url.scheme() == "http"_L1 && isThisComputer(url.host())));
}

bool isSameServer(const QUrl &one, const QUrl &other)
{
    const auto port = [](const QUrl &url) {
        return url.port(url.scheme() == "http"_L1 ? 80 : 443);
    };
    return one.scheme() == other.scheme() && one.host() == other.host() && port(one) == port(other);
}

QUrl addressBelow(const QUrl &folder, const QString &path)
{
    QString encoded = folder.path(QUrl::FullyEncoded);
    if (!encoded.endsWith(u'/')) {
        encoded += u'/';
    }
    QStringList parts = path.split(u'/', Qt::SkipEmptyParts);
    parts.removeIf(isStep);
    std::transform(parts.begin(), parts.end(), parts.begin(), encodedPart);
    encoded += parts.join(u'/');
    QUrl url = folder;
    if (path.endsWith(u'/') && !encoded.endsWith(u'/')) {
        encoded += u'/';
    }
    url.setPath(encoded, QUrl::StrictMode);
    return url;
}

QList<QUrl> webDavCandidates(const QString &typed, const QString &user)
{
    const QUrl url = parsed(typed);
    if (!url.isValid()) {
        return {};
    }
    QList<QUrl> candidates;
    const auto add = [&](const QString &encodedPath) {
        const QUrl candidate = withPath(url, encodedPath);
        if (candidate.isValid() && !candidates.contains(candidate)) {
            candidates << candidate;
        }
    };
    const QString path = url.path(QUrl::FullyEncoded);
    const QString root = installation(path);
    if (const QString files = filesOfUser(path); !files.isEmpty()) {
        add(files);
    }
    // What is no page for people is WebDAV itself, or where a Nextcloud is installed.
    if (root.isNull() && path.size() > 1) {
        add(path);
    }
    const QString base = root.isNull() ? withPath(url, path).path(QUrl::FullyEncoded) : root;
    if (!isStep(user)) {
        add(base + u"remote.php/dav/files/"_s + encodedPart(user));
    }
    add(base + u"remote.php/webdav"_s);
    // Last of all as it is: "/f/" may be a folder of that name.
    add(path);
    return candidates;
}

} // namespace quillon
