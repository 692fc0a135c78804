// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorChooser.h"

#include "base/Localized.h"
#include "presentation/vendors/VendorFieldModel.h"
#include "ui/theme/Theme.h"
#include "ui/vendors/VendorTableView.h"
#include "ui/widgets/PlainText.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

VendorChooser::VendorChooser(
    VendorFieldModel &model, const Theme &theme, Caption caption, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_theme(theme)
    , m_field(new QLineEdit)
    , m_toggle(new QToolButton)
{
    setObjectName(u"vendorFieldView"_s);
    makeField();
    makeToggle(theme);
    arrange(caption);
    connectModel();
    refresh();
}

void VendorChooser::arrange(Caption caption)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_field, 0, 0);
    grid->addWidget(m_toggle, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    // Margins are not mirrored by themselves.
    const bool isMirrored = isRightToLeft();
    const int inset = Theme::unit + 4;
    int before = 0;
    if (caption == Caption::Inside) {
        auto *label = plainLabel(localized("&Vendor"));
        label->setProperty("look", u"caption"_s);
        label->setBuddy(m_field);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setContentsMargins(isMirrored ? 0 : inset, 0, isMirrored ? inset : 0, 0);
        grid->addWidget(label, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
        before = label->sizeHint().width() - Theme::unit / 2;
    }
    const int after = m_toggle->sizeHint().width() - Theme::unit / 2;
    m_field->setTextMargins(isMirrored ? after : before, 0, isMirrored ? before : after, 0);
    // What stands there unless somebody chooses is always legible.
    const int usual = m_field->fontMetrics().horizontalAdvance(localized("Random Address"));
    m_field->setMinimumWidth(before + usual + after + 2 * inset + Theme::unit / 2);
}

void VendorChooser::makeField()
{
    m_field->setObjectName(u"vendorTextfield"_s);
    m_field->setProperty("look", u"field"_s);
    m_field->setAccessibleName(localized("Vendor of random addresses"));
    m_field->installEventFilter(this);
}

void VendorChooser::makeToggle(const Theme &theme)
{
    m_toggle->setObjectName(u"vendorToggle"_s);
    m_toggle->setProperty("look", u"row"_s);
    m_toggle->setIcon(theme.icon(u"expand"_s, Theme::Ink::Muted));
    m_toggle->setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    // The keyboard opens the list from the field.
    m_toggle->setFocusPolicy(Qt::NoFocus);
    m_toggle->setCursor(Qt::ArrowCursor);
}

void VendorChooser::connectModel()
{
    connect(&m_model, &VendorFieldModel::changed, this, &VendorChooser::refresh);
    connect(&m_model, &VendorFieldModel::rowsChanged, this, &VendorChooser::refresh);
    connect(&m_model, &VendorFieldModel::openedByTyping, this, [this] {
        m_field->selectAll();
        m_field->end(false);
    });
    connect(&m_model, &VendorFieldModel::listEntered, this, [this] {
        if (isListOpen()) {
            m_table->setFocus();
        }
    });
    connect(m_field, &QLineEdit::textEdited, this, [this](const QString &typed) {
        m_text = typed;
        m_model.controlTextDidChange(typed);
    });
    connect(m_toggle, &QToolButton::clicked, this, [this] { m_model.toggleVendorViewPopover(); });
}

void VendorChooser::refresh()
{
    const auto &state = m_model.state();
    // By the text that it stands for: what is shown of a name may differ, and what the user typed
    // stays as it is.
    if (m_text != state.text) {
        m_text = state.text;
        m_field->setText(plainEntry(state.text));
        // The beginning of a name says more than its end.
        m_field->setCursorPosition(0);
    }
    m_field->setEnabled(state.enabled);
    m_field->setToolTip(plainToolTip(state.enabled ? state.text : state.whyDisabled));
    m_field->setAccessibleDescription(
        state.enabled ? localized("Type the beginning of a name, then choose from the list")
                      : state.whyDisabled);
    const QString toggles =
        state.popoverShown ? localized("Hide vendors") : localized("Show vendors");
    m_toggle->setAccessibleName(toggles);
    m_toggle->setEnabled(state.enabled);
    m_toggle->setToolTip(plainToolTip(state.enabled ? toggles : state.whyDisabled));
    m_toggle->setAccessibleDescription(state.whyDisabled);
    if (state.popoverShown && !isListOpen()) {
        openList();
    } else if (!state.popoverShown && isListOpen()) {
        hideList();
    }
    if (isListOpen()) {
        placeList();
    }
}

bool VendorChooser::isListOpen() const
{
    return m_table != nullptr && !m_table->isHidden();
}

void VendorChooser::makeList()
{
    m_table = new VendorTableView(m_model, m_theme, window());
    m_table->hide();
    m_table->installEventFilter(this);
    setTabOrder(m_field, m_table);
    window()->installEventFilter(this);
}

void VendorChooser::openList()
{
    if (m_table == nullptr) {
        makeList();
    }
    placeList();
    m_table->show();
    m_table->raise();
}

void VendorChooser::hideList()
{
    if (m_table->hasFocus()) {
        m_field->setFocus();
    }
    m_table->hide();
}

void VendorChooser::placeList()
{
    const QPoint corner = m_field->mapTo(window(), QPoint(0, 0));
    const int below = corner.y() + m_field->height() + Theme::unit / 2;
    const int roomBelow = window()->height() - below - Theme::unit;
    const int roomAbove = corner.y() - Theme::unit / 2 - Theme::unit;
    const int wanted = m_table->sizeHint().height();
    const bool isBelow = roomBelow >= wanted / 2 || roomBelow >= roomAbove;
    const int height = std::min(wanted, isBelow ? roomBelow : roomAbove);
    const int top = isBelow ? below : corner.y() - Theme::unit / 2 - height;
    m_table->setGeometry(corner.x(), top, m_field->width(), height);
}

void VendorChooser::moveEvent(QMoveEvent *event)
{
    QFrame::moveEvent(event);
    if (isListOpen()) {
        placeList();
    }
}

bool VendorChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        return takesKey(watched, static_cast<QKeyEvent *>(event)->key());
    }
    if (event->type() == QEvent::FocusOut) {
        // Who has the keyboard next is known only after this event.
        QMetaObject::invokeMethod(this, &VendorChooser::closeWhenLeft, Qt::QueuedConnection);
    } else if (watched == window() &&
               (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Hide)) {
        m_model.giveUpTyping();
    }
    return QFrame::eventFilter(watched, event);
}

bool VendorChooser::takesKey(QObject *watched, int key)
{
    using Command = VendorFieldModel::Command;
    const bool inField = watched == m_field;
    const bool isInUse = m_model.state().popoverShown || m_model.isTyping();
    if (key == Qt::Key_Escape && isInUse && (inField || watched == m_table)) {
        m_model.giveUpTyping();
        return true;
    }
    return inField && m_model.controlDoCommandBySelector(
                          key == Qt::Key_Down ? Command::MoveDown : Command::Other);
}

void VendorChooser::closeWhenLeft()
{
    const QWidget *focus = QApplication::focusWidget();
    if (focus == nullptr || focus == m_field || focus == m_table) {
        return;
    }
    if (focus->window() == window()) {
        m_model.giveUpTyping();
    } else {
        // Whoever comes back to this window goes on typing.
        m_model.closeVendorViewPopover();
    }
}

} // namespace quillon
