// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/CloudFormDialog.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/ContentScrollArea.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualWidth = 440;
constexpr int usualLetters = 54; ///< where letters are larger
constexpr int titleBar = 48;     ///< with the edges that a window manager draws
constexpr int linesBeside = 10;  ///< of text, as high as what stands above and below the form

/// What is left for the form on a low screen, where it scrolls.
int tallestForm(const QScreen &screen)
{
    const int line = QFontMetrics(Theme::font(Theme::Type::Body)).lineSpacing();
    const int rest = screen.availableSize().height() - titleBar - 2 * Theme::windowMargin -
                     3 * Theme::spacing - linesBeside * line;
    return std::max(rest, 2 * Theme::tallRowHeight);
}

} // namespace

CloudFormDialog::CloudFormDialog(const Theme &theme, const QString &confirm, QWidget *parent)
    : QDialog(parent)
    , m_line(new InlineLine(theme))
    , m_confirm(new BusyButton(theme, Theme::Ink::OnAccent, confirm))
    , m_cancel(new QPushButton(localized("Cancel")))
{
    setWindowModality(Qt::WindowModal);
    m_cancel->setAccessibleName(m_cancel->text());
    m_cancel->setToolTip(plainToolTip(localized("Gives up what is under way, or closes")));
    m_confirm->setProperty("look", u"primary"_s);
    m_confirm->setAccessibleName(confirm);
    m_confirm->setDefault(true);
    m_confirm->installEventFilter(new ClicksOnce(m_confirm));
    m_cancel->installEventFilter(new ClicksOnce(m_cancel));
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void CloudFormDialog::arrange(QWidget *above, QWidget *form)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::windowMargin, Theme::windowMargin, Theme::windowMargin, Theme::windowMargin);
    column->setSpacing(Theme::spacing);
    if (above != nullptr) {
        column->addWidget(above);
    }
    column->addWidget(new ContentScrollArea(form, tallestForm(*screen())), 1);
    column->addWidget(m_line);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::unit);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_confirm);
    column->addLayout(buttons);
    const QFontMetrics letters(Theme::font(Theme::Type::Body));
    const int wanted = std::max(usualWidth, usualLetters * letters.averageCharWidth());
    setMinimumWidth(std::min(wanted, screen()->availableSize().width()));
}

QVBoxLayout *CloudFormDialog::makePart()
{
    auto *column = new QVBoxLayout(new QWidget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    return column;
}

QVBoxLayout *CloudFormDialog::columnOf(QWidget *form)
{
    auto *column = new QVBoxLayout(form);
    column->setContentsMargins(RevealingScrollArea::ringRoom, RevealingScrollArea::ringRoom,
        RevealingScrollArea::ringRoom, RevealingScrollArea::ringRoom);
    column->setSpacing(Theme::spacing);
    return column;
}

QLineEdit *CloudFormDialog::makeEntry(const QString &caption, const QString &tip)
{
    auto *entry = new QLineEdit;
    entry->setProperty("look", u"field"_s);
    entry->setAccessibleName(caption);
    entry->setAccessibleDescription(tip);
    entry->setToolTip(plainToolTip(tip));
    // One that is hidden at first has its height all the same.
    entry->ensurePolished();
    return entry;
}

QLabel *CloudFormDialog::labelOf(QLineEdit *entry)
{
    auto *label = plainLabel(entry->accessibleName());
    label->setProperty("look", u"caption"_s);
    label->setBuddy(entry);
    return label;
}

void CloudFormDialog::addHint(QVBoxLayout &column, const QString &text)
{
    auto *hint = plainLabel(text);
    hint->setProperty("look", u"caption"_s);
    hint->setFont(Theme::font(Theme::Type::Caption));
    hint->setWordWrap(true);
    column.addWidget(hint);
}

void CloudFormDialog::replaceText(QLineEdit &field, const QString &text)
{
    field.selectAll();
    field.insert(text);
}

void CloudFormDialog::fit()
{
    const int tallest = screen()->availableSize().height() - titleBar;
    resize(width(), std::min(layout()->totalHeightForWidth(width()), tallest));
    // Grown by a question, it must not lie with its buttons below the screen.
    const QRect free = screen()->availableGeometry();
    const int beyond = frameGeometry().bottom() - free.bottom();
    if (isVisible() && beyond > 0) {
        move(x(), std::max(free.top(), y() - beyond));
    }
}

bool CloudFormDialog::event(QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isTaken = QDialog::event(event);
    // Nothing of this is touched after others: one of them deletes it.
    if ((type == QEvent::LayoutRequest || type == QEvent::Show) && layout() != nullptr) {
        fit();
    }
    return isTaken;
}

void CloudFormDialog::keyPressEvent(QKeyEvent *event)
{
    // Held, it would give up the attempt first and the dialog then.
    if (event->key() != Qt::Key_Escape || !event->isAutoRepeat()) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quillon
