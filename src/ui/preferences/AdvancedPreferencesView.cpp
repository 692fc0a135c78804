// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/AdvancedPreferencesView.h"

#include "base/Isolates.h"
#include "base/Localized.h"
#include "presentation/preferences/AdvancedPreferencesViewController.h"
#include "presentation/preferences/BoundSetting.h"
#include "presentation/preferences/DefaultMinutes.h"
#include "presentation/preferences/InterfaceOwners.h"
#include "ui/preferences/PaneLayout.h"
#include "ui/preferences/SettingCheckBox.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int shownOwners = 6;
constexpr int listFrame = 10;

} // namespace

AdvancedPreferencesView::AdvancedPreferencesView(const Models &models, const Theme &theme)
    : m_models(models)
    , m_status(plainLabel())
    , m_install(new BusyButton(theme, Theme::Ink::Text, localized("Install")))
    , m_uninstall(new BusyButton(theme, Theme::Ink::Text, localized("Uninstall")))
    , m_minutes(new QLineEdit)
    , m_owners(new QListWidget)
{
    QVBoxLayout *pane = makePaneColumn(*this);
    addHelper(*addCard(*pane));
    QVBoxLayout *changes = addCard(*pane);
    addMinutes(*changes);
    changes->addWidget(new SettingCheckBox(m_models.driftAlarm, u"driftAlarm"_s,
        localized("Ask when another program replaces an address")));
    QVBoxLayout *managed = addCard(*pane, localized("Who manages each interface"));
    m_owners->setObjectName(u"owners"_s);
    m_owners->setProperty("look", u"list"_s);
    m_owners->setAccessibleName(localized("Who manages each interface"));
    m_owners->setUniformItemSizes(true);
    m_owners->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    managed->addWidget(m_owners);

    connect(&m_models.helper, &AdvancedPreferencesViewController::changed, this,
        &AdvancedPreferencesView::refreshHelper);
    connect(
        &m_models.owners, &InterfaceOwners::changed, this, &AdvancedPreferencesView::refreshOwners);
    m_models.helper.load();
    refreshHelper();
    refreshOwners();
}

AdvancedPreferencesView::~AdvancedPreferencesView()
{
    m_models.owners.setShown(false);
}

void AdvancedPreferencesView::addHelper(QVBoxLayout &card)
{
    m_status->setObjectName(u"helperStatus"_s);
    m_status->setWordWrap(true);
    m_install->setObjectName(u"installButton"_s);
    m_install->setBusyText(localized("Installing\u2026"));
    m_install->setAccessibleName(m_install->text());
    m_install->setToolTip(plainToolTip(localized("Asks for an administrator's password")));
    m_uninstall->setObjectName(u"uninstallButton"_s);
    m_uninstall->setBusyText(localized("Uninstalling\u2026"));
    m_uninstall->setAccessibleName(m_uninstall->text());
    m_uninstall->setToolTip(plainToolTip(localized("Asks for an administrator's password")));
    connect(m_install, &QPushButton::clicked, this, [this] { m_models.helper.installHelper(); });
    connect(
        m_uninstall, &QPushButton::clicked, this, [this] { m_models.helper.uninstallHelper(); });
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::unit);
    row->addWidget(m_status, 1);
    row->addWidget(m_install);
    row->addWidget(m_uninstall);
    card.addLayout(row);
}

void AdvancedPreferencesView::addMinutes(QVBoxLayout &card)
{
    // Its two halves are texts of their own.
    const QString sentence = withoutIsolates(localized("Repeat every %@ minutes by default"));
    m_minutes->setObjectName(u"defaultTimerMinutes"_s);
    m_minutes->setProperty("look", u"field"_s);
    m_minutes->setAccessibleName(filled(sentence, {u"\u2026"_s}));
    m_minutes->setToolTip(plainToolTip(localized("For rules whose own minutes are left empty")));
    m_minutes->setAlignment(Qt::AlignTrailing);
    const int digits = m_minutes->fontMetrics().horizontalAdvance(u"00000"_s);
    m_minutes->setFixedWidth(digits + 2 * Theme::spacing + Theme::unit);
    connect(m_minutes, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (!m_models.defaultMinutes.edit(text)) {
            refreshMinutes();
        }
    });
    connect(m_minutes, &QLineEdit::editingFinished, this, [this] {
        m_models.defaultMinutes.finish();
        refreshMinutes();
    });
    connect(&m_models.defaultMinutes, &DefaultMinutes::changed, this,
        &AdvancedPreferencesView::refreshMinutes);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::unit);
    const qsizetype place = sentence.indexOf("%@"_L1);
    const QString before = sentence.left(place).trimmed();
    const QString after = sentence.mid(place + 2).trimmed();
    if (!before.isEmpty()) {
        row->addWidget(plainLabel(before));
    }
    row->addWidget(m_minutes);
    if (!after.isEmpty()) {
        row->addWidget(plainLabel(after));
    }
    row->addStretch();
    card.addLayout(row);
    refreshMinutes();
}

void AdvancedPreferencesView::endEditing()
{
    m_models.defaultMinutes.finish();
}

void AdvancedPreferencesView::showEvent(QShowEvent *event)
{
    m_models.helper.checkButtonStatus();
    m_models.owners.setShown(true);
    QWidget::showEvent(event);
}

void AdvancedPreferencesView::hideEvent(QHideEvent *event)
{
    m_models.owners.setShown(false);
    QWidget::hideEvent(event);
}

void AdvancedPreferencesView::refreshHelper()
{
    using Work = AdvancedPreferencesViewController::Work;
    const auto &state = m_models.helper.state();
    m_status->setText(plainLine(state.status));
    m_status->setAccessibleName(m_status->text());
    m_install->setBusy(state.work == Work::Installing);
    m_install->setUsable(state.installEnabled && state.work != Work::Uninstalling);
    m_uninstall->setBusy(state.work == Work::Uninstalling);
    m_uninstall->setUsable(state.uninstallEnabled && state.work != Work::Installing);
    m_install->setAccessibleDescription(m_status->text());
    m_uninstall->setAccessibleDescription(m_status->text());
}

void AdvancedPreferencesView::refreshMinutes()
{
    const QString &text = m_models.defaultMinutes.state().text;
    if (text != m_minutes->text()) {
        // Behind what was typed the cursor stays where it was.
        const int place = m_minutes->cursorPosition();
        m_minutes->setText(plainLine(text));
        m_minutes->setCursorPosition(std::min<int>(place, static_cast<int>(text.size())));
    }
}

void AdvancedPreferencesView::refreshOwners()
{
    const auto &rows = m_models.owners.state().rows;
    const auto count = static_cast<int>(rows.size());
    while (m_owners->count() > count) {
        delete m_owners->takeItem(m_owners->count() - 1);
    }
    for (int index = 0; index < count; ++index) {
        if (index == m_owners->count()) {
            m_owners->addItem(QString());
        }
        const auto &row = rows.at(index);
        const QString owner = row.owner.isEmpty() ? u"\u2026"_s : row.owner;
        const QString text = row.device + u" \u00b7 "_s + owner;
        QListWidgetItem *item = m_owners->item(index);
        if (item->text() != plainLine(text)) {
            item->setText(plainLine(text));
            item->setToolTip(plainToolTip(text));
        }
    }
    const int shown = std::clamp(count, 1, shownOwners);
    const int each = std::max(m_owners->sizeHintForRow(0), m_owners->fontMetrics().height());
    m_owners->setFixedHeight(shown * each + listFrame);
}

} // namespace quillon
