// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updates/UpdateFeed.h"

#include <QObject>

namespace quillon {

class Notifier;
class SettingsStore;
class SoftwareCenter;

/// Tells the user of a new version, once of each, and leads to where they get it. Main thread.
class UpdateAnnouncement : public QObject
{
    Q_OBJECT

public:
    UpdateAnnouncement(SettingsStore &settings, Notifier &notifier, SoftwareCenter &softwareCenter);
    /// Nothing that asks for a decision stays behind.
    ~UpdateAnnouncement() override;

    /// It was found without the user's asking: a message, and its page where they want that.
    void tell(const UpdateRelease &release);
    /// The user sees it where they looked for it.
    void wasSeen(const UpdateRelease &release);

    /// The program's page in the software center, else that of the release. False when neither can
    /// be opened.
    bool open(const UpdateRelease &release);

private:
    bool isNews(const UpdateRelease &release) const;
    void noteTold(const UpdateRelease &release);

    SettingsStore &m_settings;
    Notifier &m_notifier;
    SoftwareCenter &m_softwareCenter;
};

} // namespace quillon
