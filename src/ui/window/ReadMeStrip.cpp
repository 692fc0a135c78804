// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/ReadMeStrip.h"

#include "base/Localized.h"
#include "presentation/window/ReadMeModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/Sign.h"
#include "ui/window/InstallHelperButton.h"
#include "ui/window/ReadMeDetails.h"

#include <QHBoxLayout>
#include <QPushButton>

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
{
    setObjectName(u"readMe"_s);
    setAttribute(Qt::WA_StyledBackground);
    setMinimumHeight(Theme::tallRowHeight);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    makeHint();
    auto *install = new InstallHelperButton(model, theme, Theme::Ink::OnHintButton);
    install->setObjectName(u"installButton"_s);
    auto *shield = new Sign(theme, shieldSize);
    shield->setSign(u"shield"_s, Theme::Ink::Hint);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(Theme::cardMargin, Theme::unit, Theme::cardMargin, Theme::unit);
    line->setSpacing(Theme::unit);
    line->addWidget(shield);
    line->addWidget(m_hint);
    line->addStretch(1);
    line->addWidget(install);

    connect(m_hint, &QPushButton::clicked, &m_model, &ReadMeModel::toggleReadMePopover);
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

void ReadMeStrip::makeHint()
{
    // Before its text: what assistive technology has once seen keeps its role.
    setAccessibleRole(*m_hint, QAccessible::Button);
    m_hint->setText(localized("The helper is not installed"));
    m_hint->setObjectName(u"readMeLabel"_s);
    m_hint->setAccessibleName(localized("Helper hint"));
    m_hint->setAccessibleDescription(m_hint->text());
    m_hint->setAutoDefault(true);
    m_hint->setToolTip(plainToolTip(localized("What is the helper?")));
}

void ReadMeStrip::makePopover()
{
    m_popover = new Popover(m_theme, new ReadMeDetails(m_model, m_theme), m_hint);
    setAccessibleRole(*m_popover, QAccessible::Dialog);
    m_popover->setBodyWidth(popoverWidth);
    connect(m_popover, &Popover::aboutToClose, &m_model, &ReadMeModel::popoverWillClose);
}

void ReadMeStrip::refresh()
{
    const auto &state = m_model.state();
    const bool isNew = state.visible && isHidden();
    setVisible(state.visible);
    if (isNew && isVisible()) {
        announce(*this, m_hint->text());
    }
    const bool isOpen = m_popover != nullptr && m_popover->isOpen();
    if (state.popoverShown && !isOpen) {
        if (m_popover == nullptr) {
            makePopover();
        }
        m_popover->open(*m_hint, Popover::Side::Below);
    } else if (!state.popoverShown && isOpen) {
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
