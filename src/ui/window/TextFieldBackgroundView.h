// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QMimeData;

namespace quillon {

class MainWindowModel;

/// The view in which the address field sits: a text that is an address can be dropped anywhere on
/// it. Only the view whose object name is identifier() takes drops.
class TextFieldBackgroundView : public QFrame
{
    Q_OBJECT

public:
    explicit TextFieldBackgroundView(MainWindowModel &model, QWidget *parent = nullptr);

    static QString identifier();

    bool draggingEntered(const QMimeData &pasteboard) const;
    bool performDragOperation() const;
    void concludeDragOperation(const QMimeData &pasteboard);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool isUpdateAddressView() const { return objectName() == identifier(); }
    void showDropping(bool dropping);

    MainWindowModel &m_model;
};

} // namespace quillon
