// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLineEdit;
class QToolButton;

namespace quillon {

class Theme;
class VendorFieldModel;
class VendorTableView;

/// The field that names the manufacturer of random addresses. The list to choose from opens under
/// it, over what else is in the window, and closes when the user turns to something else.
class VendorChooser : public QFrame
{
    Q_OBJECT

public:
    /// Where what it is called stands.
    enum class Caption
    {
        Inside, ///< in the field, as in any box that opens a list
        Beside, ///< in a label of the form that it is part of
    };

    VendorChooser(VendorFieldModel &model, const Theme &theme, Caption caption = Caption::Inside,
        QWidget *parent = nullptr);

protected:
    /// The keys of field and list, the moment when both lose the keyboard, presses beside the list,
    /// the end of the window's being shown.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    void makeField();
    void arrange(Caption caption);
    void makeToggle(const Theme &theme);
    void connectModel();
    void refresh();
    bool takesKey(QObject *watched, int key);
    void closeWhenLeft();
    bool isListOpen() const;
    void makeList();
    void openList();
    void hideList();
    void placeList();

    VendorFieldModel &m_model;
    const Theme &m_theme;
    QString m_text; ///< the model's text that the field shows, as it was written
    QLineEdit *m_field;
    QToolButton *m_toggle;
    VendorTableView *m_table = nullptr; ///< made when it is shown for the first time
};

} // namespace quillon
