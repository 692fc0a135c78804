// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Token.h"

#include "base/Isolates.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int inset = 13;

} // namespace

Token::Token(const QString &title, const QString &text, QWidget *parent)
    : QPushButton(parent)
    , m_text(text)
{
    setProperty("look", u"token"_s);
    setProperty("ringRadius", pillHeight / 2);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setTitle(title);
}

void Token::setTitle(const QString &title)
{
    if (title == m_name && !m_name.isNull()) {
        return;
    }
    m_name = title;
    m_title = plainLine(title);
    setAccessibleName(m_title.isEmpty() ? plainLine(m_text) : m_title);
    showToolTip();
    updateGeometry();
    update();
}

void Token::setWhyNot(const QString &whyNot)
{
    m_whyNot = whyNot;
    setAccessibleDescription(whyNot);
    showToolTip();
}

void Token::showToolTip()
{
    QStringList said{m_name};
    // Its name is not the whole story where it is not what it stands for.
    if (m_name != m_text) {
        said.append(isRightToLeft() ? isolated(m_text) : m_text);
    }
    if (!m_whyNot.isEmpty()) {
        said.append(m_whyNot);
    }
    setToolTip(plainToolTip(said.join(u" · "_s)));
}

QSize Token::sizeHint() const
{
    const int text = std::min(fontMetrics().horizontalAdvance(m_title) + 1, widest);
    return {text + 2 * inset, std::max(pillHeight, fontMetrics().height() + Theme::unit)};
}

QSize Token::minimumSizeHint() const
{
    return {2 * inset + 2 * fontMetrics().averageCharWidth(), sizeHint().height()};
}

void Token::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->position().toPoint();
    QPushButton::mousePressEvent(event);
}

void Token::mouseMoveEvent(QMouseEvent *event)
{
    const int way = (event->position().toPoint() - m_pressed).manhattanLength();
    if ((event->buttons() & Qt::LeftButton) != 0 && way >= QApplication::startDragDistance()) {
        setDown(false);
        drag();
    } else {
        QPushButton::mouseMoveEvent(event);
    }
}

void Token::drag()
{
    auto *content = new QMimeData;
    // As it came: it is not shown.
    content->setData(u"text/plain"_s, m_text.toUtf8());
    // The display's side of a drag does not bear that its drag goes before it: so it belongs to
    // nothing that may go, and lives until Qt is done with it.
    auto *drag = new QDrag(qApp);
    drag->setMimeData(content);
    drag->setPixmap(grab());
    drag->setHotSpot(m_pressed);
    m_isDragged = true;
    // Under Wayland the drag outlives its loop: it has ended when it is gone. Whoever is told may
    // close windows, and is not told in the middle of an end.
    connect(drag, &QObject::destroyed, this, &Token::endDrag, Qt::QueuedConnection);
    Q_EMIT dragBegan();
    drag->exec(Qt::CopyAction);
    // Everything may have happened meanwhile: this token need not be there any more.
}

void Token::endDrag()
{
    m_isDragged = false;
    Q_EMIT dragEnded();
}

void Token::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = fontMetrics().elidedText(m_title, Qt::ElideMiddle, width() - 2 * inset + 2);
    option.text.replace(u'&', u"&&"_s);
    QStylePainter painter(this);
    // It reads in its own direction: an address would be torn apart by that of the window.
    painter.setLayoutDirection(m_title.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace quillon
