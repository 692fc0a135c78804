// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Token.h"

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

constexpr int pillHeight = 26;
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
        said.append(m_text);
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
    auto *drag = new QDrag(this);
    drag->setMimeData(content);
    drag->setPixmap(grab());
    drag->setHotSpot(m_pressed);
    Q_EMIT dragBegan(drag);
    drag->exec(Qt::CopyAction);
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
