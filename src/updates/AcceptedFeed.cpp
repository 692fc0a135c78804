// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/AcceptedFeed.h"

#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"
#include "updates/UpdateProblem.h"
#include "updates/UpdateSignature.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A list may be from the future by as much as clocks go wrong. Accepted from farther away, it
/// would keep out all that come before its date.
constexpr qint64 clockErrorSeconds = qint64(24) * 60 * 60;

} // namespace

const QString AcceptedFeed::application = u"com.orvandel.Quillon4"_s;

AcceptedFeed::AcceptedFeed(SettingsStore &settings, UpdateSource source)
    : m_settings(settings)
    , m_source(std::move(source))
{
}

std::optional<Error> AcceptedFeed::accept(const QByteArray &file, const QDateTime &now)
{
    const Result<UpdateFeed> read = this->read(file);
    if (!read) {
        return read.error();
    }
    const UpdateFeed &feed = read.value();
    if (feed.issued > now.addSecs(clockErrorSeconds)) {
        return updateError(UpdateProblem::NotTrusted, u"the list is from the future"_s);
    }
    if (feed.expires.isValid() && feed.expires < now) {
        return updateError(UpdateProblem::Outdated, u"the list has expired"_s);
    }
    const QByteArray kept = m_settings.get(keys::updateFeed).toByteArray();
    const Result<UpdateFeed> before = this->read(kept);
    if (before && feed.issued < before.value().issued) {
        return updateError(
            UpdateProblem::Outdated, u"the list is older than the one that came before"_s);
    }
    if (file != kept) {
        m_settings.set(keys::updateFeed, file);
    }
    return std::nullopt;
}

std::optional<UpdateRelease> AcceptedFeed::offer() const
{
    const Result<UpdateFeed> feed = read(m_settings.get(keys::updateFeed).toByteArray());
    const auto own = UpdateVersion::fromText(m_source.version);
    if (!feed || !own) {
        return std::nullopt;
    }
    std::optional<UpdateRelease> newest = feed.value().newest();
    return newest && newest->version > *own ? newest : std::nullopt;
}

Result<UpdateFeed> AcceptedFeed::read(const QByteArray &file) const
{
    const std::optional<QByteArray> content = signedContent(file, m_source.key);
    if (!content) {
        return updateError(UpdateProblem::NotTrusted, u"the list has no valid signature"_s);
    }
    Result<UpdateFeed> feed = readUpdateFeed(*content);
    if (!feed) {
        return updateError(
            UpdateProblem::NotTrusted, u"the list cannot be read: "_s + feed.error().message);
    }
    if (feed.value().application != application) {
        return updateError(UpdateProblem::NotTrusted, u"the list is about another program"_s);
    }
    return feed;
}

} // namespace quillon
