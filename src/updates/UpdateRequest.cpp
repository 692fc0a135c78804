// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateRequest.h"

#include "updates/UpdateProblem.h"

#include <QPointer>

#include <cerrno>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds longestRequest = std::chrono::minutes(2);
/// Bytes. A list with a few dozen versions and their notes; it is kept in the settings.
constexpr qint64 longestFile = qint64(64) * 1024;
constexpr int ok = 200;

/// Whether that is what servers say of an XML file. A page for people is none, whatever its status.
bool isXml(const QByteArray &contentType)
{
    static const QList<QByteArray> types{"application/rss+xml", "application/xml", "text/xml"};
    return types.contains(contentType.split(';').first().trimmed().toLower());
}

Result<QByteArray> fileIn(const Result<HttpClient::Response> &answer)
{
    if (!answer) {
        const Error &error = answer.error();
        const bool isTooLong = error.domain == posixErrorDomain && error.code == EFBIG;
        return updateError(
            isTooLong ? UpdateProblem::NotTrusted : UpdateProblem::NotFetched, error.message);
    }
    const HttpClient::Response &response = answer.value();
    if (response.status != ok) {
        return updateError(
            UpdateProblem::NotFetched, u"the server answers with status %1"_s.arg(response.status));
    }
    if (!isXml(response.contentType)) {
        return updateError(UpdateProblem::NotTrusted, u"the answer is not XML"_s);
    }
    return response.body;
}

} // namespace

UpdateRequest::UpdateRequest(HttpClient &http, Scheduler &scheduler)
    : m_http(http)
    , m_scheduler(scheduler)
{
}

UpdateRequest::~UpdateRequest()
{
    cancel();
}

void UpdateRequest::start(const QUrl &feed, Completion completion)
{
    if (isRunning()) {
        return;
    }
    m_completion = std::move(completion);
    m_deadline = m_scheduler.onMainAfter(longestRequest, this,
        [this] { end(updateError(UpdateProblem::NotFetched, u"the server took too long"_s)); });
    m_transfer = m_http.get(
        feed, longestFile, [self = QPointer(this)](const Result<HttpClient::Response> &answer) {
            if (self) {
                self->m_transfer.reset();
                self->end(fileIn(answer));
            }
        });
}

void UpdateRequest::cancel()
{
    m_completion = nullptr;
    if (const auto transfer = std::exchange(m_transfer, std::nullopt)) {
        m_http.cancel(*transfer);
    }
    if (const auto deadline = std::exchange(m_deadline, std::nullopt)) {
        m_scheduler.cancel(*deadline);
    }
}

void UpdateRequest::end(const Result<QByteArray> &file)
{
    const Completion completion = m_completion;
    cancel();
    if (completion) {
        completion(file);
    }
}

} // namespace quillon
