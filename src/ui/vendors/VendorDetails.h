// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverDetails.h"

class QLabel;

namespace quillon {

class ContentScrollArea;
class PopoverHead;
class Theme;
class VendorInfoModel;

/// What the registry says of the vendor of the selected interface.
class VendorDetails : public PopoverDetails
{
    Q_OBJECT

public:
    VendorDetails(VendorInfoModel &model, const Theme &theme);

    void refresh() override;

private:
    ContentScrollArea *makeFacts();

    VendorInfoModel &m_model;
    PopoverHead *m_head;
    QLabel *m_address;
    QLabel *m_identifier;
    QLabel *m_registry;
    ContentScrollArea *m_facts;
};

} // namespace quillon
