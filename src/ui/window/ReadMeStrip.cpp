// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/ReadMeStrip.h"

#include "base/Localized.h"
#include "presentation/window/ReadMeModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/PopoverHead.h"
#include "ui/widgets/Sign.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int popoverWidth = 360;
constexpr int shieldSize = 24;

} // namespace

ReadMeStrip::ReadMeStrip(ReadMeModel &model, const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_theme(theme)
    , m_hint(new QPushButton)
    , m_install(makeInstall(Theme::Ink::OnHintButton))
    , m_installExplained(makeInstall(Theme::Ink::OnAccent))
    , m_popover(new Popover(theme, new QWidget, m_hint))
{
    setObjectName(u"readMe"_s);
    setAttribute(Qt::WA_StyledBackground);
    setMinimumHeight(Theme::tallRowHeight);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    // Before its text: what assistive technology has once seen keeps its role.
    setAccessibleRole(*m_hint, QAccessible::Button);
    m_hint->setText(localized("The helper is not installed"));
    m_hint->setObjectName(u"readMeLabel"_s);
    m_hint->setAccessibleName(localized("Helper hint"));
    m_hint->setAccessibleDescription(m_hint->text());
    m_hint->setAutoDefault(true);
    m_hint->setToolTip(plainToolTip(localized("What is the helper?")));
    m_install->setObjectName(u"installButton"_s);
    m_installExplained->setProperty("look", u"primary"_s);
    auto *shield = new Sign(theme, shieldSize);
    shield->setSign(u"shield"_s, Theme::Ink::Hint);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(Theme::cardMargin, Theme::unit, Theme::cardMargin, Theme::unit);
    line->setSpacing(Theme::unit);
    line->addWidget(shield);
    line->addWidget(m_hint);
    line->addStretch(1);
    line->addWidget(m_install);
    makePopover();

    connect(m_hint, &QPushButton::clicked, &m_model, &ReadMeModel::toggleReadMePopover);
    connect(m_popover, &Popover::aboutToClose, &m_model, &ReadMeModel::popoverWillClose);
    connect(&m_model, &ReadMeModel::changed, this, &ReadMeStrip::refresh);
    connect(&m_model, &ReadMeModel::styleReset, this, &ReadMeStrip::resetStyle);
    resetStyle();
    refresh();
}

ReadMeStrip::~ReadMeStrip()
{
    // It closes with its anchor, and tells, when only a part of this is left.
    delete m_popover;
}

BusyButton *ReadMeStrip::makeInstall(Theme::Ink ink)
{
    auto *install = new BusyButton(m_theme, ink, localized("&Install Helper"));
    install->setBusyText(localized("Installing…"));
    install->setToolTip(plainToolTip(localized("Asks for an administrator's password")));
    install->setAccessibleName(localized("Install helper"));
    install->setAccessibleDescription(localized("Asks for an administrator's password"));
    install->setAutoDefault(true);
    connect(install, &QPushButton::clicked, &m_model, &ReadMeModel::installHelper);
    return install;
}

void ReadMeStrip::makePopover()
{
    setAccessibleRole(*m_popover, QAccessible::Dialog);
    m_popover->setBodyWidth(popoverWidth);
    m_popover->setAccessibleName(localized("What is the helper?"));
    auto *head = new PopoverHead(m_theme, u"shield"_s);
    head->setTitle(localized("What is the helper?"));
    auto *explanation = plainLabel(ReadMeModel::text());
    explanation->setWordWrap(true);
    explanation->setAccessibleName(localized("About the helper"));
    explanation->setAccessibleDescription(explanation->text());
    auto *column = new QVBoxLayout(m_popover->content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(head);
    column->addWidget(explanation);
    column->addSpacing(Theme::unit / 2);
    column->addWidget(m_installExplained, 0, Qt::AlignRight);
}

void ReadMeStrip::refresh()
{
    const auto &state = m_model.state();
    for (auto *install : {m_install, m_installExplained}) {
        install->setBusy(state.installing);
    }
    const bool isNew = state.visible && isHidden();
    setVisible(state.visible);
    if (isNew && isVisible()) {
        announce(*this, m_hint->text());
    }
    if (state.popoverShown && !m_popover->isOpen()) {
        m_popover->open(*m_hint, Popover::Side::Below);
    } else if (!state.popoverShown && m_popover->isOpen()) {
        m_popover->close();
    }
}

void ReadMeStrip::resetStyle()
{
    const auto style = ReadMeModel::style();
    const QColor color =
        QColor::fromRgbF(static_cast<float>(style.red), static_cast<float>(style.green),
            static_cast<float>(style.blue), static_cast<float>(style.alpha));
    m_hint->setStyleSheet(
        u"#readMeLabel { font-weight: bold; font-size: %1pt; color: %2; text-align: left; "
        "background: transparent; border: none; padding: 4px 0; }"_s.arg(
            QString::number(style.pointSize), color.name()));
}

} // namespace quillon
