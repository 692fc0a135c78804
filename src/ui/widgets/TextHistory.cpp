// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/TextHistory.h"

namespace quillon {

void TextHistory::begin(const Moment &now)
{
    m_moments = {now};
    m_now = 0;
    m_edit = Edit::None;
}

TextHistory::Edit TextHistory::editTo(const Moment &next) const
{
    const Moment &now = m_moments[m_now];
    const qsizetype longer = next.text.size() - now.text.size();
    if (longer == 1 && next.cursor == now.cursor + 1) {
        return Edit::Typing;
    }
    const bool isBackspace = next.cursor == now.cursor - 1;
    if (longer == -1 && (isBackspace || next.cursor == now.cursor)) {
        return Edit::Erasing;
    }
    const QString before = next.text.left(next.cursor - 1);
    const QString after = next.text.mid(next.cursor);
    const bool isReplaced = next.cursor > 0 && before.size() + after.size() < now.text.size() &&
                            now.text.startsWith(before) && now.text.endsWith(after);
    return isReplaced ? Edit::Replacing : Edit::Other;
}

void TextHistory::note(const Moment &now)
{
    if (now.text == m_moments[m_now].text) {
        return;
    }
    const Edit edit = editTo(now);
    const bool goesOn = edit == m_edit && edit != Edit::Other && m_now > 0;
    m_edit = edit == Edit::Replacing ? Edit::Typing : edit;
    m_moments.resize(m_now + 1);
    if (goesOn) {
        m_moments[m_now] = now;
    } else {
        m_moments.append(now);
        ++m_now;
    }
}

void TextHistory::moveCursor(const Moment &now)
{
    Moment &present = m_moments[m_now];
    if (now.text == present.text && now.cursor != present.cursor) {
        present.cursor = now.cursor;
        m_edit = Edit::None;
    }
}

const TextHistory::Moment &TextHistory::undo()
{
    if (canUndo()) {
        --m_now;
    }
    m_edit = Edit::None;
    return m_moments[m_now];
}

const TextHistory::Moment &TextHistory::redo()
{
    if (canRedo()) {
        ++m_now;
    }
    m_edit = Edit::None;
    return m_moments[m_now];
}

} // namespace quillon
