// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/TokenField.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/FlowLayout.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Token.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

TokenField::TokenField(QWidget *parent)
    : QWidget(parent)
    , m_flow(new FlowLayout(this, Theme::unit))
    , m_empty(plainLabel())
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleRole(*this, QAccessible::List);
    m_empty->setProperty("look", u"caption"_s);
    m_empty->setWordWrap(true);
    m_empty->setParent(this);
    m_empty->hide();
}

void TokenField::setEntries(const QList<Entry> &entries)
{
    if (entries == m_entries) {
        return;
    }
    const bool hadFocus = std::any_of(
        m_tokens.cbegin(), m_tokens.cend(), [](const Token *token) { return token->hasFocus(); });
    const Token *const current = m_tokens.value(m_current);
    while (QLayoutItem *item = m_flow->takeAt(0)) {
        delete item;
    }
    QList<Token *> gone = std::exchange(m_tokens, {});
    m_entries = entries;
    for (const Entry &entry : m_entries) {
        m_tokens.append(takeOrMake(gone, entry));
        m_flow->addWidget(m_tokens.back());
    }
    const qsizetype again = m_tokens.indexOf(current);
    const qsizetype last = m_tokens.size() - 1;
    makeCurrent(again >= 0 ? again : std::max<qsizetype>(0, std::min(m_current, last)));
    for (Token *token : std::as_const(gone)) {
        letGo(*token);
    }
    // The order begins at the label, which counts only while it takes the keyboard itself.
    m_empty->setFocusPolicy(Qt::TabFocus);
    QWidget *before = m_empty;
    for (Token *token : m_tokens) {
        token->show();
        setTabOrder(before, token);
        before = token;
    }
    m_empty->setFocusPolicy(Qt::NoFocus);
    if (hadFocus && !m_tokens.isEmpty()) {
        m_tokens[m_current]->setFocus();
    }
    setEmptyText(m_empty->text());
}

void TokenField::letGo(Token &token)
{
    token.hide();
    if (token.isDragged()) {
        connect(&token, &Token::dragEnded, &token, &QObject::deleteLater);
    } else {
        // It may be in the middle of its own click.
        token.deleteLater();
    }
}

void TokenField::setWhyNot(const QString &whyNot)
{
    m_whyNot = whyNot;
    for (Token *token : std::as_const(m_tokens)) {
        token->setWhyNot(whyNot);
    }
}

void TokenField::setEmptyText(const QString &text)
{
    m_empty->setText(plainParagraphs(text));
    const bool isShown = m_tokens.isEmpty() && !text.isEmpty();
    if (isShown && m_flow->count() == 0) {
        m_flow->addWidget(m_empty);
    } else if (!isShown) {
        m_flow->removeWidget(m_empty);
    }
    m_empty->setVisible(isShown);
    updateGeometry();
}

QWidget *TokenField::token(int index) const
{
    return m_tokens.value(index);
}

QSize TokenField::sizeHint() const
{
    return m_flow->sizeHint();
}

int TokenField::heightForWidth(int width) const
{
    return m_tokens.isEmpty() ? m_empty->heightForWidth(width) : m_flow->heightForWidth(width);
}

Token *TokenField::takeOrMake(QList<Token *> &from, const Entry &entry)
{
    const auto same = std::ranges::find(from, entry.text, &Token::text);
    if (same == from.end()) {
        return makeToken(entry);
    }
    Token *const token = *same;
    from.erase(same);
    token->setTitle(entry.title);
    return token;
}

Token *TokenField::makeToken(const Entry &entry)
{
    auto *token = new Token(entry.title, entry.text, this);
    token->setWhyNot(m_whyNot);
    token->installEventFilter(this);
    connect(token, &Token::clicked, this,
        [this, token] { Q_EMIT activated(static_cast<int>(m_tokens.indexOf(token))); });
    connect(token, &Token::dragBegan, this, &TokenField::dragBegan);
    connect(token, &Token::dragEnded, this, &TokenField::dragEnded);
    return token;
}

void TokenField::moveTo(qsizetype index)
{
    if (index >= 0 && index < m_tokens.size()) {
        m_tokens[index]->setFocus(Qt::TabFocusReason);
    }
}

void TokenField::makeCurrent(qsizetype index)
{
    m_current = index;
    for (qsizetype other = 0; other < m_tokens.size(); ++other) {
        // The others are for the arrow keys and the pointer.
        m_tokens[other]->setFocusPolicy(other == index ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

bool TokenField::handleKey(qsizetype index, int key)
{
    const int forward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    const int backward = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    if (key == forward || key == Qt::Key_Down) {
        moveTo(index + 1);
    } else if (key == backward || key == Qt::Key_Up) {
        moveTo(index - 1);
    } else if (key == Qt::Key_Home) {
        moveTo(0);
    } else if (key == Qt::Key_End) {
        moveTo(m_tokens.size() - 1);
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        m_tokens[index]->click();
    } else if (key == Qt::Key_F2) {
        Q_EMIT opened(static_cast<int>(index));
    } else {
        return false;
    }
    return true;
}

bool TokenField::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::FocusIn && type != QEvent::ContextMenu) {
        // Of each of thousands there is much to tell: it is not looked up for that.
        return QWidget::eventFilter(watched, event);
    }
    // A token tells of its own end when it is only a widget any more: compared as objects.
    const qsizetype index = m_tokens.indexOf(watched);
    if (index < 0) {
        return QWidget::eventFilter(watched, event);
    }
    if (type == QEvent::KeyPress) {
        return handleKey(index, static_cast<QKeyEvent *>(event)->key());
    }
    if (type == QEvent::FocusIn) {
        makeCurrent(index);
        return false;
    }
    Q_EMIT opened(static_cast<int>(index));
    return true;
}

} // namespace quillon
