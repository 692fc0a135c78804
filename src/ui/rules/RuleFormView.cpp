// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RuleFormView.h"

#include "base/Localized.h"
#include "presentation/rules/RulesPreferencesViewController.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/HeartButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int minutesDigits = 3;
constexpr int longestName = 120; ///< as it is shown everywhere

QString shown(const RuleChoice &choice)
{
    const QString title = plainLine(choice.title);
    return choice.detail.isEmpty() ? title : title + u"  "_s + plainLine(choice.detail);
}

} // namespace

RuleFormView::RuleFormView(RuleFormModel &form, RulesPreferencesViewController &editor,
    const Theme &theme, QWidget *vendorField, QWidget *parent)
    : QFrame(parent)
    , m_form(form)
    , m_editor(editor)
    , m_grid(new QGridLayout)
    , m_name(new QLineEdit)
    , m_device(makePopUp(localized("Interface")))
    , m_network(makePopUp(localized("Network")))
    , m_action(makePopUp(localized("Action")))
    , m_address(makePopUp(localized("Address")))
    , m_repeat(makePopUp(localized("Repeat")))
    , m_minutes(new QLineEdit)
    , m_saveNetwork(new HeartButton(theme))
    , m_saveAddress(new HeartButton(theme))
    , m_newAddress(new QToolButton)
    , m_sentence(plainLabel())
    , m_notice(new InlineLine(theme))
    , m_cancel(new QPushButton(localized("Cancel")))
    , m_ok(new QPushButton(localized("Save Rule")))
{
    setProperty("look", u"card"_s);
    m_name->setProperty("look", u"field"_s);
    m_name->setAccessibleName(localized("Name"));
    m_name->setMaxLength(longestName);
    m_action->addItem(localized("Do Nothing"));
    m_action->addItem(localized("Change Address"));
    m_repeat->addItem(localized("Once"));
    m_repeat->addItem(localized("Every"));
    makeMinutes();
    makeHearts(theme);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMarginTop);
    column->setSpacing(Theme::unit);
    m_grid->setHorizontalSpacing(Theme::spacing);
    m_grid->setVerticalSpacing(Theme::unit);
    m_grid->setColumnStretch(1, 1);
    column->addLayout(m_grid);
    fillGrid(vendorField);
    fillEnd(theme, *column);
    connectControls();
    refresh();
}

QWidget *RuleFormView::firstControl() const
{
    return m_name;
}

QComboBox *RuleFormView::makePopUp(const QString &name)
{
    auto *popUp = new QComboBox;
    popUp->setAccessibleName(name);
    popUp->setProperty("look", u"compact"_s);
    popUp->ensurePolished();
    popUp->setFocusPolicy(Qt::StrongFocus);
    popUp->installEventFilter(this);
    // As wide as the form, whatever it is called.
    popUp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    popUp->setMinimumContentsLength(1);
    popUp->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return popUp;
}

void RuleFormView::makeMinutes()
{
    m_minutes->setProperty("look", u"field"_s);
    m_minutes->setAccessibleName(localized("Minutes"));
    m_minutes->ensurePolished();
    const int digits = minutesDigits * m_minutes->fontMetrics().horizontalAdvance(u'0');
    m_minutes->setFixedWidth(
        std::max(m_minutes->minimumSizeHint().width(), digits + 4 * Theme::unit));
    m_unit = plainLabel(localized("minutes"));
    m_unit->setBuddy(m_minutes);
}

void RuleFormView::makeHearts(const Theme &theme)
{
    m_saveNetwork->setFavorite(false, localized("Add Network to Favorites"));
    m_saveAddress->setFavorite(false, localized("Add Address to Favorites"));
    m_newAddress->setProperty("look", u"quiet"_s);
    m_newAddress->setIcon(theme.icon(u"random"_s, Theme::Ink::Muted));
    m_newAddress->setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    m_newAddress->setFixedSize(Theme::target, Theme::target);
    m_newAddress->setFocusPolicy(Qt::StrongFocus);
    m_newAddress->installEventFilter(new ClicksOnce(this));
    m_newAddress->setAccessibleName(localized("New Random Address"));
    m_newAddress->setToolTip(plainToolTip(
        localized("Makes a random address, saves it, and uses it whenever the rule acts")));
}

RuleFormView::Line RuleFormView::addLine(
    const QString &text, QWidget *control, const QList<QWidget *> &beside)
{
    auto *label = plainLabel(text);
    label->setBuddy(control);
    auto *row = new QHBoxLayout;
    row->setSpacing(Theme::unit);
    row->addWidget(control, 1);
    for (QWidget *other : beside) {
        row->addWidget(other, 0, Qt::AlignVCenter);
    }
    const int place = m_grid->rowCount();
    m_grid->addWidget(label, place, 0);
    m_grid->addLayout(row, place, 1);
    return Line{label, control} + beside;
}

void RuleFormView::fillGrid(QWidget *vendorField)
{
    addLine(localized("Name"), m_name);
    addLine(localized("Interface"), m_device);
    m_ofNetworkRules << addLine(localized("Network"), m_network, {m_saveNetwork});
    m_ofNetworkRules << addLine(localized("Action"), m_action);
    addLine(localized("Address"), m_address, {m_newAddress, m_saveAddress});
    // What is labelled is the input in the box: a box that passed the keyboard on would call itself
    // focused as well.
    qobject_cast<QLabel *>(addLine(localized("Vendor"), vendorField).constFirst())
        ->setBuddy(vendorField->findChild<QLineEdit *>());
    m_ofNetworkRules << addLine(localized("Repeat"), m_repeat, {m_minutes, m_unit});
}

void RuleFormView::fillEnd(const Theme &theme, QVBoxLayout &column)
{
    auto *box = new QFrame;
    box->setProperty("look", u"tint"_s);
    m_sentence->setWordWrap(true);
    auto *inside = new QVBoxLayout(box);
    inside->setContentsMargins(Theme::spacing, Theme::unit, Theme::spacing, Theme::unit);
    inside->addWidget(m_sentence);
    m_ok->setProperty("look", u"primary"_s);
    for (QPushButton *button : {m_cancel, m_ok}) {
        button->setAutoDefault(false);
    }
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::unit);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_ok);
    column.addWidget(box);
    column.addWidget(m_notice);
    column.addLayout(buttons);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
}

void RuleFormView::connectControls()
{
    connect(&m_form, &RuleFormModel::changed, this, &RuleFormView::refresh);
    connect(m_name, &QLineEdit::textEdited, this, [this](const QString &typed) {
        m_nameShown = typed;
        m_form.setName(typed);
    });
    connect(m_device, &QComboBox::activated, &m_form, &RuleFormModel::deviceSelectionChanged);
    connect(m_network, &QComboBox::activated, &m_form, &RuleFormModel::changeNetwork);
    connect(m_action, &QComboBox::activated, &m_form, &RuleFormModel::actionSelectionChanged);
    connect(m_address, &QComboBox::activated, &m_form, &RuleFormModel::addressSelectionChanged);
    connect(m_repeat, &QComboBox::activated, &m_form, &RuleFormModel::timerSelectionChanged);
    connect(m_minutes, &QLineEdit::textEdited, this, [this](const QString &typed) {
        m_form.setMinutes(typed);
        // Also where the model does not take it.
        refresh();
    });
    connect(
        m_minutes, &QLineEdit::editingFinished, &m_form, &RuleFormModel::controlTextDidEndEditing);
    connect(m_saveNetwork, &QToolButton::clicked, &m_form, &RuleFormModel::saveCurrentNetwork);
    connect(m_saveAddress, &QToolButton::clicked, &m_form, &RuleFormModel::saveCurrentAddress);
    connect(m_newAddress, &QToolButton::clicked, &m_form, &RuleFormModel::makeAddress);
    connect(
        m_cancel, &QPushButton::clicked, &m_editor, &RulesPreferencesViewController::cancelRule);
    connect(m_ok, &QPushButton::clicked, &m_editor, &RulesPreferencesViewController::chooseOK);
}

void RuleFormView::refresh()
{
    const auto &state = m_form.state();
    // By the text that it stands for: what is shown of a name may differ.
    if (m_nameShown != state.name) {
        m_nameShown = state.name;
        m_name->setText(plainLine(state.name));
    }
    if (m_minutes->text() != state.minutes) {
        m_minutes->setText(plainLine(state.minutes));
    }
    refreshPopUps();
    refreshUse();
    m_sentence->setText(plainParagraphs(state.sentence));
    m_sentence->setAccessibleName(m_sentence->text());
    if (!state.notice.isEmpty()) {
        m_notice->say(state.notice, InlineLine::Kind::Notice);
    } else {
        m_notice->say(state.isNew ? localized("New rules start switched off.") : QString());
    }
}

void RuleFormView::refreshPopUps()
{
    const auto &state = m_form.state();
    setChoices(*m_device, state.devices, state.device);
    setChoices(*m_network, state.networks, state.network);
    setChoices(*m_address, state.addresses, state.address);
    m_action->setCurrentIndex(state.action);
    m_repeat->setCurrentIndex(state.repeat);
    for (QComboBox *popUp : {m_action, m_repeat}) {
        popUp->setToolTip(plainToolTip(popUp->currentText()));
    }
}

void RuleFormView::setChoices(QComboBox &popUp, const RuleChoices &choices, qsizetype place)
{
    QStringList texts;
    for (const RuleChoice &choice : choices) {
        texts << shown(choice);
    }
    QStringList before;
    for (int entry = 0; entry < popUp.count(); ++entry) {
        before << popUp.itemText(entry);
    }
    if (texts != before) {
        popUp.clear();
        for (const QString &text : std::as_const(texts)) {
            popUp.addItem(plainLine(text));
        }
    }
    popUp.setCurrentIndex(static_cast<int>(place));
    popUp.setToolTip(plainToolTip(choices.at(place).title));
}

void RuleFormView::refreshUse()
{
    const auto &state = m_form.state();
    for (QWidget *part : std::as_const(m_ofNetworkRules)) {
        part->setVisible(state.kind == RuleFormModel::Kind::Network);
    }
    m_address->setEnabled(state.canSelectAddress);
    m_newAddress->setEnabled(state.canSelectAddress);
    m_repeat->setEnabled(state.canSelectVendor);
    m_minutes->setEnabled(state.canChooseTimerMins);
    m_unit->setEnabled(state.canChooseTimerMins);
    m_saveNetwork->setEnabled(state.canSaveNetwork);
    m_saveAddress->setEnabled(state.canSaveAddress);
    m_ok->setEnabled(state.canSaveRule);
}

bool RuleFormView::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const popUp = qobject_cast<QComboBox *>(watched);
    if (event->type() == QEvent::Wheel && popUp != nullptr && !popUp->hasFocus()) {
        event->ignore();
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void RuleFormView::keyPressEvent(QKeyEvent *event)
{
    auto *const button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
    if (event->key() == Qt::Key_Escape) {
        m_editor.cancelRule();
    } else if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QFrame::keyPressEvent(event);
    } else if (event->isAutoRepeat()) {
        event->accept();
    } else if (button != nullptr) {
        button->click();
    } else {
        m_editor.chooseOK();
    }
}

} // namespace quillon
