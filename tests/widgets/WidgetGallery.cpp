// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the shared widgets in one window and says on its output what happens to them, a fact a
// line.
//
// usage: quillon-widget-gallery [--dark] [--high-contrast] [--mirrored] [--still]
#include "platform/linux/desktop/DisplayCompositing.h"
#include "platform/qt/QtScheduler.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Badge.h"
#include "ui/widgets/EmptyState.h"
#include "ui/widgets/HeartButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/LiveGraph.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/RowButton.h"
#include "ui/widgets/Strip.h"
#include "ui/widgets/Toast.h"
#include "ui/widgets/ToggleSwitch.h"
#include "ui/widgets/TokenField.h"

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTextStream>
#include <QVBoxLayout>

#include <cmath>

using namespace quillon;
using namespace Qt::StringLiterals;

namespace {

void say(const QString &fact)
{
    QTextStream(stdout) << fact << Qt::endl;
}

QString nameOf(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return widget.accessibleName().isEmpty() && button != nullptr ? button->text()
                                                                  : widget.accessibleName();
}

/// Where everything with a name is: on the screen, or in the window where nobody knows more.
void sayPlaces(const QWidget &root)
{
    for (const QWidget *widget : root.findChildren<QWidget *>()) {
        if (widget->isVisible() && !nameOf(*widget).isEmpty()) {
            const QPoint middle = widget->mapToGlobal(widget->rect().center());
            say(u"at %1 %2 %3"_s.arg(middle.x()).arg(middle.y()).arg(nameOf(*widget)));
        }
    }
}

QFrame *makeCard(QLayout *content)
{
    auto *card = new QFrame;
    card->setProperty("look", u"card"_s);
    card->setLayout(content);
    content->setContentsMargins(Theme::unit, Theme::unit / 2, Theme::unit, Theme::unit / 2);
    content->setSpacing(0);
    return card;
}

/// Tells once how a popover came to be, when it is drawn: then the display has it.
class ShownTeller : public QObject
{
public:
    explicit ShownTeller(Popover &popover)
        : QObject(&popover)
        , m_popover(popover)
    {
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_told) {
            m_told = true;
            say(m_popover.hasArrow() ? u"arrow"_s : u"no arrow"_s);
            sayPlaces(m_popover);
            say(u"shown"_s);
        } else if (event->type() == QEvent::Hide) {
            m_told = false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Popover &m_popover;
    bool m_told = false;
};

/// Tells that the pointer came: then the display has put the window where it stays.
class PointerTeller : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Enter) {
            say(u"pointer on %1"_s.arg(nameOf(*qobject_cast<QWidget *>(watched))));
        }
        return QObject::eventFilter(watched, event);
    }
};

/// A field that takes what is dropped on it, as the window's address field does.
class DropField : public QLineEdit
{
public:
    DropField()
    {
        setProperty("look", u"field"_s);
        setAccessibleName(u"Drop here"_s);
        setAcceptDrops(true);
    }

protected:
    void dragMoveEvent(QDragMoveEvent *event) override
    {
        QLineEdit::dragMoveEvent(event);
        say(u"drag over"_s);
    }
    void dropEvent(QDropEvent *event) override
    {
        setText(event->mimeData()->text());
        event->acceptProposedAction();
        say(u"dropped %1"_s.arg(text()));
    }
};

class Gallery : public QWidget
{
public:
    Gallery(const Theme &theme, Scheduler &scheduler)
        : m_theme(theme)
        , m_toast(new Toast(theme, scheduler, this))
    {
        setWindowTitle(u"Widgets"_s);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(
            Theme::windowMargin, Theme::windowMargin, Theme::windowMargin, Theme::windowMargin);
        column->setSpacing(Theme::spacing);
        addField(*column);
        addRows(*column);
        addSmall(*column);
        addEmpty(*column);
        resize(Theme::windowWidth, column->totalHeightForWidth(Theme::windowWidth));
        setFixedWidth(Theme::windowWidth);
    }

private:
    void addField(QVBoxLayout &column)
    {
        auto *strip = new Strip(m_theme);
        strip->say(
            u"Another rule for this interface and network was switched off: only one can be on."_s);
        column.addWidget(strip);
        column.addWidget(new DropField);
        auto *failed = new InlineLine(m_theme);
        failed->say(u"This is not a MAC address."_s, InlineLine::Kind::Danger);
        column.addWidget(failed);
        auto *notice = new InlineLine(m_theme);
        notice->say(u"Group address: most adapters refuse it."_s, InlineLine::Kind::Notice);
        column.addWidget(notice);
    }

    RowButton *addRow(QVBoxLayout &rows, const QString &label, const QString &value,
        RowButton::ValueLook look = RowButton::ValueLook::Text)
    {
        auto *row = new RowButton(m_theme, label);
        row->setValue(value, look);
        rows.addWidget(row);
        return row;
    }

    void connectPopover(RowButton &row, Popover &popover, const QString &name)
    {
        connect(&row, &RowButton::clicked, this, [&row, &popover] { popover.toggle(row); });
        connect(&popover, &Popover::aboutToShow, this, [name] { say(u"opening "_s + name); });
        popover.installEventFilter(new ShownTeller(popover));
        connect(&popover, &Popover::aboutToClose, this, [name] { say(u"closing "_s + name); });
    }

    void addRows(QVBoxLayout &column)
    {
        auto *rows = new QVBoxLayout;
        auto *hardware = addRow(
            *rows, u"Hardware address"_s, u"00:00:5E:00:53:01"_s, RowButton::ValueLook::Address);
        connect(hardware, &RowButton::clicked, this, [] { say(u"pressed hardware"_s); });
        auto *saved = addRow(*rows, u"Saved addresses"_s, u"Home, Office, Guest"_s);
        auto *vendor = addRow(*rows, u"Vendor"_s, u"No Vendor Information available..."_s,
            RowButton::ValueLook::Muted);
        vendor->setHasPopover(false);
        auto *network = addRow(*rows, u"Network"_s,
            u"A network whose name is so long that it does not fit into any row of any window"_s);
        network->installEventFilter(new PointerTeller(network));
        auto *rules = addRow(*rows, u"Rules"_s, u"Active rule"_s);
        rules->setDot(RowButton::Dot{Theme::Ink::Positive, true});
        column.addWidget(makeCard(rows));
        connectPopover(*saved, *makeSaved(), u"saved"_s);
        connectPopover(*network, *makeNetwork(), u"network"_s);
        connect(rules, &RowButton::clicked, this,
            [this] { m_toast->say(u"Rule deleted"_s, [] { say(u"undone"_s); }); });
    }

    Popover *makeSaved()
    {
        auto *content = new QWidget;
        auto *column = new QVBoxLayout(content);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(Theme::spacing);
        auto *head = new QHBoxLayout;
        auto *title = plainLabel(u"Saved addresses"_s);
        title->setFont(Theme::font(Theme::Type::Head));
        auto *heart = new HeartButton(m_theme);
        heart->setFavorite(true, u"Remove Address from Favorites"_s);
        connect(heart, &QToolButton::clicked, this, [heart] {
            heart->setFavorite(!heart->isFavorite(), heart->isFavorite()
                                                         ? u"Add Address to Favorites"_s
                                                         : u"Remove Address from Favorites"_s);
            say(u"heart %1"_s.arg(heart->isFavorite()));
        });
        head->addWidget(title, 1);
        head->addWidget(heart);
        column->addLayout(head);
        auto *tokens = new TokenField;
        tokens->setEntries({{u"Home"_s, u"02:00:00:00:00:01"_s},
            {u"Office"_s, u"02:00:00:00:00:02"_s}, {u"Guest lab"_s, u"02:00:00:00:00:03"_s},
            {u"00:16:CB:7A:10:02"_s, u"00:16:CB:7A:10:02"_s}});
        column->addWidget(tokens);
        auto *hint = plainLabel(u"Click to put one into the field, or drag it there."_s);
        hint->setProperty("look", u"caption"_s);
        hint->setWordWrap(true);
        column->addWidget(hint);
        auto *edit = new QPushButton(u"Edit Saved Items"_s);
        edit->setProperty("look", u"quiet"_s);
        column->addWidget(edit, 0, Qt::AlignLeading);
        auto *popover = new Popover(m_theme, content, this);
        connect(tokens, &TokenField::activated, this,
            [](int index) { say(u"activated %1"_s.arg(index)); });
        connect(tokens, &TokenField::dragBegan, popover, &Popover::stepAside);
        // In the middle of the drag, whichever token is dragged.
        connect(
            tokens, &TokenField::dragBegan, tokens,
            [tokens] {
                auto entries = tokens->entries();
                entries.removeIf([](const auto &entry) { return entry.title == u"Guest lab"_s; });
                tokens->setEntries(entries);
                say(u"entry gone"_s);
            },
            Qt::QueuedConnection);
        connect(tokens, &TokenField::dragEnded, popover, &Popover::close);
        connect(tokens, &TokenField::dragEnded, this, [] { say(u"drag ended"_s); });
        return popover;
    }

    Popover *makeNetwork()
    {
        auto *content = new QWidget;
        auto *column = new QVBoxLayout(content);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(Theme::spacing);
        auto *title = plainLabel(u"Harbor Café"_s);
        title->setFont(Theme::font(Theme::Type::Head));
        column->addWidget(title);
        auto *graph = new LiveGraph(m_theme);
        for (int second = 0; second <= 240; second += 3) {
            graph->add({std::chrono::seconds(second), -54 + int(6 * std::sin(second / 20.0)),
                -92 + second % 2});
        }
        column->addWidget(graph);
        auto *popover = new Popover(m_theme, content, this);
        popover->setBodyWidth(330);
        return popover;
    }

    void addSmall(QVBoxLayout &column)
    {
        auto *line = new QHBoxLayout;
        line->setSpacing(Theme::unit);
        line->addWidget(new Badge(m_theme, u"Changed"_s));
        line->addWidget(new Badge(m_theme, u"Hardware"_s, Badge::Tone::Neutral));
        auto *off = new ToggleSwitch(m_theme);
        off->setAccessibleName(u"Rule one"_s);
        auto *on = new ToggleSwitch(m_theme);
        on->setAccessibleName(u"Rule two"_s);
        on->setChecked(true);
        auto *disabled = new ToggleSwitch(m_theme);
        disabled->setAccessibleName(u"Rule three"_s);
        disabled->setEnabled(false);
        for (auto *toggle : {off, on, disabled}) {
            line->addWidget(toggle);
        }
        line->addWidget(new HeartButton(m_theme));
        line->addStretch();
        column.addLayout(line);
        auto *buttons = new QHBoxLayout;
        for (const char *look : {"primary", "", "quiet", "danger"}) {
            auto *button =
                new QPushButton(look[0] == 0 ? u"Secondary"_s : QString::fromLatin1(look));
            button->setProperty("look", QString::fromLatin1(look));
            buttons->addWidget(button);
        }
        auto *grey = new QPushButton(u"Apply"_s);
        grey->setEnabled(false);
        buttons->addWidget(grey);
        column.addLayout(buttons);
    }

    void addEmpty(QVBoxLayout &column)
    {
        auto *inside = new QVBoxLayout;
        auto *empty = new EmptyState(m_theme, u"search"_s);
        empty->say(u"Nothing contains “xyz”. Upper and lower case matter."_s, u"Clear Search"_s);
        inside->addWidget(empty);
        column.addWidget(makeCard(inside));
    }

    const Theme &m_theme;
    Toast *m_toast;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList options = QApplication::arguments();
    Theme theme(options.contains(u"--dark"_s) ? ColorScheme::Dark : ColorScheme::Light);
    const DisplayCompositing compositing;
    theme.setCompositing(compositing);
    theme.setAnimated(!options.contains(u"--still"_s));
    theme.apply();
    if (options.contains(u"--high-contrast"_s)) {
        theme.setContrast(Contrast::High);
    }
    if (options.contains(u"--mirrored"_s)) {
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
    QtScheduler scheduler;
    Gallery gallery(theme, scheduler);
    QObject::connect(
        &application, &QApplication::focusChanged, &gallery, [](QWidget *, QWidget *now) {
            say(u"focus %1"_s.arg(now == nullptr ? QString() : nameOf(*now)));
        });
    gallery.show();
    gallery.activateWindow();
    // Once the window manager has put it where it stays.
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &gallery,
        [&gallery](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive) {
                sayPlaces(gallery);
                say(u"ready"_s);
            }
        });
    return QApplication::exec();
}
