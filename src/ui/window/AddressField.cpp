// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/AddressField.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QValidator>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr double addressScale = 1.9;

} // namespace

/// Puts a proposed text to the model. The line edit asks a validator before it takes over an edit,
/// and undoes an edit that is refused, cursor and all.
class AddressField::EntryRules : public QValidator
{
public:
    explicit EntryRules(AddressField &field)
        : QValidator(&field)
        , m_field(field)
    {
    }

    State validate(QString &text, int &) const override
    {
        if (text == m_field.shownText()) {
            return Acceptable;
        }
        // The model answers an edit with changes of its own, which have to wait for the edit's end.
        const QScopedValueRollback<bool> asking(m_field.m_asking, true);
        return m_field.m_model.editField(text) ? Acceptable : Invalid;
    }

private:
    AddressField &m_field;
};

AddressField::AddressField(MainWindowModel &model, QWidget *parent)
    : QLineEdit(parent)
    , m_model(model)
{
    setObjectName(u"hexField"_s);
    setAccessibleName(localized("Address"));
    setAccessibleDescription(localized(
        "Twelve hexadecimal digits, with or without colons. Return applies the address."));
    setFont(Theme::addressFont(addressScale));
    setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhPreferLatin);
    // Drops belong to the view around the field.
    setAcceptDrops(false);
    setText(shownText());
    setValidator(new EntryRules(*this));
    connect(this, &QLineEdit::textChanged, this, &AddressField::refresh);
    connect(this, &QLineEdit::cursorPositionChanged, this, [this](int, int cursor) {
        if (!m_rewriting) {
            m_history.moveCursor({text(), cursor});
        }
    });
    note();
    connect(this, &QLineEdit::editingFinished, &m_model, &MainWindowModel::endEditing);
}

QSize AddressField::sizeHint() const
{
    const QString widest = u"DD:DD:DD:DD:DD:DD"_s;
    QSize size = QLineEdit::sizeHint();
    // Room for the text, the cursor, and the frame's padding on both sides.
    size.setWidth(fontMetrics().horizontalAdvance(widest) + 4 * Theme::unit);
    return size;
}

QString AddressField::shownText() const
{
    // What the entry rules let in is plain; the settings may hold anything.
    return plainLine(m_model.state().fieldText);
}

void AddressField::refresh()
{
    if (m_asking) {
        return;
    }
    if (text() != shownText()) {
        const QScopedValueRollback<bool> rewriting(m_rewriting, true);
        const int cursor = cursorPosition();
        setText(shownText());
        setCursorPosition(cursor);
    }
    note();
}

void AddressField::note()
{
    if (m_rewriting) {
        return;
    }
    const auto &state = m_model.state();
    const TextHistory::Moment now{text(), cursorPosition()};
    const bool isUntouched = !m_history.canUndo() && !m_history.canRedo();
    const bool isInUse = now.text == plainLine(state.currentAddress);
    if (m_device != state.selectedDevice || (isUntouched && isInUse)) {
        m_device = state.selectedDevice;
        m_history.begin(now);
    } else {
        m_history.note(now);
    }
}

void AddressField::goTo(const TextHistory::Moment &moment)
{
    const QScopedValueRollback<bool> rewriting(m_rewriting, true);
    setText(plainLine(moment.text));
    setText(shownText());
    setCursorPosition(moment.cursor);
}

void AddressField::undo()
{
    if (isUndoAvailable()) {
        goTo(m_history.undo());
    }
}

void AddressField::redo()
{
    if (isRedoAvailable()) {
        goTo(m_history.redo());
    }
}

bool AddressField::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // With nothing to undo of its own the key is the window's.
        const auto *key = static_cast<QKeyEvent *>(event);
        if ((key->matches(QKeySequence::Undo) && !isUndoAvailable()) ||
            (key->matches(QKeySequence::Redo) && !isRedoAvailable())) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void AddressField::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Undo)) {
        undo();
    } else if (event->matches(QKeySequence::Redo)) {
        redo();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void AddressField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto actions = menu->actions();
    if (!isReadOnly() && actions.size() > 1) {
        // These two come first, and would undo in the base class's history.
        for (QAction *action : {actions[0], actions[1]}) {
            action->disconnect(this);
        }
        actions[0]->setEnabled(isUndoAvailable());
        actions[1]->setEnabled(isRedoAvailable());
        connect(actions[0], &QAction::triggered, this, &AddressField::undo);
        connect(actions[1], &QAction::triggered, this, &AddressField::redo);
    }
    menu->popup(event->globalPos());
}

} // namespace quillon
