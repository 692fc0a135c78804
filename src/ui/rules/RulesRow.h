// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

class QLabel;
class QVBoxLayout;

namespace quillon {

class PopoverHead;
class RuleStatusModel;
class RulesListModel;

/// Whether a rule holds for the interface now; its popover switches the interface's rules.
class RulesRow : public PopoverRow
{
    Q_OBJECT

public:
    struct Models
    {
        RuleStatusModel &status;
        RulesListModel &list;
    };

    RulesRow(const Models &models, const Theme &theme, QWidget *parent = nullptr);

private:
    void makeContent();
    void refreshStatus();
    void refreshList();
    void makeRules();

    Models m_models;
    const Theme &m_theme;
    PopoverHead *m_head;
    /// The three things that can be said of an interface: two of them are struck through.
    QLabel *m_activeRule;
    QLabel *m_noActiveRules;
    QLabel *m_noRules;
    QVBoxLayout *m_rules;
    QLabel *m_empty;
};

} // namespace quillon
