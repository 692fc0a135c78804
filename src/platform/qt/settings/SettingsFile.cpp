// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/SettingsFile.h"

#include "base/Log.h"
#include "platform/Scheduler.h"
#include "platform/qt/settings/PropertyListFile.h"
#include "platform/qt/settings/XmlPropertyList.h"

#include <QFile>

#include <cerrno>
#include <sys/stat.h>

namespace quillon {

using Kind = SettingsProblem::Kind;

namespace {

using namespace std::chrono_literals;

// An editor may empty the file, or take it away, before it fills it, and do so again and again.
constexpr auto settlingTime = 1s;
// For somebody who never comes to an end nothing waits for ever.
constexpr auto longestSettling = 10s;

} // namespace

SettingsFile::SettingsFile(const QString &path, SettingsValues &values, const Scheduler &clock)
    : m_path(path)
    , m_values(values)
    , m_clock(clock)
{
}

SettingsFile::Outcome SettingsFile::read()
{
    const std::lock_guard lock(m_mutex);
    return readLocked();
}

SettingsFile::Outcome SettingsFile::readLocked()
{
    const Result<QByteArray> bytes = readFileContent(m_path);
    if (!bytes) {
        const int code = bytes.error().code;
        if (code == ENOENT || code == ENOTDIR) {
            return replaceLost();
        }
        if (code == EFBIG) {
            return isInDoubt({}) ? Outcome::NotYet : setAside(bytes.error());
        }
        arose(Kind::Unreadable, bytes.error());
        return Outcome::Failed;
    }
    if (m_lastContent.isNull() || bytes.value() != m_lastContent) {
        const Result<QVariantMap> content = readPropertyList(bytes.value());
        if (!content) {
            return isInDoubt(bytes.value()) ? Outcome::NotYet : setAside(content.error());
        }
        m_values.adopt(content.value());
        m_lastContent = bytes.value();
    }
    forgetTroubles();
    return Outcome::Done;
}

SettingsFile::Sight SettingsFile::sight(const QByteArray &bytes) const
{
    struct stat status = {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) != 0) {
        return {};
    }
    constexpr qint64 nanosecondsPerSecond = 1'000'000'000;
    return {true, status.st_ino,
        status.st_mtim.tv_sec * nanosecondsPerSecond + status.st_mtim.tv_nsec, bytes};
}

/// Whether the file, which is bad as it is, may still become a good one. Nobody who looks shortens
/// the time for another one.
bool SettingsFile::isInDoubt(const QByteArray &bytes)
{
    const auto now = m_clock.monotonic();
    Sight seen = sight(bytes);
    const bool isSame = m_doubt && m_doubt->sight == seen;
    if (!m_doubt || (m_doubt->isOver && !isSame)) {
        m_doubt = Doubt{std::move(seen), now, now};
    } else if (!isSame) {
        m_doubt->sight = std::move(seen);
        m_doubt->since = now;
    }
    // It stays over when what follows from it fails: it is tried again without waiting.
    m_doubt->isOver = m_doubt->isOver || now - m_doubt->since >= settlingTime ||
                      now - m_doubt->begun >= longestSettling;
    return !m_doubt->isOver;
}

void SettingsFile::forgetTroubles()
{
    m_doubt.reset();
    m_lasting.erase(Kind::Unreadable);
    m_lasting.erase(Kind::Damaged);
}

/// A file that is gone says nothing about the values that it held: they are written again.
SettingsFile::Outcome SettingsFile::replaceLost()
{
    const bool wasThere = !m_lastContent.isNull();
    if (wasThere && isInDoubt({})) {
        return Outcome::NotYet;
    }
    forgetTroubles();
    if (!wasThere) {
        return Outcome::Done;
    }
    qCWarning(logSettings) << "The settings file is gone and will be written again:" << m_path;
    m_lastContent = QByteArray();
    m_values.markAllUnsaved();
    return Outcome::Lost;
}

SettingsFile::Outcome SettingsFile::setAside(const Error &damage)
{
    const Result<QString> kept = setFileAside(m_path);
    if (!kept) {
        arose(Kind::Damaged, damage);
        arose(Kind::NotWritable, kept.error());
        return Outcome::Failed;
    }
    // Told even after an attempt that failed, now that the user can be told where the file is; and
    // over.
    m_lasting.erase(Kind::Damaged);
    arose(Kind::Damaged, damage, kept.value());
    forgetTroubles();
    m_lastContent = QByteArray();
    m_values.markAllUnsaved();
    return Outcome::Lost;
}

SettingsFile::Outcome SettingsFile::save()
{
    const std::lock_guard lock(m_mutex);
    const Outcome state = readLocked();
    if (state == Outcome::NotYet) {
        return state;
    }
    const auto snapshot = m_values.unsaved();
    if (!snapshot) {
        return Outcome::Done;
    }
    if (state == Outcome::Failed) {
        return state;
    }
    const QByteArray bytes = xmlPropertyList(snapshot->values);
    if (const auto error = replaceFileContent(m_path, bytes)) {
        arose(error->code == ENOSPC || error->code == EDQUOT ? Kind::DiskFull : Kind::NotWritable,
            *error);
        return Outcome::Failed;
    }
    m_lastContent = bytes;
    m_values.markSaved(*snapshot);
    m_lasting.erase(Kind::NotWritable);
    m_lasting.erase(Kind::DiskFull);
    return Outcome::Done;
}

void SettingsFile::arose(Kind kind, const Error &error, const QString &keptPath)
{
    if (!m_lasting.insert(kind).second) {
        return;
    }
    switch (kind) {
    case Kind::Damaged:
        if (keptPath.isEmpty()) {
            qCWarning(logSettings)
                << "The settings file is damaged and cannot be set aside:" << m_path
                << error.message;
        } else {
            qCWarning(logSettings) << "The settings file is damaged:" << m_path << error.message
                                   << "It is kept as" << keptPath;
        }
        break;
    case Kind::Unreadable:
        qCWarning(logSettings) << "The settings file cannot be read:" << m_path << error.message;
        break;
    case Kind::NotWritable:
        qCWarning(logSettings) << "The settings cannot be written:" << m_path << error.message;
        break;
    case Kind::DiskFull:
        qCWarning(logSettings) << "The settings cannot be written, there is no room:" << m_path
                               << error.message;
        break;
    }
    m_news.push_back({kind, m_path, keptPath, error});
}

std::vector<SettingsProblem> SettingsFile::takeProblems()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_news, {});
}

} // namespace quillon
