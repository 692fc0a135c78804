// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Strip.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int inset = Theme::unit + 4;

} // namespace

Strip::Strip(const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_theme(theme)
    , m_sentence(plainLabel())
    , m_button(new QPushButton)
    , m_cross(new QToolButton)
{
    setProperty("look", u"strip"_s);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    m_sentence->setWordWrap(true);
    m_cross->setIcon(theme.icon(u"close"_s, Theme::Ink::Notice));
    m_cross->setIconSize(QSize(Theme::inlineIconSize, Theme::inlineIconSize));
    m_cross->setFixedSize(Theme::target, Theme::target);
    m_cross->setFocusPolicy(Qt::StrongFocus);
    m_cross->setAccessibleName(localized("Close"));
    m_cross->setToolTip(plainToolTip(localized("Close")));

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Theme::unit, Theme::unit, Theme::unit, Theme::unit);
    row->setSpacing(Theme::unit);
    row->addSpacing(inset + Theme::iconSize);
    row->addWidget(m_sentence, 1);
    row->addWidget(m_button, 0, Qt::AlignVCenter);
    row->addWidget(m_cross, 0, Qt::AlignVCenter);
    connect(m_button, &QPushButton::clicked, this, &Strip::acted);
    connect(m_cross, &QToolButton::clicked, this, [this] {
        hide();
        Q_EMIT dismissed();
    });
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
    clear();
}

void Strip::say(const QString &sentence, const QString &action)
{
    const QString text = plainParagraphs(sentence);
    const bool isNew = isHidden() || text != m_sentence->text();
    m_sentence->setText(plainParagraphs(sentence));
    m_button->setText(plainLine(action));
    m_button->setVisible(!action.isEmpty());
    m_cross->setVisible(action.isEmpty());
    show();
    if (isNew) {
        announce(*this, text);
    }
}

void Strip::clear()
{
    m_sentence->clear();
    hide();
}

QString Strip::sentence() const
{
    return m_sentence->text();
}

void Strip::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect sign(inset, (height() - Theme::iconSize) / 2, Theme::iconSize, Theme::iconSize);
    m_theme.icon(u"warning"_s, Theme::Ink::Notice)
        .paint(&painter, QStyle::visualRect(layoutDirection(), rect(), sign));
}

} // namespace quillon
