// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QTabBar;
class QVBoxLayout;

namespace quillon {

class RuleFormModel;
class PageStack;
class RuleFormView;
class RulesListPage;
class RulesPreferencesViewController;
class RulesTableModel;
class Strip;
class Theme;

/// The pane of the preferences for the saved items and the rules, an inner tab each. The rules are
/// a list, or the form that is open in its place.
class RulesPreferencesView : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        RulesPreferencesViewController &editor;
        RulesTableModel &table;
        RuleFormModel &form;
    };
    /// What it holds that is made elsewhere; it takes both.
    struct Parts
    {
        QWidget *savedItems;
        QWidget *vendorField;
    };

    RulesPreferencesView(
        const Models &models, const Theme &theme, const Parts &parts, QWidget *parent = nullptr);
    /// Those below the list.
    const QWidget &buttons() const;

private:
    void refresh();
    void showPage(bool isList);

    Models m_models;
    QTabBar *m_tabs;
    Strip *m_strip;
    PageStack *m_pages;
    QWidget *m_savedItems;
    QWidget *m_rules;
    PageStack *m_rulesPages;
    RulesListPage *m_list;
    RuleFormView *m_form;
    QWidget *m_formPage;
    QVBoxLayout *m_formColumn;
};

} // namespace quillon
