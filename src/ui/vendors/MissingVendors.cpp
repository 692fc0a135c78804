// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/MissingVendors.h"

#include "base/Localized.h"
#include "presentation/preferences/PreferencesWindowModel.h"
#include "presentation/vendors/VendorPaneModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace quillon {

using namespace Qt::StringLiterals;

MissingVendors::MissingVendors(VendorPaneModel &model, PreferencesWindowModel &preferences)
    : m_model(model)
    , m_text(plainLabel())
    , m_button(new QPushButton(localized("Vendor Data")))
{
    setObjectName(u"missingVendors"_s);
    m_text->setProperty("look", u"caption"_s);
    m_text->setWordWrap(true);
    m_button->setObjectName(u"missingVendorsButton"_s);
    m_button->setAutoDefault(true);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(Theme::unit, Theme::unit / 2, Theme::unit / 2, Theme::unit / 2);
    line->setSpacing(Theme::unit);
    line->addWidget(m_text, 1);
    line->addWidget(m_button);
    const QString hint = localized("Open the preferences where the list of vendors is downloaded");
    m_button->setAccessibleName(m_button->text());
    m_button->setAccessibleDescription(hint);
    m_button->setToolTip(plainToolTip(hint));
    connect(m_button, &QPushButton::clicked, this, [&preferences] {
        preferences.showPane(PreferencesPane::VendorData);
        preferences.openPreferencesWindow();
    });
    connect(&m_model, &VendorPaneModel::changed, this, &MissingVendors::refresh);
    refresh();
}

void MissingVendors::refresh()
{
    const auto &state = m_model.state();
    setVisible(state.isMissing);
    const QString missing = localized("The list of vendors is missing.");
    const QString said = state.isUpdating ? state.updatedLabel : missing;
    m_text->setText(plainLine(said));
}

} // namespace quillon
