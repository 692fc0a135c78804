// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/TokenScrollArea.h"

#include "presentation/networks/TokenFieldLayout.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Token.h"
#include "ui/widgets/TokenField.h"

#include <QEvent>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int wholeLines = 7;
constexpr int lineHeight = Token::pillHeight + Theme::unit;
/// A line more would be seen to its half.
constexpr int tallest =
    RevealingScrollArea::ringRoom + wholeLines * lineHeight + Token::pillHeight / 2;

/// What scrolls: the field, with room for the ring around a token.
class TokenDocument : public QWidget
{
public:
    explicit TokenDocument(TokenField *tokens)
        : m_tokens(tokens)
    {
        m_tokens->setParent(this);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override
    {
        const TokenFieldLayout layout = layoutFor(width);
        return ring +
               static_cast<int>(std::ceil(layout.documentHeight.value_or(layout.frame.height())));
    }
    QSize sizeHint() const override
    {
        const int width = m_tokens->sizeHint().width() + 2 * ring;
        return {width, heightForWidth(width)};
    }
    QSize minimumSizeHint() const override
    {
        return {m_tokens->minimumSizeHint().width() + 2 * ring, 0};
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            updateGeometry();
            fixScroll();
        }
        return QWidget::event(event);
    }
    void resizeEvent(QResizeEvent *) override { fixScroll(); }

private:
    static constexpr int ring = RevealingScrollArea::ringRoom;

    TokenFieldLayout layoutFor(int width) const
    {
        const int inside = width - 2 * ring;
        const int cell = m_tokens->heightForWidth(inside);
        return fixScrollForTokenField(
            QRectF(0, 0, inside, cell), cell, static_cast<int>(m_tokens->entries().size()));
    }
    void fixScroll()
    {
        // Its upper edge stays where it is; what would be below the document cannot be seen.
        const QRectF frame = layoutFor(width()).frame;
        const int height = static_cast<int>(std::min<qreal>(frame.height(), this->height() - ring));
        m_tokens->setGeometry(ring, ring, static_cast<int>(frame.width()), height);
    }

    TokenField *m_tokens;
};

} // namespace

TokenScrollArea::TokenScrollArea(TokenField *tokens, QWidget *parent)
    : ContentScrollArea(new TokenDocument(tokens), tallest, parent)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

} // namespace quillon
