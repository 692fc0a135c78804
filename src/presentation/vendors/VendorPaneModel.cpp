// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/vendors/VendorPaneModel.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"
#include "vendors/NullMarker.h"
#include "vendors/RegistryDownload.h"
#include "vendors/VendorCount.h"

#include <QLocale>

namespace quillon {

namespace {

constexpr double bytesPerMegabyte = 1'000'000;

/// With the decimal mark of the locale.
QString decimal(double number, int digits)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, 'f', digits);
}

QString megabytes(qint64 bytes)
{
    return decimal(static_cast<double>(bytes) / bytesPerMegabyte, 1);
}

QString countText(qlonglong count)
{
    return filled(localized("%@ Vendor Identifiers", "%@ Vendor Identifiers", count),
        {QString::number(count)});
}

void tell(VendorPaneModel::State &state, const QString &text)
{
    state.updatedLabel = text;
    state.updatedLabelShown = true;
    state.hasFailed = false;
}

/// In single precision. An empty download has no share to speak of.
float share(qint64 received, qint64 expected)
{
    return expected == 0
               ? 0.0F
               : static_cast<float>(static_cast<double>(received) / static_cast<double>(expected));
}

} // namespace

VendorPaneModel::VendorPaneModel(const SettingsStore &settings, RegistryDownload &download)
    : m_settings(settings)
    , m_download(download)
{
    m_state.update([](State &state) { state.buttonTitle = localized("Update database"); });
}

void VendorPaneModel::pressButton()
{
    switch (m_state->action) {
    case Action::StartDownload:
        m_download.startDownload();
        break;
    case Action::CancelDownload:
        m_download.cancelDownload();
        break;
    case Action::None:
        break;
    }
}

void VendorPaneModel::pressRestoreButton()
{
    if (m_state->canRestore) {
        m_download.restorePrevious();
    }
}

void VendorPaneModel::showStoredTexts()
{
    m_state.update([this](State &state) { state.canRestore = m_download.canRestorePrevious(); });
    updateCount(countText(m_settings.getInteger(keys::vendorCountValue)));
    showDownloadCompleted(storedUpdateDate(m_settings));
}

void VendorPaneModel::showDownloadBegun()
{
    m_isDownloading = true;
    m_state.update([&](State &state) {
        tell(state, localized("Getting download information..."));
        state.vendorCount = localized("Updating Vendor Identifier count...");
        state.action = Action::CancelDownload;
        state.canRestore = false;
        state.isUpdating = true;
        state.buttonTitle = localized("Cancel download...");
    });
}

void VendorPaneModel::showProgress(qint64 chunk, qint64 received, qint64 expected)
{
    m_state.update([&](State &state) {
        state.progress = share(received, expected);
        state.progressShown = true;
        if (expected == -1) {
            // The size of the latest piece: all that can be said without knowing the whole.
            tell(state, filled(localized("Downloading... %@MB"), {megabytes(chunk)}));
        } else {
            const QString percentage = decimal(static_cast<double>(state.progress * 100.0F), 3);
            tell(state,
                filled(localized("Downloading... %@% of %@MB"), {percentage, megabytes(expected)}));
        }
    });
}

void VendorPaneModel::showDownloadCancelled()
{
    m_isDownloading = false;
    updateLabel(localized("Download cancelled..."));
}

void VendorPaneModel::showProcessingBegun()
{
    m_isDownloading = false;
    updateLabel(localized("Processing data..."));
}

void VendorPaneModel::showParsingFailed()
{
    showFailure(localized("Parsing file failed..."));
}

void VendorPaneModel::showDownloadCompleted(const QString &date)
{
    updateLabel(filled(localized("Last Updated: %@"), {date}), !date.startsWith(nullMarker));
}

void VendorPaneModel::showRestorationBegun()
{
    m_isRestoring = true;
    m_state.update([](State &state) {
        tell(state, localized("Restoring the previous database..."));
        state.action = Action::None;
        state.canRestore = false;
    });
}

void VendorPaneModel::showRestorationFailed()
{
    m_isRestoring = false;
    showFailure(localized("Restoring failed..."));
}

void VendorPaneModel::showDatabaseRestored(const QString &date)
{
    m_isRestoring = false;
    showDownloadCompleted(date);
}

void VendorPaneModel::resetDownloadButton()
{
    m_state.update([&](State &state) {
        // An earlier refresh that was cancelled ends here as well, whatever has begun since.
        state.action = m_isRestoring ? Action::None : Action::StartDownload;
        state.buttonTitle = localized("Update database");
        state.progress = 0;
        state.progressShown = false;
        state.isUpdating = m_isDownloading || m_download.isImporting();
        state.canRestore = !m_isRestoring && !m_isDownloading && m_download.canRestorePrevious();
    });
}

void VendorPaneModel::showFirstCountBegun()
{
    updateCount(localized("Getting Vendor Identifier count..."));
}

void VendorPaneModel::showAdditionNoted(const QString &note)
{
    updateLabel(note, !note.startsWith(nullMarker));
}

void VendorPaneModel::showCount(qlonglong count)
{
    m_state.update([&](State &state) { state.isMissing = count == 0; });
    updateCount(countText(count));
}

void VendorPaneModel::updateLabel(const QString &text, bool isShown)
{
    m_state.update([&](State &state) {
        tell(state, text);
        state.updatedLabelShown = isShown;
    });
}

void VendorPaneModel::showFailure(const QString &text)
{
    m_state.update([&](State &state) {
        tell(state, text);
        state.hasFailed = true;
    });
}

void VendorPaneModel::updateCount(const QString &text)
{
    m_state.update([&](State &state) { state.vendorCount = text; });
}

} // namespace quillon
