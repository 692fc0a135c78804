// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesPreferencesView.h"

#include "base/Localized.h"
#include "presentation/rules/RulesPreferencesViewController.h"
#include "ui/rules/RuleFormView.h"
#include "ui/rules/RulesListPage.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PageStack.h"
#include "ui/widgets/Strip.h"

#include <QHBoxLayout>
#include <QTabBar>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int formWidth = 480;
constexpr int formLetters = 66; ///< where letters are larger
constexpr int mostOfIt = 1000;

using Page = RulesPreferencesViewController::Page;
using Tab = RulesPreferencesViewController::Tab;

/// The form at its own width, in the middle of the page.
QVBoxLayout *columnOf(RuleFormView *form, QWidget *page)
{
    const QFontMetrics letters(Theme::font(Theme::Type::Body));
    form->setMaximumWidth(std::max(formWidth, formLetters * letters.averageCharWidth()));
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::spacing);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(form, mostOfIt);
    row->addStretch();
    column->addLayout(row);
    column->addStretch();
    return column;
}

} // namespace

RulesPreferencesView::RulesPreferencesView(
    const Models &models, const Theme &theme, const Parts &parts, QWidget *parent)
    : QWidget(parent)
    , m_models(models)
    , m_tabs(new QTabBar)
    , m_strip(new Strip(theme))
    , m_pages(new PageStack)
    , m_savedItems(parts.savedItems)
    , m_rules(new QWidget)
    , m_rulesPages(new PageStack)
    , m_list(new RulesListPage(models.table, models.editor, theme))
    , m_form(new RuleFormView(models.form, models.editor, theme, parts.vendorField))
    , m_formPage(new QWidget)
    , m_formColumn(columnOf(m_form, m_formPage))
{
    m_tabs->setProperty("look", u"segments"_s);
    m_tabs->setAccessibleName(localized("Rules"));
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_tabs->addTab(localized("Saved Items"));
    m_tabs->addTab(localized("Rules"));

    m_rulesPages->addWidget(m_list);
    m_rulesPages->addWidget(m_formPage);
    auto *rules = new QVBoxLayout(m_rules);
    rules->setContentsMargins(0, 0, 0, 0);
    rules->addWidget(m_rulesPages);
    m_list->takeStrip(m_strip);
    m_pages->addWidget(m_savedItems);
    m_pages->addWidget(m_rules);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::spacing);
    column->addWidget(m_tabs, 0, Qt::AlignHCenter);
    column->addWidget(m_pages, 1);
    connect(m_tabs, &QTabBar::currentChanged, &m_models.editor,
        [this](int tab) { m_models.editor.chooseTab(tab == 0 ? Tab::SavedItems : Tab::Rules); });
    connect(m_strip, &Strip::dismissed, &m_models.editor,
        &RulesPreferencesViewController::dismissWarning);
    connect(&m_models.editor, &RulesPreferencesViewController::changed, this,
        &RulesPreferencesView::refresh);
    m_models.table.begin();
    refresh();
}

const QWidget &RulesPreferencesView::buttons() const
{
    return m_list->buttons();
}

void RulesPreferencesView::refresh()
{
    const auto &state = m_models.editor.state();
    m_tabs->setCurrentIndex(state.tab == Tab::Rules ? 1 : 0);
    m_pages->setCurrentWidget(state.tab == Tab::Rules ? m_rules : m_savedItems);
    // The form takes their room: who fills it in stays until it is saved or canceled.
    m_tabs->setVisible(state.tab == Tab::SavedItems || state.page == Page::List);
    if (state.warning.isEmpty()) {
        m_strip->clear();
    } else {
        m_strip->say(state.warning);
    }
    showPage(state.page == Page::List);
}

void RulesPreferencesView::showPage(bool isList)
{
    QWidget *page = isList ? static_cast<QWidget *>(m_list) : m_formPage;
    if (page == m_rulesPages->currentWidget()) {
        return;
    }
    if (isList) {
        m_list->takeStrip(m_strip);
    } else {
        m_formColumn->insertWidget(0, m_strip);
    }
    m_rulesPages->setCurrentWidget(page);
    QWidget *first = isList ? m_list->firstControl() : m_form->firstControl();
    first->setFocus(Qt::OtherFocusReason);
}

} // namespace quillon
