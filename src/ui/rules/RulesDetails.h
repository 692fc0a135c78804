// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/rules/RulesListModel.h"
#include "ui/widgets/PopoverDetails.h"

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quillon {

class ContentScrollArea;
class PopoverHead;
class RuleSwitchLine;
class RuleStatusModel;
class Theme;

/// The rules of the selected interface, each with its switch, and which of them holds.
class RulesDetails : public PopoverDetails
{
    Q_OBJECT

public:
    RulesDetails(RuleStatusModel &status, RulesListModel &list, const Theme &theme);

    void refresh() override;

Q_SIGNALS:
    /// The rules are to be edited, or the first one to be made.
    void editChosen(bool isNew);

private:
    void refreshStatus();
    void refreshList();
    void setRules(const QList<RulesListModel::Row> &rules);
    RuleSwitchLine *takeOrMake(QList<RuleSwitchLine *> &from, const QString &objID);

    RuleStatusModel &m_status;
    RulesListModel &m_list;
    const Theme &m_theme;
    PopoverHead *m_head;
    /// The three things that can be said of an interface: two of them are struck through.
    QLabel *m_activeRule;
    QLabel *m_noActiveRules;
    QLabel *m_noRules;
    QList<RuleSwitchLine *> m_lines;
    QVBoxLayout *m_rules; ///< the lines
    ContentScrollArea *m_area;
    QLabel *m_empty;
    QPushButton *m_edit;
};

} // namespace quillon
