// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateAnnouncement.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "base/Notifier.h"
#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"
#include "platform/desktop/SoftwareCenter.h"

#include <QPointer>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString identifier = u"softwareUpdate"_s;
/// Of the notes, in a message: characters, which every desktop has room for.
constexpr qsizetype mostNotes = 300;

/// The notes, or where they go on, are in the preferences.
QString bodyOf(const UpdateRelease &release)
{
    const QString hint = localized("What is new is in Preferences › Updates.");
    if (release.notes.isEmpty()) {
        return hint;
    }
    const QString notes = release.notes.size() <= mostNotes
                              ? release.notes
                              : release.notes.left(mostNotes).trimmed() + u'\u2026';
    return notes + u'\n' + hint;
}

} // namespace

UpdateAnnouncement::UpdateAnnouncement(
    SettingsStore &settings, Notifier &notifier, SoftwareCenter &softwareCenter)
    : m_settings(settings)
    , m_notifier(notifier)
    , m_softwareCenter(softwareCenter)
{
}

UpdateAnnouncement::~UpdateAnnouncement()
{
    m_notifier.withdraw(identifier);
}

void UpdateAnnouncement::tell(const UpdateRelease &release)
{
    if (!isNews(release)) {
        return;
    }
    noteTold(release);
    m_notifier.ask({.identifier = identifier,
        .title = filled(localized("Quillon %@ is available"), {release.version.text()}),
        .body = bodyOf(release),
        .actions = {{localized("Open Page"), [self = QPointer(this), release] {
                         if (self) {
                             self->open(release);
                         }
                     }}}});
    if (m_settings.getBool(keys::SUAutomaticallyUpdate)) {
        open(release);
    }
}

void UpdateAnnouncement::wasSeen(const UpdateRelease &release)
{
    m_notifier.withdraw(identifier);
    if (isNews(release)) {
        noteTold(release);
    }
}

bool UpdateAnnouncement::open(const UpdateRelease &release)
{
    if (m_softwareCenter.openOwnPage() || m_softwareCenter.openWebPage(release.page)) {
        return true;
    }
    qCWarning(logUpdates, "the page of a new version could not be opened");
    return false;
}

bool UpdateAnnouncement::isNews(const UpdateRelease &release) const
{
    return m_settings.getString(keys::updateToldVersion) != release.version.text();
}

void UpdateAnnouncement::noteTold(const UpdateRelease &release)
{
    m_settings.set(keys::updateToldVersion, release.version.text());
}

} // namespace quillon
