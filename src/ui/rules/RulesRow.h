// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class Presence;
class RuleStatusModel;
class RulesListModel;

/// Whether a rule holds for the selected interface; its popover switches the interface's rules, and
/// leads to their editor.
class RulesRow : public PopoverRow
{
    Q_OBJECT

public:
    struct Models
    {
        RuleStatusModel &status;
        RulesListModel &list;
        Presence &presence;
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
