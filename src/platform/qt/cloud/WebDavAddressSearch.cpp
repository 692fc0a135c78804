// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavAddressSearch.h"

#include "platform/qt/cloud/WebDavAddress.h"
#include "platform/qt/cloud/WebDavListing.h"
#include "platform/qt/cloud/WebDavProblem.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestAnswer = 1 << 20;

/// Whether the other addresses at the server would say the same. A password is not tried twice: a
/// server may lock out who is wrong too often.
bool holdsForAll(CloudProblem problem)
{
    return problem == CloudProblem::WrongPassword || problem == CloudProblem::Unreachable ||
           problem == CloudProblem::UntrustedCertificate;
}

CloudResult<QUrl> addressIn(const WebDavAnswer &answer)
{
    if (const std::optional<CloudError> error = webDavProblem("PROPFIND", answer)) {
        return *error;
    }
    WebDavListing listing(answer.url);
    if (const std::optional<CloudError> error = listing.add(answer.body)) {
        return *error;
    }
    const CloudResult<QList<CloudFile>> files = listing.finish();
    if (const auto *const error = std::get_if<CloudError>(&files)) {
        return *error;
    }
    if (!listing.hasFolder()) {
        return CloudError{CloudProblem::NotAnAccount, u"it is no folder"_s};
    }
    return answer.url;
}

} // namespace

WebDavAddressSearch::WebDavAddressSearch(
    const WebDavSignIn &signIn, CloudProvider::Found found, WebDavTransfer::Limits limits)
    : m_candidates(webDavCandidates(signIn.address, signIn.user))
    , m_problem{CloudProblem::NotAnAccount, u"there is no WebDAV at that address"_s}
    , m_found(std::move(found))
    , m_connection({CloudAccount::Kind::WebDav, {}, signIn.user, {}, signIn.fingerprint},
          signIn.password, limits)
{
    QMetaObject::invokeMethod(&m_context, [this] { askNext(); }, Qt::QueuedConnection);
}

void WebDavAddressSearch::askNext()
{
    if (m_candidates.isEmpty()) {
        end(m_problem);
        return;
    }
    WebDavRequest request{"PROPFIND", m_candidates.takeFirst()};
    request.headers = {{"Depth", "0"}, {"Content-Type", "application/xml; charset=utf-8"}};
    request.body = WebDavListing::question();
    request.limit = longestAnswer;
    m_connection.send(
        std::move(request), [this](const CloudResult<WebDavAnswer> &result) { answered(result); });
}

void WebDavAddressSearch::answered(const CloudResult<WebDavAnswer> &result)
{
    const auto *const failure = std::get_if<CloudError>(&result);
    const CloudResult<QUrl> address =
        failure ? CloudResult<QUrl>(*failure) : addressIn(std::get<WebDavAnswer>(result));
    const auto *const error = std::get_if<CloudError>(&address);
    if (!error || holdsForAll(error->problem)) {
        end(address);
        return;
    }
    if (error->problem != CloudProblem::NotThere &&
        m_problem.problem == CloudProblem::NotAnAccount) {
        m_problem = *error;
    }
    askNext();
}

void WebDavAddressSearch::end(const CloudResult<QUrl> &result)
{
    const CloudProvider::Found found = m_found;
    found(result); // may destroy us
}

} // namespace quillon
