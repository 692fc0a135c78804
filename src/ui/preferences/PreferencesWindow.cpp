// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/PreferencesWindow.h"

#include "presentation/preferences/PreferencesWindowModel.h"
#include "ui/preferences/PreferencesToolBar.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/RevealingScrollArea.h"

#include <QFrame>
#include <QKeySequence>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(680, 560);
constexpr int leastHeight = 320;

PreferencesPaneInfo infoOf(PreferencesPane pane)
{
    return preferencesPanes().at(static_cast<qsizetype>(pane));
}

} // namespace

PreferencesWindow::PreferencesWindow(const Models &models, const Theme &theme, TaskBar &taskBar)
    : SecondaryWindow(u"preferences"_s, models.presence, taskBar)
    , m_model(models.window)
    , m_toolBar(new PreferencesToolBar(theme))
    , m_pages(new QStackedWidget)
{
    auto *line = new QFrame;
    line->setProperty("look", u"rule"_s);
    auto *head = new QVBoxLayout;
    head->setContentsMargins(Theme::windowMargin, 0, Theme::windowMargin, 0);
    head->setSpacing(Theme::unit);
    head->addWidget(m_toolBar);
    head->addWidget(line);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, Theme::unit, 0, 0);
    column->setSpacing(Theme::unit);
    column->addLayout(head);
    column->addWidget(m_pages, 1);
    setMinimumHeight(leastHeight);
    resize(usualSize);
    connect(m_toolBar, &PreferencesToolBar::chosen, &m_model, &PreferencesWindowModel::showPane);
    connect(&m_model, &PreferencesWindowModel::paneChanged, this, &PreferencesWindow::refresh);
}

PreferencesWindow::~PreferencesWindow()
{
    // Popovers close with it, and say so, while it is still whole.
    hide();
}

void PreferencesWindow::addPane(PreferencesPane pane, QWidget *content)
{
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(
        Theme::windowMargin, Theme::unit / 2, Theme::windowMargin, Theme::windowMargin);
    column->addWidget(content);
    auto *area = new RevealingScrollArea(page);
    m_panes.insert(pane, area);
    m_pages->addWidget(area);
    const PreferencesPaneInfo info = infoOf(pane);
    const auto key = static_cast<Qt::Key>(Qt::Key_0 + int(m_panes.size()));
    addShortcut(QKeySequence(Qt::ALT | key), info.label, [this, pane] { m_model.showPane(pane); });
    m_toolBar->add(info);
    // As wide as the toolbar in one line, where the screen is.
    const int wanted = m_toolBar->sizeHint().width() + 2 * Theme::windowMargin;
    resize(std::clamp(wanted, width(), std::max(width(), screen()->availableSize().width())),
        height());
    refresh();
}

void PreferencesWindow::refresh()
{
    const PreferencesPane pane = m_model.pane();
    if (QWidget *page = m_panes.value(pane)) {
        const PreferencesPaneInfo info = infoOf(pane);
        setWindowTitle(info.label);
        m_pages->setCurrentWidget(page);
        m_toolBar->select(pane);
    }
}

} // namespace quillon
