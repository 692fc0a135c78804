// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/ReadMeHint.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

ReadMeHint::ReadMeHint(MainWindowModel &model, const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_hint(plainLabel(localized("The helper is not installed")))
    , m_explanation(plainLabel(MainWindowModel::readMeText()))
    , m_install(new QPushButton)
    , m_disclose(new QPushButton(localized("What is &this?")))
{
    setObjectName(u"readMe"_s);
    setAttribute(Qt::WA_StyledBackground);

    m_hint->setObjectName(u"readMeLabel"_s);
    m_hint->setAccessibleName(localized("Helper hint"));
    m_hint->setAccessibleDescription(m_hint->text());
    m_hint->setWordWrap(true);
    m_explanation->setWordWrap(true);
    m_explanation->setAccessibleName(localized("About the helper"));
    m_explanation->setAccessibleDescription(m_explanation->text());
    m_explanation->hide();

    m_install->setObjectName(u"installButton"_s);
    m_install->setAccessibleName(localized("Install helper"));
    m_install->setAccessibleDescription(localized("Asks for an administrator's password"));
    m_install->setIcon(theme.icon(u"install"_s, Theme::Ink::OnHintButton));
    m_install->setAutoDefault(true);
    m_disclose->setProperty("look", u"link"_s);
    m_disclose->setCheckable(true);
    m_disclose->setAutoDefault(true);
    m_disclose->setAccessibleDescription(localized("Shows or hides an explanation of the helper"));

    auto *shield = plainLabel();
    shield->setPixmap(
        theme.icon(u"shield"_s, Theme::Ink::Hint).pixmap(QSize(28, 28), devicePixelRatioF()));

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::unit);
    buttons->addWidget(m_install);
    buttons->addWidget(m_disclose);
    buttons->addStretch();

    auto *texts = new QVBoxLayout;
    texts->setSpacing(Theme::unit);
    texts->addWidget(m_hint);
    texts->addWidget(m_explanation);
    texts->addLayout(buttons);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(
        Theme::cardMargin, Theme::cardMargin, Theme::cardMargin, Theme::cardMargin);
    row->setSpacing(Theme::unit + Theme::unit / 2);
    row->addWidget(shield, 0, Qt::AlignTop);
    row->addLayout(texts, 1);

    connect(m_install, &QPushButton::clicked, &m_model, &MainWindowModel::installHelper);
    connect(m_disclose, &QPushButton::toggled, this, &ReadMeHint::showExplanation);
    connect(&m_model, &MainWindowModel::readMeStyleReset, this, &ReadMeHint::resetStyle);
    resetStyle();
    refresh();
}

void ReadMeHint::refresh()
{
    const auto &state = m_model.state();
    m_install->setEnabled(!state.installing);
    m_install->setText(state.installing ? localized("Installing…") : localized("&Install helper"));
    setVisible(state.readMeVisible);
}

void ReadMeHint::showExplanation(bool shown)
{
    m_explanation->setVisible(shown);
}

void ReadMeHint::resetStyle()
{
    const auto style = MainWindowModel::readMeStyle();
    const QColor color =
        QColor::fromRgbF(static_cast<float>(style.red), static_cast<float>(style.green),
            static_cast<float>(style.blue), static_cast<float>(style.alpha));
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_hint->setStyleSheet(u"#readMeLabel { font-weight: bold; font-size: %1pt; color: %2; }"_s.arg(
        QString::number(style.pointSize), color.name()));
}

} // namespace quillon
