// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/InterfaceSelector.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QHoverEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace quillon {

using namespace Qt::StringLiterals;

InterfaceSelector::InterfaceSelector(MainWindowModel &model, QWidget *parent)
    : QComboBox(parent)
    , m_model(model)
{
    setObjectName(u"deviceSelectionButton"_s);
    setAccessibleName(localized("Interface"));
    setAccessibleDescription(localized("The network interface whose address is shown and changed"));
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // The list knows interfaces of the settings file too, however long their names are.
    setMaximumWidth(Theme::windowWidth / 2);
    // The list's look comes from the style sheet, which the default delegate of a combo box
    // disregards.
    setItemDelegate(new QStyledItemDelegate(this));
    // By the device's name: what is shown of it may differ.
    connect(this, &QComboBox::activated, this, [this](int index) {
        m_model.changeInterfacefromPopup(itemData(index).toString());
        refresh();
    });
    refresh();
}

QSize InterfaceSelector::minimumSizeHint() const
{
    return QComboBox::minimumSizeHint().boundedTo(maximumSize());
}

void InterfaceSelector::refresh()
{
    const auto &state = m_model.state();
    QStringList shown;
    for (int index = 0; index < count(); ++index) {
        shown.append(itemData(index).toString());
    }
    {
        const QSignalBlocker blocker(this);
        if (shown != state.devices) {
            clear();
            for (const QString &device : state.devices) {
                addItem(plainLine(device), device);
            }
        }
        setCurrentIndex(static_cast<int>(state.devices.indexOf(state.selectedDevice)));
    }
    setVisible(state.selectionVisible);
}

void InterfaceSelector::showPopup()
{
    m_model.popupButtonClicked();
    QComboBox::showPopup();
}

void InterfaceSelector::hidePopup()
{
    QComboBox::hidePopup();
    resetEmphasis();
}

void InterfaceSelector::resetEmphasis()
{
    // The pointer may have left while the list had it; nothing says so any more.
    setAttribute(Qt::WA_UnderMouse, false);
    QHoverEvent leave(QEvent::HoverLeave, QPointF(-1, -1), QPointF(-1, -1), QPointF(-1, -1));
    QComboBox::event(&leave);
    update();
}

} // namespace quillon
