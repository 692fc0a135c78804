// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/networks/SavedEntryPopover.h"

class QRadioButton;

namespace quillon {

/// Edits a saved network: its name, and by what it is recognized.
class SavedNetworkPopover : public SavedEntryPopover
{
    Q_OBJECT

public:
    SavedNetworkPopover(SavedEntryPopoverModel &model, const Theme &theme, QWidget *parent);

protected:
    void refreshDetails() override;

private:
    QRadioButton *m_bySsid;
    QRadioButton *m_byBssid;
};

} // namespace quillon
