// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AccountProbe.h"

#include "base/Localized.h"
#include "platform/RandomSource.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int nameBytes = 8;
constexpr auto nameStart = "probe-"_L1;
constexpr auto nameEnd = ".test"_L1;
constexpr int mostTries = 3;
/// Who has filled the account with names like ours need not be followed to the end.
constexpr qsizetype mostLeftOvers = 100;
constexpr qint64 longest = 4096;

/// Of different lengths, and none of them a text: a server that changes line ends shows here.
QByteArray content(int number)
{
    return QByteArray("\0\r\n\n\xff probe ", 12).repeated(number);
}

} // namespace

bool isProbeFile(const QString &name)
{
    return name.startsWith(nameStart) && name.endsWith(nameEnd);
}

QString AccountAbilities::sentence() const
{
    if (makesFilesOnce && replacesWhatIsMeant && tellsChanges) {
        return localized("This account can be used.");
    }
    return localized("This account can be used. Set it up on one computer after the other: its "
                     "server does not notice when two write at the same moment.");
}

AccountProbe::AccountProbe(CloudStorage &storage, RandomSource &random)
    : m_storage(storage)
    , m_random(random)
{
}

template <typename Reply>
auto AccountProbe::guarded(Reply reply)
{
    return [self = QPointer(this), reply = std::move(reply)](const auto &result) {
        if (self) {
            reply(result);
        }
    };
}

void AccountProbe::start(Done done)
{
    m_done = std::move(done);
    begin();
}

void AccountProbe::begin()
{
    m_storage.list(guarded([this](const CloudResult<QList<CloudFile>> &result) {
        if (const auto *const error = std::get_if<CloudError>(&result)) {
            end(*error);
            return;
        }
        QStringList leftOvers;
        for (const CloudFile &file : std::get<QList<CloudFile>>(result)) {
            if (isProbeFile(file.name) && leftOvers.size() < mostLeftOvers) {
                leftOvers << file.name;
            }
        }
        clearUp(leftOvers);
    }));
}

void AccountProbe::clearUp(QStringList names)
{
    if (names.isEmpty()) {
        create();
        return;
    }
    const QString name = names.takeFirst();
    m_storage.remove(
        name, guarded([this, names](const std::optional<CloudError> &) { clearUp(names); }));
}

void AccountProbe::create()
{
    const QByteArray random = m_random.bytes(nameBytes);
    if (random.size() != nameBytes) {
        end(CloudError{CloudProblem::Failed, u"no random bytes"_s});
        return;
    }
    m_name = nameStart + QString::fromLatin1(random.toHex()) + nameEnd;
    m_bytes = content(1);
    m_storage.create(m_name, m_bytes, guarded([this](const CloudResult<QByteArray> &result) {
        if (const auto *const error = std::get_if<CloudError>(&result)) {
            fail(*error);
        } else {
            readBack([this] { createAgain(); });
        }
    }));
}

void AccountProbe::createAgain()
{
    m_storage.create(m_name, content(2), guarded([this](const CloudResult<QByteArray> &result) {
        const auto *const error = std::get_if<CloudError>(&result);
        if (error && error->problem != CloudProblem::Changed) {
            fail(*error);
            return;
        }
        m_abilities.makesFilesOnce = error != nullptr;
        replaceAnything();
    }));
}

void AccountProbe::replaceAnything()
{
    m_bytes = content(3);
    m_storage.replace(m_name, m_bytes, {}, guarded([this](const CloudResult<QByteArray> &result) {
        if (const auto *const error = std::get_if<CloudError>(&result)) {
            fail(*error);
            return;
        }
        readBack([this] {
            m_abilities.tellsChanges = !m_revision.isEmpty() && m_revision != m_stale;
            if (m_abilities.tellsChanges && !m_stale.isEmpty()) {
                replaceStale();
            } else {
                findInListing();
            }
        });
    }));
}

void AccountProbe::replaceStale()
{
    m_storage.replace(
        m_name, content(4), m_stale, guarded([this](const CloudResult<QByteArray> &result) {
            const auto *const error = std::get_if<CloudError>(&result);
            if (!error) {
                m_bytes = content(4);
                findInListing();
            } else if (error->problem == CloudProblem::Changed) {
                replaceMeant();
            } else {
                fail(*error);
            }
        }));
}

void AccountProbe::replaceMeant()
{
    m_storage.replace(
        m_name, content(5), m_revision, guarded([this](const CloudResult<QByteArray> &result) {
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                disturbed(*error);
                return;
            }
            m_bytes = content(5);
            m_abilities.replacesWhatIsMeant = true;
            readBack([this] { findInListing(); });
        }));
}

void AccountProbe::findInListing()
{
    m_storage.list(guarded([this](const CloudResult<QList<CloudFile>> &result) {
        if (const auto *const error = std::get_if<CloudError>(&result)) {
            fail(*error);
            return;
        }
        const auto &files = std::get<QList<CloudFile>>(result);
        const bool isThere = std::any_of(files.begin(), files.end(), [&](const CloudFile &file) {
            return file.name == m_name && (file.size < 0 || file.size == m_bytes.size());
        });
        if (isThere) {
            removeAgain();
        } else {
            disturbed({CloudProblem::Failed, u"a file that was written is not listed"_s});
        }
    }));
}

void AccountProbe::removeAgain()
{
    m_storage.remove(m_name, guarded([this](const std::optional<CloudError> &error) {
        if (error) {
            end(*error);
        } else {
            end(m_abilities);
        }
    }));
}

void AccountProbe::readBack(const std::function<void()> &next)
{
    m_storage.read(
        m_name, longest, guarded([this, next](const CloudResult<CloudStorage::Content> &result) {
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                disturbed(*error);
                return;
            }
            const auto &there = std::get<CloudStorage::Content>(result);
            if (there.bytes != m_bytes) {
                disturbed({CloudProblem::Failed, u"it gives back other bytes than it was given"_s});
                return;
            }
            m_stale = std::exchange(m_revision, there.revision);
            next();
        }));
}

/// Another computer's probe may have taken our file for one that was left behind.
void AccountProbe::disturbed(const CloudError &error)
{
    const bool mayBeAnother = error.problem == CloudProblem::NotThere ||
                              error.problem == CloudProblem::Changed ||
                              error.problem == CloudProblem::Failed;
    if (!mayBeAnother || ++m_tries >= mostTries) {
        fail(error);
        return;
    }
    m_abilities = {};
    m_revision.clear();
    m_storage.remove(m_name, guarded([this](const std::optional<CloudError> &) { begin(); }));
}

void AccountProbe::fail(const CloudError &error)
{
    // What was asked for in vain may have been done.
    m_storage.remove(
        m_name, guarded([this, error](const std::optional<CloudError> &) { end(error); }));
}

void AccountProbe::end(const CloudResult<AccountAbilities> &result)
{
    const Done done = std::exchange(m_done, {});
    done(result); // may destroy us
}

} // namespace quillon
