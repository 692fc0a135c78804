// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/InterfaceDetails.h"

#include "app/MainWindowModel.h"
#include "base/Localized.h"
#include "ui/Theme.h"

#include <QGridLayout>
#include <QLabel>

namespace quillon {

InterfaceDetails::InterfaceDetails(MainWindowModel &model, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_changed(new QLabel(localized("Changed")))
{
    setProperty("look", QStringLiteral("card"));
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(
        Theme::cardMargin, Theme::unit + 4, Theme::cardMargin, Theme::unit + 4);
    grid->setHorizontalSpacing(3 * Theme::unit);
    grid->setVerticalSpacing(Theme::unit);
    grid->setColumnStretch(1, 1);

    m_current = addRow(*grid, localized("Current address"));
    m_current->setObjectName(QStringLiteral("currentAddress"));
    m_factory = addRow(*grid, localized("Factory address"));
    m_factory->setObjectName(QStringLiteral("hardwareAddress"));
    m_ipAddress = addRow(*grid, localized("IPv4 address"));
    m_ipAddress->setObjectName(QStringLiteral("ipAddress"));

    m_changed->setObjectName(QStringLiteral("hardwareIndicator"));
    m_changed->setProperty("look", QStringLiteral("notice"));
    m_changed->setToolTip(localized("The address in use is not the factory address"));
    m_changed->setAccessibleName(localized("The address in use is not the factory address"));
    m_changed->setFont(Theme::textFont(0.9, QFont::DemiBold));
    grid->addWidget(m_changed, 0, 2, Qt::AlignRight | Qt::AlignVCenter);
    // The pill comes and goes; the rows keep their height.
    grid->setRowMinimumHeight(0, m_changed->sizeHint().height());
    refresh();
}

QLabel *InterfaceDetails::addRow(QGridLayout &grid, const QString &caption)
{
    int row = 0;
    if (grid.count() > 0) {
        auto *rule = new QFrame;
        rule->setProperty("look", QStringLiteral("rule"));
        grid.addWidget(rule, grid.rowCount(), 0, 1, 3);
        row = grid.rowCount();
    }
    auto *name = new QLabel(caption);
    name->setProperty("look", QStringLiteral("caption"));
    auto *value = new QLabel;
    value->setProperty("look", QStringLiteral("value"));
    value->setFont(Theme::addressFont(1.0));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setCursor(Qt::IBeamCursor);
    // Tells a screen reader which of the two belongs to which.
    name->setBuddy(value);
    grid.addWidget(name, row, 0);
    grid.addWidget(value, row, 1);
    return value;
}

void InterfaceDetails::showValue(QLabel &label, const QString &value)
{
    label.setText(value.isEmpty() ? QStringLiteral("–") : value);
    label.setAccessibleName(value.isEmpty() ? localized("None") : value);
}

void InterfaceDetails::refresh()
{
    const auto &state = m_model.state();
    showValue(*m_current, state.currentAddress);
    showValue(*m_factory, state.hardwareAddress);
    showValue(*m_ipAddress, state.ipAddress);
    m_changed->setVisible(state.hardwareIndicatorVisible);
}

} // namespace quillon
