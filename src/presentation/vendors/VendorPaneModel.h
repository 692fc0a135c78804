// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>

namespace quillon {

class RegistryDownload;
class SettingsStore;

/// What the "Vendor Data" pane shows: the refresh button, its progress, two lines of text, and the
/// way back. Main thread.
class VendorPaneModel : public QObject
{
    Q_OBJECT

public:
    enum class Action
    {
        StartDownload,
        CancelDownload,
        None, ///< the database from before the last refresh is being brought back
    };
    struct State
    {
        QString buttonTitle;
        Action action = Action::StartDownload;
        /// 0 to 1; below 0 while the size of a download is not known.
        float progress = 0;
        bool progressShown = false;
        QString updatedLabel;
        /// Not while the date that it names is not known.
        bool updatedLabelShown = false;
        bool hasFailed = false; ///< what updatedLabel tells of
        QString vendorCount;
        /// The database is missing or empty, as far as it was counted.
        bool isMissing = false;
        /// The database from before the last refresh is there, and nothing is going on.
        bool canRestore = false;
        /// A refresh is going on, also where the button already offers the next one.
        bool isUpdating = false;

        bool operator==(const State &) const = default;
    };

    VendorPaneModel(const SettingsStore &settings, RegistryDownload &download);

    const State &state() const { return m_state.get(); }
    /// The user pressed the button: what state().action says.
    void pressButton();
    /// The user wants the database from before the last refresh back. Nothing unless
    /// state().canRestore.
    void pressRestoreButton();

    /// At start: what the settings remember.
    void showStoredTexts();

    // What happened to the refresh and to the database.
    void showDownloadBegun();
    void showProgress(qint64 chunk, qint64 received, qint64 expected);
    void showDownloadCancelled();
    void showProcessingBegun();
    void showParsingFailed();
    void showDownloadCompleted(const QString &date);
    void showRestorationBegun();
    void showRestorationFailed();
    void showDatabaseRestored(const QString &date);
    void resetDownloadButton();
    void showFirstCountBegun();
    void showAdditionNoted(const QString &note);
    void showCount(qlonglong count);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void updateLabel(const QString &text, bool isShown = true);
    void showFailure(const QString &text);
    void updateCount(const QString &text);

    const SettingsStore &m_settings;
    RegistryDownload &m_download;
    bool m_isDownloading = false;
    bool m_isRestoring = false;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
