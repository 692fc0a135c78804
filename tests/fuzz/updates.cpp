// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Require.h"
#include "updates/UpdateFeed.h"
#include "updates/UpdateSignature.h"

#include <algorithm>
#include <cstdint>

// The bytes are taken as a list of versions with a signature, and as one without.

namespace quillon::test {

namespace {

/// Of the key with which the seeds are signed (tests/data/updates/test-key.pem).
const QByteArray publicKey = QByteArray::fromBase64("A6EHv/POEL4dcN0Y50vAmWfk1jCbpQ1fHdyGZBJVMbg=");

void checkRelease(const UpdateRelease &release)
{
    const auto again = UpdateVersion::fromText(release.version.text());
    require(again && *again == release.version, "a version is what is written");
    require(release.version.text().size() < 40, "a version is short");
    require(isUpdateAddress(release.page), "a page is an https address");
    require(release.page.toString().startsWith(QLatin1String("https://")), "also as it is shown");
}

void checkFeed(const UpdateFeed &feed)
{
    require(!feed.application.isNull(), "a list is about a program");
    require(feed.issued.isValid() && feed.issued.timeSpec() == Qt::UTC, "a list has a moment");
    require(feed.issued.date().year() >= 0 && feed.issued.date().year() <= 10'000, "of our era");
    std::for_each(feed.releases.begin(), feed.releases.end(), checkRelease);
    const auto newest = feed.newest();
    require(newest.has_value() != feed.releases.isEmpty(), "the newest is one of them");
    for (const UpdateRelease &release : feed.releases) {
        require(release.version <= newest->version, "none is newer than the newest");
    }
}

} // namespace

} // namespace quillon::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace quillon;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    if (const auto content = signedContent(bytes, test::publicKey)) {
        test::require(bytes.startsWith(*content), "what is signed is a beginning of the bytes");
        test::require(bytes.size() - content->size() < 200, "one line is the signature's");
    }
    if (const auto feed = readUpdateFeed(bytes)) {
        test::checkFeed(feed.value());
    }
    return 0;
}
