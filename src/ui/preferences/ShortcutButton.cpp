// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/ShortcutButton.h"

#include "base/Localized.h"
#include "presentation/preferences/ShortcutRecorder.h"
#include "ui/preferences/PressedKeys.h"
#include "ui/widgets/PlainText.h"

#include <QKeyEvent>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

ShortcutButton::ShortcutButton(ShortcutRecorder &recorder)
    : m_recorder(recorder)
{
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QPushButton::clicked, this, &ShortcutButton::toggle);
    connect(&m_recorder, &ShortcutRecorder::changed, this, &ShortcutButton::refresh);
    refresh();
}

ShortcutButton::~ShortcutButton()
{
    disconnect(&m_recorder, nullptr, this, nullptr);
    m_recorder.cancel();
}

QSize ShortcutButton::sizeHint() const
{
    const QSize size = QPushButton::sizeHint();
    const int now = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    int widest = now;
    for (const QString &each :
        {localized("Record Shortcut"), localized("Type a shortcut"), u"Ctrl+Alt+Shift+Meta+W"_s}) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(each));
    }
    return {size.width() - now + widest, size.height()};
}

/// What is stored may be anything.
int ShortcutButton::widestText() const
{
    constexpr int characters = 36;
    return characters * fontMetrics().averageCharWidth();
}

bool ShortcutButton::event(QEvent *event)
{
    // Also those that are shortcuts of the window, and Tab.
    if (m_recorder.state().isRecording) {
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept();
            return true;
        }
        if (event->type() == QEvent::KeyPress) {
            keyPressEvent(static_cast<QKeyEvent *>(event));
            return true;
        }
    }
    return QPushButton::event(event);
}

void ShortcutButton::keyPressEvent(QKeyEvent *event)
{
    if (m_recorder.state().isRecording) {
        // The press that began it may still be held.
        if (!event->isAutoRepeat()) {
            m_recorder.press(pressedKeys(*event));
        }
        event->accept();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

void ShortcutButton::keyReleaseEvent(QKeyEvent *event)
{
    if (m_recorder.state().isRecording && !event->isAutoRepeat()) {
        m_recorder.press(pressedKeys(*event));
        event->accept();
    } else {
        QPushButton::keyReleaseEvent(event);
    }
}

void ShortcutButton::focusOutEvent(QFocusEvent *event)
{
    QPushButton::focusOutEvent(event);
    m_recorder.cancel();
}

void ShortcutButton::showEvent(QShowEvent *event)
{
    // The style sheet's least height is that of small texts, and a pane that scrolls is as low as
    // it can be.
    setMinimumHeight(sizeHint().height());
    QPushButton::showEvent(event);
}

void ShortcutButton::hideEvent(QHideEvent *event)
{
    m_recorder.cancel();
    QPushButton::hideEvent(event);
}

void ShortcutButton::toggle()
{
    if (m_recorder.state().isRecording) {
        m_recorder.cancel();
    } else {
        setFocus(Qt::OtherFocusReason);
        m_recorder.begin();
    }
}

void ShortcutButton::refresh()
{
    const auto &state = m_recorder.state();
    const QString shown = plainLine(state.text);
    const QString fitting = fontMetrics().elidedText(shown, Qt::ElideRight, widestText());
    setText(plainLine(fitting).replace(u'&', "&&"_L1));
    setEnabled(state.isUsable);
    setProperty("open", state.isRecording);
    const QString name = filled(localized("Shortcut for \u201C%@\u201D"), {m_recorder.title()});
    setAccessibleName(state.isEmpty ? name : name + u", "_s + shown);
    setAccessibleDescription(state.line.text);
    setToolTip(plainToolTip(state.isUsable ? name : state.line.text));
    if (state.isRecording != m_hasKeyboard) {
        m_hasKeyboard = state.isRecording;
        // What a window manager would take for itself can be recorded, too; it is then told that
        // another program has it.
        if (m_hasKeyboard) {
            grabKeyboard();
        } else {
            releaseKeyboard();
        }
    }
    update();
}

} // namespace quillon
