// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

/// What a field of text has held, for undo and redo, where the program itself rewrites what is
/// typed: a step is the user's edit together with what the program made of it. Typing on is one
/// step, and so is erasing on.
class TextHistory
{
public:
    struct Moment
    {
        QString text;
        int cursor = 0;

        bool operator==(const Moment &) const = default;
    };

    /// Forgets everything: this is where the user begins.
    void begin(const Moment &now);
    /// The field holds something else; what was undone before cannot be redone any more.
    void note(const Moment &now);
    /// The cursor was moved: what is typed now is a step of its own. Any other moment's text is
    /// ignored.
    void moveCursor(const Moment &now);

    bool canUndo() const { return m_now > 0; }
    bool canRedo() const { return m_now + 1 < m_moments.size(); }
    /// The moment to go back or forward to; the present one where there is no other.
    const Moment &undo();
    const Moment &redo();

private:
    enum class Edit
    {
        None,
        Typing,
        Replacing, ///< of what was selected, by the first character that is typed
        Erasing,
        Other,
    };
    Edit editTo(const Moment &next) const;

    QList<Moment> m_moments{Moment{}};
    qsizetype m_now = 0;
    Edit m_edit = Edit::None; ///< what goes on as long as the cursor stays
};

} // namespace quillon
