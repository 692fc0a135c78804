// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/InlineLine.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString lookOf(InlineLine::Kind kind)
{
    switch (kind) {
    case InlineLine::Kind::Muted:
        return u"caption"_s;
    case InlineLine::Kind::Positive:
        return u"positive"_s;
    case InlineLine::Kind::Notice:
        return u"noticeLine"_s;
    case InlineLine::Kind::Danger:
        return u"danger"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

InlineLine::InlineLine(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_text(plainLabel())
{
    m_text->setFont(Theme::font(Theme::Type::Caption));
    m_text->setWordWrap(true);
    m_text->setMinimumHeight(QFontMetrics(m_text->font()).lineSpacing());
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text, 1);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
    say(QString());
}

void InlineLine::say(const QString &text, Kind kind)
{
    const bool isNew = plainParagraphs(text) != m_said;
    m_kind = kind;
    m_said = plainParagraphs(text);
    showBroken(*m_text, m_said);
    m_text->setProperty("look", lookOf(kind));
    m_text->style()->unpolish(m_text);
    m_text->style()->polish(m_text);
    makeRoom();
    if (isNew && kind != Kind::Muted) {
        announce(*m_text, m_said);
    }
}

QString InlineLine::text() const
{
    return m_said;
}

bool InlineLine::hasSign() const
{
    return (m_kind == Kind::Notice || m_kind == Kind::Danger) && !m_said.isEmpty();
}

void InlineLine::makeRoom()
{
    // The sign is as tall as a line of the text.
    const int room = hasSign() ? QFontMetrics(m_text->font()).lineSpacing() + Theme::unit / 2 : 0;
    const bool mirrored = isRightToLeft();
    layout()->setContentsMargins(mirrored ? 0 : room, 0, mirrored ? room : 0, 0);
    // On its own it would stand where a text of its language begins, away from the sign.
    m_text->setAlignment(
        Qt::AlignAbsolute | Qt::AlignTop | (mirrored ? Qt::AlignRight : Qt::AlignLeft));
    update();
}

void InlineLine::paintEvent(QPaintEvent *)
{
    if (!hasSign()) {
        return;
    }
    // Not a label: it would be a nameless picture to assistive technology.
    const Theme::Ink ink = m_kind == Kind::Danger ? Theme::Ink::Danger : Theme::Ink::Notice;
    const int size = QFontMetrics(m_text->font()).lineSpacing();
    QPainter painter(this);
    m_theme.icon(u"warning"_s, ink)
        .paint(&painter, QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, size, size)));
}

void InlineLine::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        makeRoom();
    }
}

} // namespace quillon
