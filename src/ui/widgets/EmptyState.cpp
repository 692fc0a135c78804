// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/EmptyState.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

EmptyState::EmptyState(const Theme &theme, const QString &icon, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_icon(icon)
    , m_sentence(plainLabel())
    , m_button(new QPushButton)
{
    m_sentence->setWordWrap(true);
    m_sentence->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::cardMargin, Theme::cardMargin, Theme::cardMargin, Theme::cardMargin);
    column->setSpacing(Theme::spacing);
    column->addStretch();
    column->addSpacing(Theme::headerIconSize);
    column->addWidget(m_sentence);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(m_button, &QPushButton::clicked, this, &EmptyState::acted);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
    say(QString());
}

void EmptyState::say(const QString &sentence, const QString &action)
{
    m_sentence->setText(plainParagraphs(sentence));
    m_button->setText(plainLine(action));
    m_button->setAccessibleName(plainLine(action));
    m_button->setAccessibleDescription(m_sentence->text());
    m_button->setFocusPolicy(action.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    m_button->setVisible(!action.isEmpty());
}

QString EmptyState::sentence() const
{
    return m_sentence->text();
}

void EmptyState::paintEvent(QPaintEvent *)
{
    constexpr int size = Theme::headerIconSize;
    QPainter painter(this);
    m_theme.icon(m_icon, Theme::Ink::Muted)
        .paint(&painter,
            QRect((width() - size) / 2, m_sentence->y() - Theme::spacing - size, size, size));
}

} // namespace quillon
