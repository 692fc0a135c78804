// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/vendors/VendorFieldModel.h"
#include "presentation/vendors/VendorInfoModel.h"
#include "presentation/vendors/VendorPaneModel.h"
#include "vendors/RegistryDownload.h"
#include "vendors/RegistryImport.h"
#include "vendors/RuleVendor.h"
#include "vendors/VendorChoice.h"
#include "vendors/VendorCount.h"
#include "vendors/VendorDatabase.h"
#include "vendors/VendorFiles.h"
#include "vendors/VendorList.h"
#include "vendors/VendorLookup.h"

namespace quillon {

class CurrentInterface;
class DeviceTable;
struct Platform;

/// Everything about manufacturers, put together: their database and its refresh, the lookup, the
/// list to choose from, and what the window shows of them.
struct VendorFeature
{
    VendorFeature(
        const Platform &platform, DeviceTable &devices, const CurrentInterface &currentInterface);

    VendorFiles files;
    VendorDatabase database;
    VendorCount count;
    VendorList list;
    VendorLookup lookup;
    VendorChoice choice;
    VendorList ruleList; ///< of the rule editor: it is filtered and opened by itself
    RuleVendor ruleVendor;
    RegistryImport import;
    RegistryDownload download;

    VendorPaneModel pane;
    VendorFieldModel field;
    VendorFieldModel ruleField; ///< of the rule editor
    VendorInfoModel info;
};

} // namespace quillon
