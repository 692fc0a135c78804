// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/InterfaceDetails.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 3;
constexpr int rowSpacing = 4;

QFrame *makeRule()
{
    auto *rule = new QFrame;
    rule->setProperty("look", u"rule"_s);
    return rule;
}

} // namespace

InterfaceDetails::InterfaceDetails(MainWindowModel &model, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_grid(new QGridLayout(this))
    , m_current(makeValue(u"currentAddress"_s))
    , m_factory(makeValue(u"hardwareAddress"_s))
    , m_ipAddress(makeValue(u"ipAddress"_s))
    , m_changed(plainLabel(localized("Changed")))
{
    setProperty("look", u"card"_s);
    m_grid->setContentsMargins(Theme::cardMargin, Theme::unit, Theme::cardMargin, Theme::unit);
    m_grid->setHorizontalSpacing(3 * Theme::unit);
    m_grid->setVerticalSpacing(rowSpacing);
    m_grid->setColumnStretch(1, 1);

    m_changed->setObjectName(u"hardwareIndicator"_s);
    m_changed->setProperty("look", u"notice"_s);
    m_changed->setToolTip(plainToolTip(localized("The address in use is not the factory address")));
    m_changed->setAccessibleName(localized("The address in use is not the factory address"));
    m_changed->setFont(Theme::textFont(0.9, QFont::DemiBold));
    addRow(localized("Current address"), m_current, {nullptr, m_changed});
    addRow(localized("Factory address"), m_factory);
    addRow(localized("IPv4 address"), m_ipAddress);
    refresh();
}

void InterfaceDetails::addRow(const QString &caption, QWidget *value, const Beside &beside)
{
    if (m_grid->count() > 0) {
        m_grid->addWidget(makeRule(), m_grid->rowCount(), 0, 1, columns);
    }
    auto *name = plainLabel(caption);
    name->setProperty("look", u"caption"_s);
    // What stands beside the value comes and goes; the rows keep their height, all the same.
    name->setMinimumHeight(Theme::rowHeight);
    // Both are children of this: a screen reader finds a name beside its value only.
    name->setBuddy(value);
    const int row = m_grid->rowCount();
    m_grid->addWidget(name, row, 0);
    auto *cell = new QHBoxLayout;
    cell->setSpacing(Theme::unit);
    if (beside.before != nullptr) {
        cell->addWidget(beside.before);
    }
    cell->addWidget(value, 1);
    m_grid->addLayout(cell, row, 1);
    if (beside.end != nullptr) {
        m_grid->addWidget(beside.end, row, 2, Qt::AlignRight | Qt::AlignVCenter);
    }
}

QWidget *InterfaceDetails::addWideRow(QWidget *content)
{
    auto *row = new QWidget;
    auto *column = new QVBoxLayout(row);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(rowSpacing);
    column->addWidget(makeRule());
    column->addWidget(content);
    content->setMinimumHeight(Theme::rowHeight);
    m_grid->addWidget(row, m_grid->rowCount(), 0, 1, columns);
    return row;
}

QLabel *InterfaceDetails::makeValue(const QString &name)
{
    auto *value = plainLabel();
    value->setObjectName(name);
    value->setProperty("look", u"value"_s);
    value->setFont(Theme::addressFont(1.0));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setCursor(Qt::IBeamCursor);
    return value;
}

void InterfaceDetails::showValue(QLabel &label, const QString &text)
{
    if (text.isEmpty()) {
        label.setText(u"–"_s);
        label.setAccessibleName(localized("None"));
    } else {
        showLine(label, text, Theme::windowWidth);
    }
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
