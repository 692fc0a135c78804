// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>

class QLabel;

namespace quillon {

class FlowLayout;
class Token;

/// What is saved, as pills in lines: addresses or networks. It is one stop for Tab; the arrow keys,
/// Home and End move within it. A click, Return or Space acts on a token; F2 and the context menu's
/// key open it, where opening is something else. A token is dragged as plain text.
class TokenField : public QWidget
{
    Q_OBJECT

public:
    struct Entry
    {
        QString title;
        QString text; ///< what it stands for, and is dragged as

        bool operator==(const Entry &) const = default;
    };

    explicit TokenField(QWidget *parent = nullptr);

    /// A token whose entry stands for the same text stays, with its new title: it keeps the
    /// keyboard and what is open beside it.
    void setEntries(const QList<Entry> &entries);
    const QList<Entry> &entries() const { return m_entries; }
    /// Why a click on any of them does nothing now; "" where it does what it should.
    void setWhyNot(const QString &whyNot);
    /// Said while there are none.
    void setEmptyText(const QString &text);
    /// The token at `index`, for a popover beside it; null where there is none.
    QWidget *token(int index) const;

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void activated(int index);
    void opened(int index);
    /// A drag begins: whatever lies over what it may be dropped on goes out of its way. Then it has
    /// ended, with or without a drop.
    void dragBegan();
    void dragEnded();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Token *takeOrMake(QList<Token *> &from, const Entry &entry);
    Token *makeToken(const Entry &entry);
    /// Its entry is gone: it goes as well, as soon as nothing needs it any more.
    static void letGo(Token &token);
    void moveTo(qsizetype index);
    /// The one that Tab comes to.
    void makeCurrent(qsizetype index);
    bool handleKey(qsizetype index, int key);

    FlowLayout *m_flow;
    QLabel *m_empty;
    QList<Entry> m_entries;
    QString m_whyNot;
    QList<Token *> m_tokens;
    qsizetype m_current = 0;
};

} // namespace quillon
