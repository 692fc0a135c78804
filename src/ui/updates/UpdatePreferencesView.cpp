// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/updates/UpdatePreferencesView.h"

#include "base/Localized.h"
#include "presentation/updates/UpdatePreferencesViewController.h"
#include "ui/theme/Theme.h"
#include "ui/updates/OfferedVersion.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using ResultKind = UpdatePreferencesViewController::ResultKind;

/// Where the text of a check box begins.
constexpr int checkIndent = 26;

InlineLine::Kind kindOf(ResultKind kind)
{
    switch (kind) {
    case ResultKind::Muted:
        return InlineLine::Kind::Muted;
    case ResultKind::Positive:
        return InlineLine::Kind::Positive;
    case ResultKind::Notice:
        return InlineLine::Kind::Notice;
    case ResultKind::Danger:
        return InlineLine::Kind::Danger;
    }
    Q_UNREACHABLE();
}

QLabel *caption(const QString &text)
{
    auto *label = plainLabel(text);
    label->setProperty("look", u"caption"_s);
    label->setFont(Theme::font(Theme::Type::Caption));
    label->setWordWrap(true);
    return label;
}

/// Begins where the text of a check box does. Not by margins, which are the same in a mirrored
/// window.
QHBoxLayout *indented(QHBoxLayout *line)
{
    line->insertSpacing(0, checkIndent - line->spacing());
    return line;
}

QVBoxLayout *columnOf(QFrame *card)
{
    card->setProperty("look", u"card"_s);
    auto *column = new QVBoxLayout(card);
    column->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMarginTop);
    column->setSpacing(Theme::unit);
    return column;
}

} // namespace

UpdatePreferencesView::UpdatePreferencesView(
    UpdatePreferencesViewController &model, const Theme &theme)
    : m_model(model)
    , m_lastCheck(plainLabel())
    , m_checkNow(new BusyButton(theme, Theme::Ink::Text, localized("Check Now")))
    , m_result(new InlineLine(theme))
    , m_check(new QCheckBox(localized("Check for new versions")))
    , m_interval(new QComboBox)
    , m_autoInstall(new QCheckBox(localized("Open a new version's page")))
    , m_absence(makeAbsence())
    , m_look(makeLook(theme))
    , m_offer(new OfferedVersion(model))
    , m_settings(makeSettings())
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::spacing);
    column->addWidget(m_absence);
    // The button that is pressed stays where it is when an offer comes.
    column->addWidget(m_look);
    column->addWidget(m_offer);
    column->addWidget(m_settings);
    column->addStretch();
    connect(
        &m_model, &UpdatePreferencesViewController::changed, this, &UpdatePreferencesView::refresh);
    m_model.load();
    refresh();
}

QFrame *UpdatePreferencesView::makeAbsence()
{
    auto *card = new QFrame;
    auto *column = columnOf(card);
    auto *absence = plainLabel(localized("This copy of Quillon does not look for new versions."));
    absence->setWordWrap(true);
    column->addWidget(absence);
    column->addWidget(caption(localized("Your system's software updates bring new versions.")));
    return card;
}

QFrame *UpdatePreferencesView::makeSettings()
{
    m_check->setObjectName(u"checkForUpdatesButton"_s);
    m_check->setAccessibleName(m_check->text());
    // Not clicked(): assistive technology toggles.
    connect(m_check, &QCheckBox::toggled, this, [this](bool on) {
        if (on != m_model.state().checkForUpdatesButton) {
            m_model.tickCheckForUpdates(on);
        }
    });
    auto *often = plainLabel(localized("How often"));
    often->setBuddy(m_interval);
    m_interval->setObjectName(u"intervalPopup"_s);
    m_interval->setAccessibleName(often->text());
    // The list's look comes from the style sheet, which the default delegate disregards.
    m_interval->setItemDelegate(new QStyledItemDelegate(m_interval));
    for (const QString &title : UpdatePreferencesViewController::intervals()) {
        m_interval->addItem(plainLine(title));
    }
    connect(m_interval, &QComboBox::activated, this,
        [this](int index) { m_model.chooseInterval(index); });
    m_autoInstall->setObjectName(u"autoInstallButton"_s);
    m_autoInstall->setAccessibleName(m_autoInstall->text());
    connect(m_autoInstall, &QCheckBox::toggled, this, [this](bool on) {
        if (on != m_model.state().autoInstallButton) {
            m_model.tickAutoInstall(on);
        }
    });
    auto *hint = caption(localized(
        "At once, in the software center or the browser. Quillon itself downloads and installs "
        "nothing."));
    m_autoInstall->setAccessibleDescription(hint->text());

    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::spacing);
    line->addWidget(often);
    line->addWidget(m_interval);
    line->addStretch();
    auto *card = new QFrame;
    auto *column = columnOf(card);
    column->addWidget(m_check);
    column->addLayout(indented(line));
    column->addWidget(m_autoInstall);
    auto *hintLine = new QHBoxLayout;
    hintLine->setSpacing(Theme::spacing);
    hintLine->addWidget(hint);
    column->addLayout(indented(hintLine));
    return card;
}

QWidget *UpdatePreferencesView::makeLook(const Theme &theme)
{
    m_lastCheck->setObjectName(u"lastCheckLabel"_s);
    m_lastCheck->setWordWrap(true);
    m_checkNow->setObjectName(u"checkNowButton"_s);
    m_checkNow->setIcon(theme.icon(u"refresh"_s, Theme::Ink::Text));
    m_checkNow->setIconSize({Theme::iconSize, Theme::iconSize});
    m_checkNow->setBusyText(localized("Checking…"));
    m_checkNow->setAccessibleName(m_checkNow->text());
    m_checkNow->setAutoDefault(true);
    connect(m_checkNow, &QPushButton::clicked, this, [this] { m_model.checkNow(); });
    m_result->setObjectName(u"updateResult"_s);
    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::spacing);
    line->addWidget(m_lastCheck, 1);
    line->addWidget(m_checkNow);
    auto *card = new QFrame;
    auto *column = columnOf(card);
    column->addLayout(line);
    column->addWidget(m_result);
    return card;
}

void UpdatePreferencesView::refresh()
{
    const auto &state = m_model.state();
    m_absence->setVisible(!state.isAvailable);
    m_settings->setVisible(state.isAvailable);
    m_look->setVisible(state.isAvailable);
    m_check->setChecked(state.checkForUpdatesButton);
    m_interval->setCurrentIndex(state.intervalPopup);
    m_autoInstall->setChecked(state.autoInstallButton);
    // Both say what a look does that nobody asked for.
    const QString whyNot =
        state.checkForUpdatesButton ? QString() : localized("Only while Quillon checks by itself");
    for (QWidget *control :
        {static_cast<QWidget *>(m_interval), static_cast<QWidget *>(m_autoInstall)}) {
        control->setEnabled(state.checkForUpdatesButton);
        control->setToolTip(plainToolTip(whyNot));
    }
    showLine(*m_lastCheck, state.lastCheck);
    m_checkNow->setBusy(state.isChecking);
    m_result->say(state.result, kindOf(state.resultKind));
    m_offer->refresh();
}

} // namespace quillon
