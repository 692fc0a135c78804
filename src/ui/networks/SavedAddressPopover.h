// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/networks/SavedEntryPopover.h"

class QLabel;

namespace quillon {

/// Edits a saved address: its name.
class SavedAddressPopover : public SavedEntryPopover
{
    Q_OBJECT

public:
    SavedAddressPopover(SavedEntryPopoverModel &model, const Theme &theme, QWidget *parent);

protected:
    void refreshDetails() override;

private:
    QLabel *m_address;
};

} // namespace quillon
