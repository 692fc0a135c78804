// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/TextHistory.h"

#include <QLineEdit>

namespace quillon {

class MainWindowModel;

/// The entry field for an address. Every text that the user proposes, typed, pasted or set by
/// assistive technology, is put to the model first; one that the entry rules refuse leaves text and
/// cursor as they were. Otherwise it shows what the model holds.
/// Undo and redo go by what it has shown, so that they hold although the model rewrites what is
/// typed. Another interface begins anew.
class AddressField : public QLineEdit
{
    Q_OBJECT
    // In place of those of the base class, for whoever finds them by name.
    Q_PROPERTY(bool undoAvailable READ isUndoAvailable)
    Q_PROPERTY(bool redoAvailable READ isRedoAvailable)

public:
    explicit AddressField(MainWindowModel &model, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Not while the field is disabled: it shows the address in use then.
    bool isUndoAvailable() const { return isEnabled() && !isReadOnly() && m_history.canUndo(); }
    bool isRedoAvailable() const { return isEnabled() && !isReadOnly() && m_history.canRedo(); }

    /// Shows the model's text again; the cursor keeps its place.
    void refresh();

public Q_SLOTS:
    void undo();
    void redo();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    class EntryRules;

    QString shownText() const;
    void note();
    void goTo(const TextHistory::Moment &moment);

    MainWindowModel &m_model;
    bool m_asking = false;
    bool m_rewriting = false;
    TextHistory m_history;
    QString m_device; ///< whose address the history began with
};

} // namespace quillon
