// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/overview/OverviewTableCellView.h"

#include "base/Localized.h"
#include "ui/overview/OverviewCountdown.h"
#include "ui/overview/OverviewFacts.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What is left and right of what is in the card: its edge (theme.qss) and its margin.
constexpr int aside = 2 * (1 + Theme::cardMargin);
constexpr int actionGap = Theme::unit / 4; ///< their paddings keep them apart
constexpr int dotSize = 12;
constexpr int quietPadding = 13; ///< of the first action, with its edge (theme.qss)
constexpr int belowName = Theme::headerIconSize + Theme::spacing;

InlineLine::Kind kindOf(OverviewCell::LineKind kind)
{
    switch (kind) {
    case OverviewCell::LineKind::Done:
        return InlineLine::Kind::Positive;
    case OverviewCell::LineKind::Notice:
        return InlineLine::Kind::Notice;
    case OverviewCell::LineKind::Failure:
        return InlineLine::Kind::Danger;
    case OverviewCell::LineKind::Hint:
        break;
    }
    return InlineLine::Kind::Muted;
}

void mirrorButton(BusyButton &button, const OverviewCell::Button &state)
{
    button.setBusy(state.isBusy);
    button.setUsable(state.isEnabled);
    button.setToolTip(plainToolTip(state.hint));
    button.setAccessibleDescription(plainLine(state.hint));
}

} // namespace

OverviewTableCellView::OverviewTableCellView(
    OverviewController &controller, int row, const Theme &theme)
    : m_controller(controller)
    , m_cell(*controller.cell(row))
    , m_row(row)
    , m_theme(theme)
{
    setObjectName(u"mainCell"_s);
    setProperty("look", u"card"_s);
    setProperty("ringRadius", Theme::cardRadius);
    setAccessibleRole(*this, QAccessible::ListItem);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusPolicy(Qt::ClickFocus);
    connect(&m_cell, &OverviewCell::changed, this, &OverviewTableCellView::refresh);
    describe();
}

void OverviewTableCellView::setUsualHeight(int height)
{
    m_usualHeight = height;
    updateGeometry();
}

QSize OverviewTableCellView::sizeHint() const
{
    return isFilled() ? QFrame::sizeHint() : QSize(0, m_usualHeight);
}

QSize OverviewTableCellView::minimumSizeHint() const
{
    // Not that of its arrangement: it is arranged anew for less.
    return isFilled() ? QSize(leastWidth(), QFrame::minimumSizeHint().height())
                      : QSize(0, m_usualHeight);
}

int OverviewTableCellView::actionsWidth() const
{
    const int gaps = 3 * actionGap;
    return m_rules->sizeHint().width() + m_randomize->sizeHint().width() + m_restore->width() +
           m_configure->width() + gaps;
}

int OverviewTableCellView::leastWidth() const
{
    return aside + std::max(m_facts->leastWidth(), actionsWidth() + belowName - quietPadding);
}

void OverviewTableCellView::fill()
{
    if (isFilled()) {
        return;
    }
    m_facts = new OverviewFacts(m_theme);
    makeActions();
    m_countdown = new OverviewCountdown(row().device, m_theme);
    m_line = new InlineLine(m_theme);
    m_line->hide();
    m_top = new QBoxLayout(QBoxLayout::LeftToRight);
    m_top->setSpacing(Theme::unit);
    m_top->addWidget(m_facts, 1);
    m_top->addWidget(m_actions, 0, Qt::AlignVCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMarginTop);
    column->setSpacing(6);
    column->addLayout(m_top);
    column->addWidget(m_countdown);
    auto *line = new QHBoxLayout;
    line->addSpacing(belowName);
    line->addWidget(m_line, 1);
    column->addLayout(line);
    m_controls = {m_rules, m_randomize, m_restore, m_configure, m_countdown->pauseButton(),
        m_countdown->resumeButton()};
    for (QWidget *control : std::as_const(m_controls)) {
        control->installEventFilter(this);
    }
    connect(m_countdown, &OverviewCountdown::pauseChosen, this,
        [this] { m_controller.pauseTimer(m_row); });
    connect(m_countdown, &OverviewCountdown::resumeChosen, this,
        [this] { m_controller.resumeTimer(m_row); });
    // At once, where the card is seen already: its height is asked for before the next turn.
    m_facts->show();
    m_actions->show();
    setCurrent(m_isCurrent);
    arrange();
    refresh();
}

QPushButton *OverviewTableCellView::makeQuiet(
    const QString &objectName, const QString &icon, int iconSize)
{
    auto *button = new QPushButton;
    button->setObjectName(objectName);
    button->setProperty("look", u"quiet"_s);
    button->setIcon(m_theme.icon(icon, Theme::Ink::Muted));
    button->setIconSize(QSize(iconSize, iconSize));
    button->setAutoDefault(true);
    return button;
}

void OverviewTableCellView::makeActions()
{
    m_rules = makeQuiet(u"rulesButton"_s, u"link-inactive"_s, dotSize);
    m_rules->setText(localized("Rules"));
    m_randomize = new BusyButton(m_theme, Theme::Ink::Accent, localized("Randomize"));
    m_randomize->setObjectName(u"randomizeRow"_s);
    m_randomize->setProperty("look", u"quiet"_s);
    m_randomize->setIcon(m_theme.icon(u"random"_s, Theme::Ink::Accent));
    m_randomize->setBusyText(localized("Randomizing…"));
    m_randomize->setAutoDefault(true);
    m_restore = new BusyButton(m_theme, Theme::Ink::Accent, QString());
    m_restore->setObjectName(u"restoreRow"_s);
    m_restore->setProperty("look", u"symbol"_s);
    m_restore->setIcon(m_theme.icon(u"restore"_s, Theme::Ink::Text));
    m_restore->setFixedSize(Theme::controlHeight, Theme::controlHeight);
    m_restore->setAutoDefault(true);
    m_configure = makeQuiet(
        u"configButton"_s, isRightToLeft() ? u"chevron-left"_s : u"collapsed"_s, Theme::iconSize);
    m_configure->setProperty("look", u"symbol"_s);
    m_configure->setFixedSize(Theme::controlHeight, Theme::controlHeight);
    nameActions();
    m_actions = new QWidget;
    auto *line = new QHBoxLayout(m_actions);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(actionGap);
    for (QWidget *action :
        std::initializer_list<QWidget *>{m_rules, m_randomize, m_restore, m_configure}) {
        // Otherwise none is higher than the lowest.
        line->addWidget(action, 0, Qt::AlignVCenter);
    }
    connect(m_rules, &QPushButton::clicked, this, [this] { m_controller.editRules(m_row); });
    connect(m_randomize, &QPushButton::clicked, this, [this] { m_controller.randomize(m_row); });
    connect(m_restore, &QPushButton::clicked, this,
        [this] { m_controller.restoreHardwareAddress(m_row); });
    connect(
        m_configure, &QPushButton::clicked, this, [this] { m_controller.changeInterface(m_row); });
}

void OverviewTableCellView::nameActions()
{
    const QStringList device{row().device};
    const auto name = [&device](QWidget &control, const QString &text) {
        control.setAccessibleName(plainLine(filled(text, device)));
    };
    name(*m_rules, localized("Rules of %@"));
    name(*m_randomize, localized("Randomize %@"));
    m_randomize->setBusyName(plainLine(filled(localized("Randomizing %@"), device)));
    name(*m_restore, localized("Restore the hardware address of %@"));
    m_restore->setBusyName(
        plainLine(filled(localized("Restoring the hardware address of %@"), device)));
    name(*m_configure, localized("Configure %@"));
}

void OverviewTableCellView::setCurrent(bool current)
{
    m_isCurrent = current;
    const Qt::FocusPolicy policy = current ? Qt::StrongFocus : Qt::ClickFocus;
    setFocusPolicy(policy);
    for (QWidget *control : std::as_const(m_controls)) {
        control->setFocusPolicy(policy);
    }
}

int OverviewTableCellView::placeOf(const QWidget *control) const
{
    return static_cast<int>(m_controls.indexOf(control));
}

void OverviewTableCellView::focusPlace(int place)
{
    QWidget *const control = m_controls.value(place);
    const bool isUsable = control != nullptr && control->isEnabled() && control->isVisibleTo(this);
    (isUsable ? control : this)->setFocus(Qt::TabFocusReason);
}

void OverviewTableCellView::arrange()
{
    if (!isFilled()) {
        return;
    }
    const int room = width() - aside;
    const int facts = m_facts->widthInOneRow();
    const int all = facts + Theme::unit + actionsWidth();
    const bool isWide = room >= all;
    m_top->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_top->setAlignment(m_actions, isWide ? Qt::AlignVCenter : Qt::AlignLeading);
    m_top->setSpacing(isWide ? Theme::unit : 0);
    // Below them they begin where the name does.
    const int before = isWide ? 0 : belowName - quietPadding;
    const bool mirrored = isRightToLeft();
    m_actions->layout()->setContentsMargins(mirrored ? 0 : before, 0, mirrored ? before : 0, 0);
    m_facts->setInOneRow(room >= facts);
}

void OverviewTableCellView::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    arrange();
}

void OverviewTableCellView::refresh()
{
    describe();
    if (!isFilled()) {
        return;
    }
    const OverviewCell::State &state = m_cell.state();
    m_facts->mirror(state);
    refreshActions();
    m_countdown->mirror(state);
    m_line->setVisible(!state.line.text.isEmpty());
    if (state.line.text != m_line->text() || kindOf(state.line.kind) != m_line->kind()) {
        m_line->say(state.line.text, kindOf(state.line.kind));
    }
}

void OverviewTableCellView::refreshActions()
{
    const OverviewCell::State &state = m_cell.state();
    updateRuleButton();
    mirrorButton(*m_randomize, state.randomize);
    mirrorButton(*m_restore, state.restore);
    m_configure->setToolTip(plainToolTip(state.configureToolTip));
}

void OverviewTableCellView::updateRuleButton()
{
    const RuleStatusSign &sign = m_cell.state().rules;
    if (sign == m_shownRules) {
        return;
    }
    m_shownRules = sign;
    const bool isActive = sign.image == "NSStatusAvailable"_L1;
    const bool hasRules = isActive || sign.image == "NSStatusPartiallyAvailable"_L1;
    m_rules->setIcon(m_theme.icon(
        isActive ? u"link-active"_s : u"link-inactive"_s, isActive   ? Theme::Ink::Positive
                                                          : hasRules ? Theme::Ink::Notice
                                                                     : Theme::Ink::Muted));
    m_rules->setToolTip(plainToolTip(sign.toolTip));
    m_rules->setAccessibleDescription(sign.toolTip);
}

void OverviewTableCellView::describe()
{
    const OverviewCell::State &state = m_cell.state();
    const QString name = plainLine(state.title + u", "_s + state.linkText);
    if (name != accessibleName()) {
        setAccessibleName(name);
    }
    const QString address = state.addressNow.isEmpty() ? state.currentText : state.addressNow;
    QStringList parts;
    if (!address.isEmpty()) {
        parts << address
              << (address == state.hardwareText ? localized("Hardware") : localized("Changed"));
    }
    parts << filled(localized("Vendor %@"), {state.vendorText}) << state.rules.toolTip;
    const QString description = plainParagraphs(parts.join(u", "_s));
    if (description != accessibleDescription()) {
        setAccessibleDescription(description);
    }
}

bool OverviewTableCellView::leadsToOtherRow(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if ((event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
            event->accept();
            Q_EMIT keyToOtherRow(event->key());
            return true;
        }
        break;
    default:
        break;
    }
    return false;
}

void OverviewTableCellView::keyPressEvent(QKeyEvent *event)
{
    if (leadsToOtherRow(event)) {
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_controller.changeInterface(m_row);
        return;
    }
    QFrame::keyPressEvent(event);
}

bool OverviewTableCellView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && leadsToOtherRow(static_cast<QKeyEvent *>(event))) {
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace quillon
