// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QObject;

namespace quillon {

class RegistryDownload;
class RegistryImport;
class VendorChoice;
class VendorCount;
class VendorFieldModel;
class VendorList;
class VendorLookup;
class VendorPaneModel;

/// What the vendor components say to each other and to what shows them.
struct VendorComponents
{
    VendorCount &count;
    VendorList &list;
    VendorLookup &lookup;
    VendorChoice &choice;
    RegistryImport &import;
    RegistryDownload &download;
    VendorPaneModel &pane;
    VendorFieldModel &field;
};

/// Connections only, in the order in which they are made; they end with `context`.
void connectVendors(QObject *context, const VendorComponents &vendors);

} // namespace quillon
