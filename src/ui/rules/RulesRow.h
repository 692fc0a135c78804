// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class RuleStatusModel;
class RulesListModel;

/// Whether a rule holds for the interface now; its popover switches the interface's rules.
/// Whether a rule holds for the selected interface.
class RulesRow : public PopoverRow
{
    Q_OBJECT

public:
    struct Models
    {
        RuleStatusModel &status;
        RulesListModel &list;
    };

    RulesRow(const Models &models, const Theme &theme);

protected:
    PopoverDetails *makeDetails() override;

private:
    void refreshStatus();
    void refreshPopover();

    Models m_models;
};

} // namespace quillon
