// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/VendorWiring.h"

#include "presentation/vendors/VendorFieldModel.h"
#include "presentation/vendors/VendorPaneModel.h"
#include "vendors/RegistryDownload.h"
#include "vendors/RegistryImport.h"
#include "vendors/VendorChoice.h"
#include "vendors/VendorCount.h"
#include "vendors/VendorList.h"
#include "vendors/VendorLookup.h"

namespace quillon {

namespace {

void connectPane(QObject *context, const VendorComponents &with)
{
    VendorPaneModel &pane = with.pane;
    const auto on = [context](auto &from, auto signal, auto reaction) {
        QObject::connect(&from, signal, context, reaction);
    };
    on(with.count, &VendorCount::firstCountBegun, [&pane] { pane.showFirstCountBegun(); });
    on(with.count, &VendorCount::additionNoted,
        [&pane](const QString &note) { pane.showAdditionNoted(note); });
    on(with.count, &VendorCount::counted, [&pane](qlonglong count) { pane.showCount(count); });

    on(with.download, &RegistryDownload::downloadBegun, [&pane] { pane.showDownloadBegun(); });
    on(with.download, &RegistryDownload::progressed,
        [&pane](qint64 chunk, qint64 received, qint64 expected) {
            pane.showProgress(chunk, received, expected);
        });
    on(with.download, &RegistryDownload::downloadCancelled,
        [&pane] { pane.showDownloadCancelled(); });
    on(with.download, &RegistryDownload::downloadButtonReset,
        [&pane] { pane.resetDownloadButton(); });

    on(with.import, &RegistryImport::processingBegun, [&pane] { pane.showProcessingBegun(); });
    on(with.import, &RegistryImport::parsingFailed, [&pane] { pane.showParsingFailed(); });
    on(with.import, &RegistryImport::downloadCompleted,
        [&pane](const QString &date) { pane.showDownloadCompleted(date); });
}

void connectField(QObject *context, const VendorComponents &with)
{
    VendorFieldModel &field = with.field;
    QObject::connect(&with.list, &VendorList::rearranged, context, [&field] { field.rearrange(); });
    QObject::connect(&with.choice, &VendorChoice::vendorFieldUpdated, context,
        [&field](const QString &text) { field.showText(text); });
    QObject::connect(&with.choice, &VendorChoice::vendorSelected, context,
        [&field](const std::optional<qsizetype> &row) { field.selectRow(row); });
    QObject::connect(&with.lookup, &VendorLookup::vendorButtonShown, context,
        [&field](bool shown) { field.showVendorButton(shown); });
}

} // namespace

void connectVendors(QObject *context, const VendorComponents &vendors)
{
    connectPane(context, vendors);
    connectField(context, vendors);
    // Every refresh ends so, whatever became of it.
    QObject::connect(&vendors.import, &RegistryImport::ended, context,
        [&download = vendors.download] { download.resetDownloadButton(); });
    QObject::connect(&vendors.list, &VendorList::rebuilt, context,
        [&choice = vendors.choice] { choice.setVendorSelectionForCurrentDevice(); });
}

} // namespace quillon
