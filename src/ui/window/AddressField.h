// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace quillon {

class MainWindowModel;

/// The entry field for an address. Every text that the user proposes, typed, pasted or set by
/// assistive technology, is put to the model first; one that the entry rules refuse leaves text and
/// cursor as they were. Otherwise it shows what the model holds.
class AddressField : public QLineEdit
{
    Q_OBJECT

public:
    explicit AddressField(MainWindowModel &model, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Shows the model's text again; the cursor keeps its place.
    void refresh();

private:
    class EntryRules;

    QString shownText() const;

    MainWindowModel &m_model;
    bool m_asking = false;
};

} // namespace quillon
