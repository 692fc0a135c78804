// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorDataCard.h"

#include "base/Localized.h"
#include "presentation/vendors/VendorPaneModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int progressSteps = 1000;
/// How far the title's picture stands from its left edge.
constexpr int titleInset = 10;

QString restoreHint(const VendorPaneModel::State &state)
{
    if (state.canRestore) {
        return localized("Bring back the vendors from before the last update");
    }
    if (state.action == VendorPaneModel::Action::None) {
        return localized("The vendors from before the last update are being brought back");
    }
    return state.isUpdating ? localized("Not while the database is being updated")
                            : localized("There are no vendors from before an update");
}

QString downloadHint(const VendorPaneModel::State &state)
{
    return state.action == VendorPaneModel::Action::None
               ? localized("Not while the vendors from before are being brought back")
               : QString();
}

} // namespace

VendorDataCard::VendorDataCard(VendorPaneModel &model, const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_theme(theme)
    , m_title(new QToolButton)
    , m_content(makeContent())
{
    setProperty("look", u"card"_s);
    m_title->setObjectName(u"vendorDataTitle"_s);
    m_title->setProperty("look", u"flat"_s);
    m_title->setText(localized("Vendor Data"));
    m_title->setAccessibleName(localized("Vendor Data"));
    m_title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_title, &QToolButton::clicked, this, [this] { fold(!m_content->isHidden()); });

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::cardMargin - titleInset, Theme::unit - 2, Theme::cardMargin, Theme::unit - 2);
    column->setSpacing(0);
    column->addWidget(m_title, 0, Qt::AlignLeft);
    column->addWidget(m_content);
    connect(&m_model, &VendorPaneModel::changed, this, &VendorDataCard::refresh);
    fold(true);
    refresh();
}

QWidget *VendorDataCard::makeContent()
{
    auto *content = new QWidget;
    m_updated = plainLabel();
    m_updated->setObjectName(u"updatedLabel"_s);
    m_updated->setWordWrap(true);
    m_count = plainLabel();
    m_count->setObjectName(u"vendorCount"_s);
    m_count->setProperty("look", u"caption"_s);
    m_progress = new QProgressBar;
    m_progress->setObjectName(u"progressBar"_s);
    m_progress->setAccessibleName(localized("Progress of the download"));
    m_progress->setRange(0, progressSteps);
    m_progress->setTextVisible(false);
    m_button = new QPushButton;
    m_button->setObjectName(u"downloadButton"_s);
    m_button->setAutoDefault(true);
    connect(m_button, &QPushButton::clicked, this, [this] { m_model.pressButton(); });
    m_restore = new QPushButton(localized("Restore previous"));
    m_restore->setObjectName(u"restoreButton"_s);
    m_restore->setAccessibleName(m_restore->text());
    m_restore->setAutoDefault(true);
    connect(m_restore, &QPushButton::clicked, this, [this] { m_model.pressRestoreButton(); });
    // The bar comes and goes; the card keeps its height.
    QSizePolicy kept = m_progress->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(kept);

    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(titleInset, 2, 0, Theme::unit);
    grid->setHorizontalSpacing(Theme::spacing);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(0, 1);
    grid->addWidget(m_updated, 0, 0, 1, 2);
    grid->addWidget(m_count, 1, 0);
    grid->addWidget(m_button, 1, 1);
    grid->addWidget(m_progress, 2, 0);
    grid->addWidget(m_restore, 2, 1);
    return content;
}

void VendorDataCard::fold(bool folded)
{
    m_content->setVisible(!folded);
    m_title->setIcon(m_theme.icon(folded ? u"collapsed"_s : u"expand"_s, Theme::Ink::Muted));
    m_title->setAccessibleDescription(folded ? localized("Folded") : localized("Unfolded"));
}

void VendorDataCard::refresh()
{
    const auto &state = m_model.state();
    showLine(*m_updated, state.updatedLabel);
    showLine(*m_count, state.vendorCount);
    m_button->setText(plainLine(state.buttonTitle));
    m_button->setAccessibleName(state.buttonTitle);
    m_button->setEnabled(state.action != VendorPaneModel::Action::None);
    m_button->setToolTip(plainToolTip(downloadHint(state)));
    m_button->setAccessibleDescription(downloadHint(state));
    m_restore->setEnabled(state.canRestore);
    const QString hint = restoreHint(state);
    m_restore->setToolTip(plainToolTip(hint));
    m_restore->setAccessibleDescription(hint);
    m_progress->setVisible(state.progressShown);
    // Below 0 while nobody knows how long the whole is: an empty bar.
    m_progress->setValue(static_cast<int>(std::clamp(state.progress, 0.0F, 1.0F) * progressSteps));
}

} // namespace quillon
