// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace quillon {

class BusyButton;
class InlineLine;
class Theme;

/// A dialog of fields with a line below that says what goes on, as wide and as high as its texts
/// want, scrolling on a low screen. Return confirms, Escape rejects, once however long it is held.
class CloudFormDialog : public QDialog
{
    Q_OBJECT

protected:
    /// `confirm` is what stands on the button.
    CloudFormDialog(const Theme &theme, const QString &confirm, QWidget *parent);

    /// Lays everything out; `above` does not scroll, and may be none.
    void arrange(QWidget *above, QWidget *form);
    /// The column of a part of the form, which is its parent.
    static QVBoxLayout *makePart();
    /// The form's column.
    static QVBoxLayout *columnOf(QWidget *form);
    static QLineEdit *makeEntry(const QString &caption, const QString &tip);
    static QLabel *labelOf(QLineEdit *entry);
    static void addHint(QVBoxLayout &column, const QString &text);
    /// Whole, and to be taken back: what stands in a field is what is said, however long it is.
    static void replaceText(QLineEdit &field, const QString &text);

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    InlineLine &line() const { return *m_line; }
    BusyButton &confirm() const { return *m_confirm; }
    QPushButton &cancelButton() const { return *m_cancel; }

private:
    void fit();

    InlineLine *m_line;
    BusyButton *m_confirm;
    QPushButton *m_cancel;
};

} // namespace quillon
