// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/history/HistoryWindow.h"

#include "base/Localized.h"
#include "presence/Presence.h"
#include "presentation/history/HistoryController.h"
#include "presentation/menu/EditMenuModel.h"
#include "ui/history/HistoryTable.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/EmptyState.h"
#include "ui/widgets/FlowLayout.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/SearchField.h"
#include "ui/widgets/Toast.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(940, 520);
constexpr QSize leastSize(420, 320);
constexpr int progressSteps = 1000;

} // namespace

HistoryWindow::HistoryWindow(
    const Models &models, const Theme &theme, Scheduler &scheduler, TaskBar &taskBar)
    : SecondaryWindow(u"history"_s, models.presence, taskBar)
    , m_model(models.history)
    , m_theme(theme)
    , m_saveAddresses(makeAction(u"saveAddresses"_s, localized("Save Addresses"),
          localized("Adds the addresses of the selected records to the saved ones."),
          [this] { m_model.addAddressesToSaved(); }))
    , m_saveNetworks(makeAction(u"saveNetworks"_s, localized("Save Networks"),
          localized("Adds the networks of the selected records to the saved ones."),
          [this] { m_model.addNetworksToSaved(); }))
    , m_export(makeAction(u"exportHistory"_s, localized("Export…"),
          localized("Writes what is listed into a file that spreadsheets read."),
          [this] { askForFile(); }))
    , m_delete(makeAction(u"deleteRecords"_s, localized("Delete"),
          localized("Deletes the selected records."), [this] { m_model.deleteSelected(); }))
{
    setWindowTitle(localized("History"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::windowMargin, Theme::windowMargin, Theme::windowMargin, Theme::windowMargin);
    column->setSpacing(Theme::unit);
    column->addWidget(makeTop());
    column->addWidget(makeList(), 1);
    QWidget *work = makeWork();
    column->addWidget(work);
    column->addWidget(makeButtons());
    setMinimumSize(leastSize);
    resize(usualSize);
    // Lies over the list, and over nothing that is needed meanwhile.
    m_toast = new Toast(theme, scheduler, this);
    m_toast->keepAbove(*work);
    makeKeys(models.edit);

    m_model.windowDidLoad();
    connect(&m_model, &HistoryController::changed, this, &HistoryWindow::refresh);
    connect(&m_model, &HistoryController::said, m_toast,
        [this](const QString &message) { m_toast->say(message); });
    connect(&m_model.deletion(), &HistoryDeletion::deleted, m_toast,
        [this](const QString &message, bool canUndo) {
            m_toast->say(
                message, canUndo ? [this] { m_model.deletion().undo(); } : std::function<void()>());
        });
    connect(&m_model.deletion(), &HistoryDeletion::undoLost, m_toast, &Toast::dismiss);
    // The program ends by the user's wish, or is ended.
    const auto finish = [this] {
        m_model.note().end();
        m_model.stopWork();
    };
    connect(&models.presence, &Presence::terminated, this, finish);
    connect(qApp, &QCoreApplication::aboutToQuit, this, finish);
    refresh();
}

HistoryWindow::~HistoryWindow()
{
    hide();
}

QAction *HistoryWindow::makeAction(
    const QString &objectName, const QString &text, const QString &hint, std::function<void()> act)
{
    auto *action = new QAction(text, this);
    action->setObjectName(objectName);
    action->setToolTip(plainToolTip(hint));
    connect(action, &QAction::triggered, this, act);
    return action;
}

QWidget *HistoryWindow::makeTop()
{
    m_summary = plainLabel();
    m_summary->setObjectName(u"historySummary"_s);
    m_summary->setProperty("look", u"caption"_s);
    m_search = new SearchField(m_theme);
    m_search->setObjectName(u"historySearch"_s);
    m_search->setToolTip(plainToolTip(localized("Upper and lower case matter.")));
    connect(m_search, &SearchField::searched, &m_model, &HistoryController::controlTextDidChange);
    connect(m_search, &SearchField::typeChosen, &m_model, &HistoryController::setSearchType);
    connect(m_search, &SearchField::left, this, [this] {
        if (m_list->currentWidget() == m_table) {
            m_table->takeKeyboard();
        }
    });
    auto *top = new QWidget;
    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::spacing);
    row->addWidget(m_summary, 1);
    row->addWidget(m_search);
    return top;
}

QWidget *HistoryWindow::makeList()
{
    m_table = new HistoryTable(m_model, m_theme);
    connect(m_table, &QWidget::customContextMenuRequested, this, &HistoryWindow::openMenu);
    m_empty = new EmptyState(m_theme, u"history"_s);
    connect(m_empty, &EmptyState::acted, this, [this] {
        m_search->clear();
        m_search->setFocus(Qt::OtherFocusReason);
        m_model.controlTextDidChange(QString());
    });
    m_list = new QStackedWidget;
    m_list->addWidget(m_table);
    m_list->addWidget(m_empty);
    auto *card = new QFrame;
    card->setProperty("look", u"card"_s);
    auto *column = new QVBoxLayout(card);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(m_list);
    return card;
}

QWidget *HistoryWindow::makeWork()
{
    m_detail = plainLabel();
    m_detail->setObjectName(u"historyDetail"_s);
    m_detail->setProperty("look", u"caption"_s);
    m_detail->setWordWrap(true);
    m_failure = new InlineLine(m_theme);
    m_failure->hide();
    m_workText = plainLabel();
    m_workText->setProperty("look", u"caption"_s);
    m_progress = new QProgressBar;
    m_progress->setTextVisible(false);
    m_progress->setRange(0, progressSteps);
    auto *stop = new QPushButton(localized("Stop"));
    stop->setAccessibleName(localized("Stop"));
    stop->setToolTip(plainToolTip(localized("What is done stays done.")));
    connect(stop, &QPushButton::clicked, &m_model, &HistoryController::stopWork);
    m_work = new QWidget;
    auto *row = new QHBoxLayout(m_work);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::spacing);
    row->addWidget(m_workText);
    row->addWidget(m_progress, 1);
    row->addWidget(stop);
    m_work->hide();
    auto *lines = new QWidget;
    auto *column = new QVBoxLayout(lines);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_detail);
    column->addWidget(m_failure);
    column->addWidget(m_work);
    return lines;
}

QPushButton *HistoryWindow::makeButton(QAction &action, const QString &symbol, const QString &look)
{
    const auto ink = look == u"danger"_s ? Theme::Ink::Danger : Theme::Ink::Muted;
    auto *button = new QPushButton(m_theme.icon(symbol, ink), action.text());
    button->setObjectName(action.objectName() + u"Button"_s);
    button->setAccessibleName(action.text());
    button->setIconSize(QSize(Theme::inlineIconSize, Theme::inlineIconSize));
    button->setProperty("look", look);
    // A deletion selects the next record: the second click of two would delete that as well.
    button->installEventFilter(new ClicksOnce(button));
    connect(button, &QPushButton::clicked, &action, &QAction::trigger);
    const auto follow = [button, &action] {
        button->setEnabled(action.isEnabled());
        button->setToolTip(plainToolTip(action.toolTip()));
        button->setAccessibleDescription(action.toolTip());
    };
    connect(&action, &QAction::changed, button, follow);
    follow();
    return button;
}

QWidget *HistoryWindow::makeButtons()
{
    auto *buttons = new QWidget;
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    // They go below each other where texts are long or large.
    auto *harmless = new QWidget;
    auto *flow = new FlowLayout(harmless, 4);
    flow->addWidget(makeButton(*m_saveAddresses, u"heart"_s, u"quiet"_s));
    flow->addWidget(makeButton(*m_saveNetworks, u"heart"_s, u"quiet"_s));
    flow->addWidget(makeButton(*m_export, u"export"_s, u"quiet"_s));
    row->addWidget(harmless, 1);
    row->addWidget(makeButton(*m_delete, u"trash"_s, u"danger"_s), 0, Qt::AlignTop);
    return buttons;
}

void HistoryWindow::makeKeys(EditMenuModel &edit)
{
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), localized("Search"), [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    addShortcut(QKeySequence::Undo, localized("Undo"), [&edit] { edit.undo(); });
    addShortcut(QKeySequence::Redo, localized("Redo"), [&edit] { edit.redo(); });
    addShortcut(QKeySequence::Save, localized("Save"), [this, &edit] {
        m_model.note().end();
        edit.save();
    });
}

void HistoryWindow::openMenu(const QPoint &place)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *note = menu->addAction(localized("Edit Note"));
    note->setEnabled(m_table->currentIndex().isValid());
    connect(note, &QAction::triggered, m_table, &HistoryTable::editNote);
    menu->addSeparator();
    menu->addActions({m_saveAddresses, m_saveNetworks});
    menu->addSeparator();
    QMenu *order = menu->addMenu(localized("Sort By"));
    const auto &state = m_model.state();
    for (const HistoryColumn column : historyColumns) {
        QAction *by = order->addAction(QString());
        by->setText(plainLine(titleOf(column)));
        by->setCheckable(true);
        by->setChecked(column == state.sortColumn);
        connect(by, &QAction::triggered, this,
            [this, column] { m_model.sortBy(column, column != HistoryColumn::Date); });
    }
    order->addSeparator();
    QAction *reversed = order->addAction(localized("Reverse Order"));
    connect(reversed, &QAction::triggered, this,
        [this] { m_model.sortBy(m_model.state().sortColumn, !m_model.state().isAscending); });
    menu->addAction(m_export);
    menu->addSeparator();
    menu->addAction(m_delete);
    menu->popup(m_table->viewport()->mapToGlobal(place));
}

void HistoryWindow::askForFile()
{
    auto *dialog = new QFileDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(localized("Export History"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(u"csv"_s);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->selectFile(localized("History") + u".csv"_s);
    connect(dialog, &QFileDialog::fileSelected, &m_model, &HistoryController::exportTo);
    dialog->open();
}

void HistoryWindow::refresh()
{
    const auto &state = m_model.state();
    showLine(*m_summary, plainLine(state.summary));
    QList<SearchField::Type> types;
    for (const HistorySearchType &type : state.searchTypes) {
        types << SearchField::Type{type.identifier, type.title};
    }
    m_search->setTitle(state.placeholder);
    m_search->setTypes(types, state.searchType);
    if (m_empty->sentence() != plainParagraphs(state.emptySentence)) {
        m_empty->say(
            state.emptySentence, state.clearOffered ? localized("Clear Search") : QString());
    }
    const bool isEmpty = !state.emptySentence.isEmpty();
    if (isEmpty && m_table->hasFocus()) {
        m_search->setFocus(Qt::OtherFocusReason);
    }
    m_list->setCurrentWidget(isEmpty ? static_cast<QWidget *>(m_empty) : m_table);
    showBroken(*m_detail, plainParagraphs(state.detail));
    m_saveAddresses->setEnabled(state.addressesEnabled);
    m_saveNetworks->setEnabled(state.networksEnabled);
    m_delete->setEnabled(state.deleteEnabled);
    m_export->setEnabled(state.exportEnabled);
    const bool isFailure = !state.failure.isEmpty();
    if (m_failure->text() != plainLine(state.failure)) {
        m_failure->say(state.failure, InlineLine::Kind::Danger);
    }
    m_failure->setVisible(isFailure);
    refreshWork();
}

void HistoryWindow::refreshWork()
{
    const auto &work = m_model.state().work;
    m_work->setVisible(work.has_value());
    if (work) {
        showLine(*m_workText, plainLine(work->text));
        m_progress->setAccessibleName(plainLine(work->text));
        m_progress->setValue(
            work->of > 0 ? static_cast<int>(progressSteps * work->done / work->of) : 0);
    }
}

void HistoryWindow::showEvent(QShowEvent *event)
{
    SecondaryWindow::showEvent(event);
    if (!event->spontaneous()) {
        m_model.windowDidOpen();
        m_search->setFocus(Qt::OtherFocusReason);
    }
}

void HistoryWindow::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous()) {
        m_model.windowDidClose();
    }
    SecondaryWindow::hideEvent(event);
}

} // namespace quillon
