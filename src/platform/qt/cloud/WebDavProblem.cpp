// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavProblem.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool isExpected(const QByteArray &method, const WebDavAnswer &answer)
{
    const int status = answer.status;
    if (method == "PROPFIND") {
        return status == 207 && !answer.isPage;
    }
    if (method == "GET" || method == "HEAD") {
        return (status == 200 && !answer.isPage) || status == 304;
    }
    // A page that comes with a plain "OK" is one where somebody is to log in; with "Created" it is
    // a server's way of saying so.
    return status == 201 || status == 204 || (status == 200 && !answer.isPage);
}

CloudProblem problemOf(const QByteArray &method, const WebDavAnswer &answer)
{
    switch (answer.status) {
    case 401:
        return CloudProblem::WrongPassword;
    case 403:
    case 423:
        return CloudProblem::NotAllowed;
    case 404:
    case 409: // its folder is missing
    case 410:
        return CloudProblem::NotThere;
    case 405:
        // Some answer so where there is a folder of the name, or nothing that can be written.
        return method == "PROPFIND" ? CloudProblem::NotAnAccount : CloudProblem::NotAllowed;
    case 412:
        return CloudProblem::Changed;
    case 413:
        return CloudProblem::TooLarge;
    case 507:
        return CloudProblem::Full;
    case 408:
    case 425:
    case 429:
        return CloudProblem::Failed;
    case 501:
        return CloudProblem::NotAnAccount;
    default:
        break;
    }
    // Done by halves, or to be done later; all of that WebDAV has, a PROPFIND has not.
    const bool isPart =
        method != "PROPFIND" && answer.status >= 200 && answer.status < 300 && !answer.isPage;
    return isPart || answer.status >= 500 ? CloudProblem::Failed : CloudProblem::NotAnAccount;
}

} // namespace

std::optional<CloudError> webDavProblem(const QByteArray &method, const WebDavAnswer &answer)
{
    if (isExpected(method, answer)) {
        return std::nullopt;
    }
    return CloudError{problemOf(method, answer),
        u"the server answers %1 with status %2%3"_s.arg(QString::fromLatin1(method))
            .arg(answer.status)
            .arg(answer.isPage ? u" and a page"_s : QString())};
}

} // namespace quillon
