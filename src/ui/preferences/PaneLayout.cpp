// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/PaneLayout.h"

#include "presentation/preferences/PreferencesLine.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Of a check box (theme.qss): its box with its edge, and the gap.
constexpr int checkBoxInset = 18 + Theme::unit;

InlineLine::Kind kindOf(PreferencesLine::Kind kind)
{
    switch (kind) {
    case PreferencesLine::Kind::Hint:
        return InlineLine::Kind::Muted;
    case PreferencesLine::Kind::Notice:
        return InlineLine::Kind::Notice;
    case PreferencesLine::Kind::Failure:
        return InlineLine::Kind::Danger;
    }
    Q_UNREACHABLE();
}

} // namespace

QVBoxLayout *makePaneColumn(QWidget &pane)
{
    auto *whole = new QVBoxLayout(&pane);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::spacing);
    whole->addLayout(column);
    whole->addStretch(1);
    return column;
}

QVBoxLayout *addCard(QVBoxLayout &pane, const QString &title)
{
    auto *card = new QFrame;
    card->setProperty("look", u"card"_s);
    auto *column = new QVBoxLayout(card);
    column->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMarginTop);
    column->setSpacing(Theme::unit);
    if (!title.isEmpty()) {
        auto *head = plainLabel(title);
        head->setProperty("look", u"head"_s);
        head->setFont(Theme::font(Theme::Type::Strong));
        column->addWidget(head);
    }
    pane.addWidget(card);
    return column;
}

void addUnderCheckBox(QVBoxLayout &card, QWidget *line)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacing(checkBoxInset);
    row->addWidget(line, 1);
    card.addLayout(row);
}

void sayLine(InlineLine &line, const PreferencesLine &what)
{
    line.say(what.text, kindOf(what.kind));
    line.setVisible(!what.text.isEmpty());
}

} // namespace quillon
