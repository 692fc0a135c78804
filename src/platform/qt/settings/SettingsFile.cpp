// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/SettingsFile.h"

#include "base/Log.h"
#include "platform/qt/settings/PropertyListFile.h"
#include "platform/qt/settings/XmlPropertyList.h"

#include <cerrno>

namespace quillon {

using Kind = SettingsProblem::Kind;

SettingsFile::SettingsFile(const QString &path, SettingsValues &values)
    : m_path(path)
    , m_values(values)
{
}

SettingsFile::Outcome SettingsFile::read(Patience patience)
{
    const std::lock_guard lock(m_mutex);
    return readLocked(patience);
}

SettingsFile::Outcome SettingsFile::readLocked(Patience patience)
{
    const Result<QByteArray> bytes = readFileContent(m_path);
    if (!bytes) {
        const int code = bytes.error().code;
        if (code == ENOENT || code == ENOTDIR) {
            return replaceLost(patience);
        }
        if (code == EFBIG) {
            return patience == Patience::Some ? Outcome::NotYet : setAside(bytes.error());
        }
        arose(Kind::Unreadable, bytes.error());
        return Outcome::Failed;
    }
    if (m_lastContent.isNull() || bytes.value() != m_lastContent) {
        const Result<QVariantMap> content = readPropertyList(bytes.value());
        if (!content) {
            return patience == Patience::Some ? Outcome::NotYet : setAside(content.error());
        }
        m_values.adopt(content.value());
        m_lastContent = bytes.value();
    }
    m_lasting.erase(Kind::Unreadable);
    m_lasting.erase(Kind::Damaged);
    return Outcome::Done;
}

/// A file that is gone says nothing about the values that it held: they are written again.
SettingsFile::Outcome SettingsFile::replaceLost(Patience patience)
{
    const bool wasThere = !m_lastContent.isNull();
    if (wasThere && patience == Patience::Some) {
        return Outcome::NotYet;
    }
    m_lasting.erase(Kind::Unreadable);
    m_lasting.erase(Kind::Damaged);
    if (wasThere) {
        qCWarning(logSettings) << "The settings file is gone and will be written again:" << m_path;
        m_lastContent = QByteArray();
        m_values.markAllUnsaved();
    }
    return Outcome::Done;
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
    m_lasting.erase(Kind::Damaged);
    m_lasting.erase(Kind::Unreadable);
    m_lastContent = QByteArray();
    m_values.markAllUnsaved();
    return Outcome::Done;
}

SettingsFile::Outcome SettingsFile::save(Patience patience)
{
    const std::lock_guard lock(m_mutex);
    const Outcome state = readLocked(patience);
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
