// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/rules/RuleFormModel.h"

#include <QFrame>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace quillon {

class HeartButton;
class InlineLine;
class RulesPreferencesViewController;
class Theme;

/// The form of a network rule or, with fewer controls, of a login rule. Return saves, Escape
/// cancels.
class RuleFormView : public QFrame
{
    Q_OBJECT

public:
    /// Takes `vendorField`, which mirrors a model of its own.
    RuleFormView(RuleFormModel &form, RulesPreferencesViewController &editor, const Theme &theme,
        QWidget *vendorField, QWidget *parent = nullptr);

    /// What gets the keyboard when the form opens.
    QWidget *firstControl() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// A pop-up that has not the keyboard leaves the wheel to the page that scrolls.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// One line: its label, and what stands beside it. All are children of the form: a label names
    /// only a sibling to assistive technology.
    using Line = QList<QWidget *>;

    QComboBox *makePopUp(const QString &name);
    void makeMinutes();
    void makeHearts(const Theme &theme);
    Line addLine(const QString &label, QWidget *control, const QList<QWidget *> &beside = {});
    void fillGrid(QWidget *vendorField);
    void fillEnd(const Theme &theme, QVBoxLayout &column);
    void connectControls();
    void refresh();
    void refreshPopUps();
    void refreshUse();
    static void setChoices(QComboBox &popUp, const RuleChoices &choices, qsizetype place);

    RuleFormModel &m_form;
    RulesPreferencesViewController &m_editor;
    QGridLayout *m_grid;
    QLineEdit *m_name;
    QString m_nameShown; ///< the model's name that the field stands for
    QComboBox *m_device;
    QComboBox *m_network;
    QComboBox *m_action;
    QComboBox *m_address;
    QComboBox *m_repeat;
    QLineEdit *m_minutes;
    HeartButton *m_saveNetwork;
    HeartButton *m_saveAddress;
    QToolButton *m_newAddress;
    Line m_ofNetworkRules; ///< not in the form of a login rule
    QLabel *m_unit = nullptr;
    QLabel *m_sentence;
    InlineLine *m_notice;
    QPushButton *m_cancel;
    QPushButton *m_ok;
};

} // namespace quillon
