// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Toast.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

Toast::Toast(const Theme &theme, Scheduler &scheduler, QWidget *window)
    : QFrame(window)
    , m_theme(theme)
    , m_scheduler(scheduler)
    , m_message(plainLabel())
    , m_undoButton(new QPushButton(localized("Undo")))
{
    setProperty("look", u"toast"_s);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    m_message->setWordWrap(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Theme::cardMargin, Theme::unit, Theme::unit, Theme::unit);
    row->setSpacing(Theme::cardMargin);
    row->addWidget(m_message, 1);
    row->addWidget(m_undoButton, 0, Qt::AlignVCenter);
    connect(m_undoButton, &QPushButton::clicked, this, &Toast::takeBack);
    // Enter and Leave come to this itself; the keyboard goes to its button.
    m_undoButton->installEventFilter(this);
    window->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, const QWidget *now) {
        if (now == m_undoButton) {
            m_before = before;
        }
    });
    hide();
}

Toast::~Toast()
{
    // Its button goes when it is only a widget any more, and the keyboard with it.
    disconnect(qApp, nullptr, this, nullptr);
}

void Toast::say(const QString &message, std::function<void()> undo)
{
    m_undo = std::move(undo);
    m_message->setText(plainParagraphs(message));
    m_undoButton->setVisible(m_undo != nullptr);
    watchKeys(m_undo != nullptr);
    coverOthers();
    place();
    show();
    raise();
    announce(*this, m_message->text());
    waitAnew();
}

void Toast::dismiss()
{
    cancelWait();
    m_undo = nullptr;
    watchKeys(false);
    if (!isHidden()) {
        leave();
        uncoverOther();
    }
}

void Toast::leave()
{
    if (m_undoButton->hasFocus()) {
        returnKeyboard();
    }
    hide();
}

void Toast::coverOthers()
{
    for (Toast *other : parentWidget()->findChildren<Toast *>(Qt::FindDirectChildrenOnly)) {
        if (other != this && !other->isHidden()) {
            other->leave();
            if (!other->m_wait) {
                other->waitAnew();
            }
        }
    }
}

void Toast::uncoverOther()
{
    const auto others = parentWidget()->findChildren<Toast *>(Qt::FindDirectChildrenOnly);
    // The one that was raised last is the last child.
    const auto other = std::find_if(others.crbegin(), others.crend(),
        [this](const Toast *toast) { return toast != this && toast->m_undo; });
    if (other != others.crend()) {
        (*other)->place();
        (*other)->show();
    }
}

bool Toast::canTakeKeyboard(const QWidget *widget) const
{
    return widget != nullptr && widget->window() == window() && !isAncestorOf(widget) &&
           (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
           widget->isEnabled();
}

void Toast::returnKeyboard()
{
    QWidget *wanted = m_before;
    if (!canTakeKeyboard(wanted)) {
        wanted = window();
        do {
            wanted = wanted->nextInFocusChain();
        } while (wanted != window() && !canTakeKeyboard(wanted));
    }
    wanted->setFocus(Qt::OtherFocusReason);
}

QString Toast::message() const
{
    return isHidden() ? QString() : m_message->text();
}

void Toast::takeBack()
{
    const auto undo = std::exchange(m_undo, nullptr);
    dismiss();
    if (undo) {
        undo();
    }
}

void Toast::keepAbove(const QWidget &widget)
{
    m_below = &widget;
}

void Toast::place()
{
    const QWidget &window = *parentWidget();
    const int widest = window.width() - 2 * Theme::windowMargin;
    // On one line where it fits; otherwise over the window's width, on as many as it takes.
    const QMargins margins = layout()->contentsMargins();
    const int button =
        m_undoButton->isHidden() ? 0 : layout()->spacing() + m_undoButton->sizeHint().width();
    const int wanted = margins.left() + margins.right() + button +
                       m_message->fontMetrics().horizontalAdvance(m_message->text()) +
                       2 * Theme::unit;
    const int width = std::min(wanted, widest);
    const int height = layout()->totalHeightForWidth(width);
    const bool isAbove = m_below && m_below->isVisible();
    const int bottom = isAbove ? m_below->mapTo(parentWidget(), QPoint()).y() - Theme::unit
                               : window.height() - Theme::windowMargin;
    setGeometry((window.width() - width) / 2, bottom - height, width, height);
}

void Toast::waitAnew()
{
    cancelWait();
    if (!isLookedAt()) {
        m_wait = m_scheduler.onMainAfter(shownFor, this, [this] {
            m_wait.reset();
            dismiss();
            Q_EMIT expired();
        });
    }
}

void Toast::cancelWait()
{
    if (m_wait) {
        m_scheduler.cancel(*m_wait);
        m_wait.reset();
    }
}

bool Toast::isLookedAt() const
{
    return !isHidden() && (testAttribute(Qt::WA_UnderMouse) || m_undoButton->hasFocus());
}

bool Toast::event(QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool done = QFrame::event(event);
    // Nothing of this is touched after others: one of them deletes it.
    if ((type == QEvent::Enter || type == QEvent::Leave) && isVisible()) {
        waitAnew();
    }
    return done;
}

void Toast::watchKeys(bool watched)
{
    QCoreApplication::instance()->removeEventFilter(this);
    if (watched) {
        // A field of text takes the key for itself before any shortcut has it.
        QCoreApplication::instance()->installEventFilter(this);
    }
}

bool Toast::isUndoKey(const QObject *watched, QEvent &event) const
{
    if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto *widget = qobject_cast<const QWidget *>(watched);
    while (widget != nullptr && widget != parentWidget()) {
        widget = widget->parentWidget();
    }
    return m_undo && widget != nullptr &&
           static_cast<QKeyEvent &>(event).matches(QKeySequence::Undo);
}

bool Toast::eventFilter(QObject *watched, QEvent *event)
{
    if (isUndoKey(watched, *event)) {
        event->accept();
        if (event->type() == QEvent::KeyPress) {
            takeBack();
        }
        return true;
    }
    if (watched == m_undoButton &&
        (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        // It is decided once the button knows it too.
        m_scheduler.onMain(this, [this] {
            if (isVisible()) {
                waitAnew();
            }
        });
    } else if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        place();
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace quillon
