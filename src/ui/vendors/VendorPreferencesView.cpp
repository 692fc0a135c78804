// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorPreferencesView.h"

#include "base/Localized.h"
#include "presentation/vendors/VendorPaneModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int progressSteps = 1000;

/// As high as the style sheet has it, also for who asks how much it needs.
class ThinBar : public QProgressBar
{
public:
    QSize minimumSizeHint() const override { return {0, maximumHeight()}; }
};

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

VendorPreferencesView::VendorPreferencesView(VendorPaneModel &model, const Theme &theme)
    : m_model(model)
    , m_updated(new InlineLine(theme))
    , m_count(plainLabel())
    , m_progress(new ThinBar)
    , m_button(new QPushButton)
    , m_restore(new QPushButton(localized("Restore previous")))
{
    m_updated->setObjectName(u"updatedLabel"_s);
    m_count->setObjectName(u"vendorCount"_s);
    m_count->setWordWrap(true);
    m_progress->setObjectName(u"progressBar"_s);
    m_progress->setAccessibleName(localized("Progress of the download"));
    m_progress->setTextVisible(false);
    m_button->setObjectName(u"downloadButton"_s);
    m_button->setAutoDefault(true);
    connect(m_button, &QPushButton::clicked, this, [this] { m_model.pressButton(); });
    m_restore->setObjectName(u"restoreButton"_s);
    m_restore->setAccessibleName(m_restore->text());
    m_restore->setAutoDefault(true);
    connect(m_restore, &QPushButton::clicked, this, [this] { m_model.pressRestoreButton(); });

    auto *card = new QFrame;
    card->setProperty("look", u"card"_s);
    auto *inside = new QVBoxLayout(card);
    inside->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMarginTop);
    inside->setSpacing(Theme::unit);
    inside->addWidget(m_count);
    inside->addWidget(m_updated);
    inside->addWidget(m_progress);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(Theme::unit);
    buttons->addWidget(m_button);
    buttons->addWidget(m_restore);
    buttons->addStretch();
    inside->addLayout(buttons);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(card);
    column->addStretch();
    connect(&m_model, &VendorPaneModel::changed, this, &VendorPreferencesView::refresh);
    refresh();
}

void VendorPreferencesView::refresh()
{
    const auto &state = m_model.state();
    m_updated->say(plainLine(state.updatedLabel),
        state.hasFailed ? InlineLine::Kind::Danger : InlineLine::Kind::Muted);
    m_updated->setVisible(state.updatedLabelShown);
    m_count->setText(plainLine(state.vendorCount));
    m_count->setAccessibleName(m_count->text());
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
    // Below 0 while nobody knows how long the whole is.
    m_progress->setRange(0, state.progress < 0 ? 0 : progressSteps);
    m_progress->setValue(static_cast<int>(std::clamp(state.progress, 0.0F, 1.0F) * progressSteps));
}

} // namespace quillon
