// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/BusyButton.h"

#include "ui/widgets/PlainText.h"

#include <QAccessibleWidget>
#include <QIconEngine>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QVariantAnimation>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr int wholeTurn = 360;
constexpr std::chrono::milliseconds turnTime{900};
constexpr int shownArc = 100; ///< degrees of the ring that are drawn in full
constexpr qreal thickness = 0.12;
constexpr float faded = 0.3F;
/// What Qt puts between picture and text.
constexpr int iconGap = 4;

/// The ring, as it stands at the moment.
class RingIcon : public QIconEngine
{
public:
    RingIcon(const Theme &theme, Theme::Ink ink, std::shared_ptr<qreal> turned)
        : m_theme(theme)
        , m_ink(ink)
        , m_turned(std::move(turned))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        const qreal line = rect.height() * thickness;
        const QRectF ring = QRectF(rect).adjusted(line, line, -line, -line);
        constexpr int units = 16; // that Qt divides a degree into
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        QColor color = m_theme.ink(m_ink);
        color.setAlphaF(faded);
        painter->setPen(QPen(color, line));
        painter->drawEllipse(ring);
        painter->setPen(QPen(m_theme.ink(m_ink), line, Qt::SolidLine, Qt::RoundCap));
        painter->drawArc(
            ring, static_cast<int>((wholeTurn / 4.0 - *m_turned) * units), -shownArc * units);
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }
    QIconEngine *clone() const override { return new RingIcon(*this); }

private:
    const Theme &m_theme;
    Theme::Ink m_ink;
    std::shared_ptr<qreal> m_turned;
};

/// A button that is busy can have the keyboard and yet not be pressed.
class AccessibleBusyButton : public QAccessibleWidget
{
public:
    explicit AccessibleBusyButton(BusyButton *button)
        : QAccessibleWidget(button, QAccessible::Button)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = isBusy();
        state.disabled = state.disabled || !canBePressed();
        return state;
    }
    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() && button() != nullptr
                   ? button()->text().remove(u'&')
                   : text;
    }
    QStringList actionNames() const override
    {
        const QStringList names = QAccessibleWidget::actionNames();
        return canBePressed() ? QStringList{pressAction()} + names : names;
    }
    void doAction(const QString &name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
        } else if (canBePressed()) {
            button()->click();
        }
    }

private:
    /// None while only a part of it is left.
    BusyButton *button() const { return qobject_cast<BusyButton *>(object()); }
    bool isBusy() const { return button() != nullptr && button()->isBusy(); }
    bool canBePressed() const { return button() != nullptr && button()->isUsable() && !isBusy(); }
};

QAccessibleInterface *accessibleButton(const QString &, QObject *object)
{
    auto *button = qobject_cast<BusyButton *>(object);
    return button == nullptr ? nullptr : new AccessibleBusyButton(button);
}

} // namespace

BusyButton::BusyButton(const Theme &theme, Theme::Ink ink, const QString &text, QWidget *parent)
    : QPushButton(text, parent)
    , m_theme(theme)
    , m_motion(new QVariantAnimation(this))
    , m_turned(std::make_shared<qreal>(0))
    , m_busy{{}, QIcon(new RingIcon(theme, ink, m_turned))}
{
    // The same function is installed once only.
    QAccessible::installFactory(accessibleButton);
    setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    m_motion->setStartValue(0.0);
    m_motion->setEndValue(qreal(wholeTurn));
    m_motion->setLoopCount(-1);
    connect(m_motion, &QVariantAnimation::valueChanged, this, [this](const QVariant &degrees) {
        *m_turned = degrees.toReal();
        update();
    });
}

void BusyButton::setBusyText(const QString &text)
{
    m_busy.text = text;
    updateGeometry();
}

void BusyButton::setBusy(bool busy)
{
    if (busy == m_isBusy) {
        return;
    }
    m_isBusy = busy;
    if (busy) {
        m_idle = {text(), icon()};
        m_idleName = accessibleName();
        setDown(false);
    }
    const Face &face = busy ? m_busy : m_idle;
    setText(plainLine(face.text));
    setIcon(face.icon);
    setAccessibleName(busy ? (m_busyName.isEmpty() ? m_busy.text : m_busyName) : m_idleName);
    QAccessible::State changed;
    changed.busy = true;
    changed.disabled = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    turn();
}

void BusyButton::setUsable(bool usable)
{
    const bool wasUsable = isUsable();
    const bool hasKeyboard = isVisible() && window()->focusWidget() == this;
    m_isRefusing = !usable && hasKeyboard && (isEnabled() || m_isRefusing);
    setEnabled(usable || m_isRefusing);
    if (m_isRefusing) {
        setDown(false);
    }
    if (isUsable() == wasUsable) {
        return;
    }
    update();
    QAccessible::State changed;
    changed.disabled = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

int BusyButton::widthOf(const Face &face) const
{
    const int words =
        face.text.isEmpty() ? 0 : fontMetrics().size(Qt::TextShowMnemonic, face.text).width();
    return words + (face.icon.isNull() ? 0 : iconSize().width() + iconGap);
}

QSize BusyButton::sizeHint() const
{
    const Face now{text(), icon()};
    const Face other = m_isBusy ? m_idle : m_busy;
    QSize size = QPushButton::sizeHint();
    size.rwidth() += std::max(0, widthOf(other) - widthOf(now));
    return size;
}

void BusyButton::turn()
{
    const int duration = m_isBusy && isVisible() ? m_theme.motion(turnTime) : 0;
    m_motion->stop();
    if (duration > 0) {
        m_motion->setDuration(duration);
        m_motion->start();
    }
}

void BusyButton::mousePressEvent(QMouseEvent *event)
{
    if (takesPresses()) {
        QPushButton::mousePressEvent(event);
    }
}

void BusyButton::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool presses = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter ||
                         key == Qt::Key_Select;
    if (takesPresses() || !presses) {
        QPushButton::keyPressEvent(event);
    }
}

bool BusyButton::event(QEvent *event)
{
    // Its letter with Alt presses it, too.
    const bool isRefused = event->type() == QEvent::Shortcut && !takesPresses();
    return isRefused || QPushButton::event(event);
}

void BusyButton::focusOutEvent(QFocusEvent *event)
{
    QPushButton::focusOutEvent(event);
    // A popup or another window takes it for a while only.
    if (window()->focusWidget() != this) {
        stopRefusing();
    }
}

void BusyButton::stopRefusing()
{
    if (std::exchange(m_isRefusing, false)) {
        setEnabled(false);
    }
}

void BusyButton::initStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    if (m_isRefusing) {
        option->state &= ~(QStyle::State_Enabled | QStyle::State_MouseOver);
        option->palette.setCurrentColorGroup(QPalette::Disabled);
    }
}

void BusyButton::showEvent(QShowEvent *event)
{
    QPushButton::showEvent(event);
    turn();
}

void BusyButton::hideEvent(QHideEvent *event)
{
    // Nobody sees it turn.
    m_motion->stop();
    stopRefusing();
    QPushButton::hideEvent(event);
}

} // namespace quillon
