// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavStorage.h"

#include "platform/qt/cloud/WebDavAddress.h"
#include "platform/qt/cloud/WebDavListing.h"
#include "platform/qt/cloud/WebDavProblem.h"

#include <QStringList>

#include <chrono>
#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What servers say beside the files themselves.
constexpr qint64 smallTalk = 256 * 1024;
/// A server whose clock counts in seconds does not vouch for a file of the same second.
constexpr auto untilSure = 1100ms;
constexpr int mostLooks = 2;
/// So much of a file goes out with the head of a request, whatever the server thinks of that.
constexpr qsizetype readWithTheHead = 64 * 1024;

CloudError noSuchName()
{
    return {CloudProblem::NotThere, u"no file can have that name"_s};
}

} // namespace

struct WebDavStorage::Writing
{
    QString name;
    QByteArray bytes;
    QByteArray revision;
    bool isNew = false; ///< nothing may be there
    Written written;
    bool mayMakeFolder = true;
    int looks = 0;
};

WebDavStorage::WebDavStorage(
    const CloudAccount &account, const QString &password, WebDavTransfer::Limits limits)
    : m_account(account)
    , m_folder(addressBelow(account.server, account.folder + u'/'))
    , m_connection(account, password, limits)
{
}

WebDavStorage::~WebDavStorage() = default;

void WebDavStorage::ask(WebDavRequest request, Answered answered, Refused refused)
{
    const QByteArray method = request.method;
    m_connection.send(
        std::move(request), [method, answered = std::move(answered), refused = std::move(refused)](
                                const CloudResult<WebDavAnswer> &result) {
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                refused(*error);
                return;
            }
            const auto &answer = std::get<WebDavAnswer>(result);
            if (const std::optional<CloudError> error = webDavProblem(method, answer)) {
                refused(*error);
            } else {
                answered(answer);
            }
        });
}

void WebDavStorage::list(Listed listed)
{
    listAgain(listed, true);
}

void WebDavStorage::listAgain(const Listed &listed, bool mayMakeFolder)
{
    const auto listing = std::make_shared<WebDavListing>(m_folder);
    WebDavRequest request{"PROPFIND", m_folder};
    request.headers = {{"Depth", "1"}, {"Content-Type", "application/xml; charset=utf-8"}};
    request.body = WebDavListing::question();
    request.limit = WebDavListing::longestAnswer;
    request.take = [listing](const QByteArray &bytes) { return listing->add(bytes); };
    ask(
        std::move(request),
        [listed, listing](const WebDavAnswer &) {
            CloudResult<QList<CloudFile>> result = listing->finish();
            if (std::holds_alternative<QList<CloudFile>>(result) && !listing->hasFolder()) {
                result = CloudError{CloudProblem::NotAnAccount, u"there is no folder"_s};
            }
            listed(result);
        },
        [this, listed, mayMakeFolder](const CloudError &error) {
            if (error.problem != CloudProblem::NotThere || !mayMakeFolder) {
                listed(error);
                return;
            }
            makeFolder([this, listed](const std::optional<CloudError> &problem) {
                if (problem) {
                    listed(*problem);
                } else {
                    listAgain(listed, false);
                }
            });
        });
}

void WebDavStorage::read(const QString &name, qint64 limit, Read read)
{
    readIfChanged(name, {}, limit,
        [read = std::move(read)](const CloudResult<std::optional<Content>> &result) {
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                read(*error);
            } else if (const auto &content = std::get<std::optional<Content>>(result)) {
                read(*content);
            } else {
                read(
                    CloudError{CloudProblem::Failed, u"unchanged, though nobody asked for that"_s});
            }
        });
}

void WebDavStorage::readIfChanged(
    const QString &name, const QByteArray &revision, qint64 limit, ReadChanged read)
{
    if (!isCloudFileName(name)) {
        later([read = std::move(read)] { read(noSuchName()); });
        return;
    }
    WebDavRequest request{"GET", address(name)};
    if (!revision.isEmpty()) {
        request.headers = {{"If-None-Match", revision}};
    }
    request.limit = limit;
    ask(
        std::move(request),
        [this, name, read](const WebDavAnswer &answer) {
            if (answer.status == 304) {
                read(std::optional<Content>());
            } else if (answer.saysLength) {
                read(std::optional(Content{answer.body, answer.revision}));
            } else {
                compareLength(name, {answer.body, answer.revision}, read);
            }
        },
        read);
}

/// Qt does not tell a body that was cut off from a whole one when its length was not said before.
void WebDavStorage::compareLength(
    const QString &name, const Content &content, const ReadChanged &read)
{
    WebDavRequest request{"PROPFIND", address(name)};
    request.headers = {{"Depth", "0"}, {"Content-Type", "application/xml; charset=utf-8"}};
    request.body = WebDavListing::question();
    request.limit = smallTalk;
    ask(
        std::move(request),
        [this, content, read](const WebDavAnswer &answer) {
            WebDavListing listing(m_folder);
            std::optional<CloudError> error = listing.add(answer.body);
            const CloudResult<QList<CloudFile>> files = listing.finish();
            const auto *const found = std::get_if<QList<CloudFile>>(&files);
            if (!error && (!found || found->value(0).size != content.bytes.size())) {
                error = CloudError{CloudProblem::Unreachable, u"perhaps not the whole file"_s};
            }
            if (error) {
                read(*error);
            } else {
                read(std::optional(content));
            }
        },
        read);
}

void WebDavStorage::create(const QString &name, const QByteArray &bytes, Written written)
{
    put({name, bytes, {}, true, std::move(written)});
}

void WebDavStorage::replace(
    const QString &name, const QByteArray &bytes, const QByteArray &revision, Written written)
{
    put({name, bytes, revision, false, std::move(written)});
}

void WebDavStorage::put(const Writing &writing)
{
    if (!isCloudFileName(writing.name)) {
        later([written = writing.written] {
            written(CloudError{CloudProblem::NotAllowed, u"no file can have that name"_s});
        });
        return;
    }
    WebDavRequest request{"PUT", address(writing.name)};
    request.headers = {{"Content-Type", "application/octet-stream"}};
    if (writing.isNew) {
        request.headers << std::pair<QByteArray, QByteArray>("If-None-Match", "*");
    } else if (!writing.revision.isEmpty()) {
        request.headers << std::pair<QByteArray, QByteArray>("If-Match", writing.revision);
    }
    request.body = writing.bytes;
    request.limit = smallTalk;
    ask(
        std::move(request),
        // Of a weak one nobody knows yet which bytes it will stand for.
        [writing](const WebDavAnswer &answer) {
            writing.written(answer.isWeak ? QByteArray() : answer.revision);
        },
        [this, writing](const CloudError &error) { putRefused(writing, error); });
}

void WebDavStorage::putRefused(const Writing &writing, const CloudError &error)
{
    if (error.problem == CloudProblem::Unreachable && writing.bytes.size() > readWithTheHead) {
        askWhy(writing, error);
        return;
    }
    const bool isReplacement = !writing.isNew && !writing.revision.isEmpty();
    if (error.problem == CloudProblem::Changed && isReplacement) {
        lookAgain(writing, error);
        return;
    }
    if (error.problem != CloudProblem::NotThere) {
        writing.written(error);
        return;
    }
    if (isReplacement) {
        // A file that is to be replaced and is not there, whether its folder is or not.
        writing.written(CloudError{CloudProblem::Changed, error.message});
        return;
    }
    if (!writing.mayMakeFolder) {
        writing.written(CloudError{CloudProblem::NotAnAccount, error.message});
        return;
    }
    makeFolder([this, writing](const std::optional<CloudError> &problem) {
        if (problem) {
            writing.written(*problem);
            return;
        }
        Writing again = writing;
        again.mayMakeFolder = false;
        put(again);
    });
}

/// A server that refuses a long file hangs up on it, and its answer is lost: what it thinks of us
/// is asked without one.
void WebDavStorage::askWhy(const Writing &writing, const CloudError &error)
{
    WebDavRequest request{"PROPFIND", m_folder};
    request.headers = {{"Depth", "0"}, {"Content-Type", "application/xml; charset=utf-8"}};
    request.body = WebDavListing::question();
    request.limit = smallTalk;
    ask(
        std::move(request), [writing, error](const WebDavAnswer &) { writing.written(error); },
        [writing, error](const CloudError &reason) {
            const bool isMissing = reason.problem == CloudProblem::NotThere;
            writing.written(isMissing ? error : reason);
        });
}

/// Whether it is the file that was meant, for which the server did not want to vouch yet.
void WebDavStorage::lookAgain(const Writing &writing, const CloudError &error)
{
    WebDavRequest request{"HEAD", address(writing.name)};
    request.limit = smallTalk;
    ask(
        std::move(request),
        [this, writing, error](const WebDavAnswer &answer) {
            if (answer.revision != writing.revision) {
                writing.written(error);
                return;
            }
            Writing again = writing;
            // Some never vouch for any file. Then it has to do that it was the right one just now.
            if (++again.looks == mostLooks) {
                again.revision.clear();
            }
            QTimer::singleShot(untilSure, &m_context, [this, again] { put(again); });
        },
        [writing, error](const CloudError &) { writing.written(error); });
}

void WebDavStorage::remove(const QString &name, Removed removed)
{
    if (!isCloudFileName(name)) {
        later([removed = std::move(removed)] { removed(std::nullopt); });
        return;
    }
    WebDavRequest request{"DELETE", address(name)};
    request.limit = smallTalk;
    ask(
        std::move(request), [removed](const WebDavAnswer &) { removed(std::nullopt); },
        [removed](const CloudError &error) {
            removed(error.problem == CloudProblem::NotThere ? std::nullopt : std::optional(error));
        });
}

void WebDavStorage::makeFolder(const std::function<void(const std::optional<CloudError> &)> &made)
{
    makeFolders(1, made);
}

/// From the one that is nearest to the account on: which of them is missing nobody knows.
void WebDavStorage::makeFolders(
    qsizetype count, const std::function<void(const std::optional<CloudError> &)> &made)
{
    const QStringList parts = m_account.folder.split(u'/', Qt::SkipEmptyParts);
    if (count > parts.size()) {
        made(parts.isEmpty()
                 ? std::optional(CloudError{CloudProblem::NotAnAccount, u"there is no folder"_s})
                 : std::nullopt);
        return;
    }
    WebDavRequest request{
        "MKCOL", addressBelow(m_account.server, parts.first(count).join(u'/') + u'/')};
    request.limit = smallTalk;
    m_connection.send(
        std::move(request), [this, count, made](const CloudResult<WebDavAnswer> &result) {
            constexpr int isThereAlready = 405;
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                made(*error);
                return;
            }
            const auto &answer = std::get<WebDavAnswer>(result);
            std::optional<CloudError> problem = webDavProblem("MKCOL", answer);
            if (!problem || answer.status == isThereAlready) {
                makeFolders(count + 1, made);
                return;
            }
            if (problem->problem == CloudProblem::NotThere) {
                problem->problem = CloudProblem::NotAnAccount;
            }
            made(problem);
        });
}

QUrl WebDavStorage::address(const QString &name) const
{
    return addressBelow(m_folder, name);
}

void WebDavStorage::later(std::function<void()> task)
{
    QMetaObject::invokeMethod(&m_context, std::move(task), Qt::QueuedConnection);
}

} // namespace quillon
