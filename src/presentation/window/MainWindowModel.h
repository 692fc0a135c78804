// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "devices/HexFormatter.h"
#include "devices/HexValueTransformer.h"
#include "presentation/window/ChangeButtons.h"
#include "presentation/window/ChangeProgress.h"

#include <QObject>
#include <QStringList>

namespace quillon {

class AddressChanger;
class CurrentInterface;
class DeviceTable;
class Scheduler;
class SettingsStore;

/// What the main window shows, as plain state that widgets mirror, and the rules by which it
/// changes. Main thread, except where an operation says that it moves there by itself.
class MainWindowModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        // The selection button: one title per device, in the order of every list of devices.
        QStringList devices;
        QString selectedDevice;
        bool selectionVisible = false;

        QString fieldText;
        QString fieldPlaceholder;
        bool fieldEnabled = false;
        AddressFieldLine fieldLine;
        bool updateEnabled = false; ///< the apply button
        bool randomizeEnabled = false;
        bool restoreEnabled = false;
        // Why the button is disabled; "" while it is enabled.
        QString whyNoUpdate;
        QString whyNoRandomize;
        QString whyNoRestore;
        QString whyNoField; ///< why the field takes nothing; "" while it is enabled

        /// An address of the selected interface is being changed, whoever asked for it: the
        /// buttons are disabled, but for the one that was used, which is busy.
        bool changing = false;
        ChangeRequest busyButton = ChangeRequest::None;

        bool hardwarePopoverShown = false;
        bool hardwareIndicatorVisible = false; ///< the address in use is not the factory address
        /// The button of the saved addresses.
        bool softwareButtonVisible = false;

        // The selected interface, for display; addresses in display case.
        QString interfaceName; ///< localized port name
        QString currentAddress;
        QString hardwareAddress;
        /// It was taken away: addresses and name are those that it had.
        bool isGone = false;
        QString ipAddress; ///< "" when none
        bool linkActive = false;

        /// No interface that can be changed is there: there is nothing to show of one.
        bool withoutInterfaces = false;

        QString versionLabel;

        bool operator==(const State &) const = default;
    };

    struct Collaborators
    {
        const SettingsStore &settings;
        Scheduler &scheduler;
        const DeviceTable &devices;
        CurrentInterface &currentInterface;
        AddressChanger &addressChanger;
    };

    explicit MainWindowModel(const Collaborators &collaborators);

    const State &state() const { return m_state.get(); }

    /// Before the first device is read: everything that needs the helper is disabled.
    void prepareWindow();
    void disableRandomize();
    void disableUpdate();

    /// After the interfaces were read, too: what was there may be gone, and back again.
    void populateSelectionButton();
    void popupButtonClicked() { populateSelectionButton(); }
    /// The same after an event of the network: what each interface has is known again.
    void interfacesWereRead();
    /// Takes the emphasis from every button that may have kept it.
    void resetInfoButtons();
    /// Enables the address field exactly when the helper is installed.
    void setHelperInstalled(bool installed);
    void showPlaceholder(const QString &address);
    /// A fresh formatter on the address field.
    void renewHexFormatter();

    /// Shows the current interface's address in the field, in a later turn of the main loop. Any
    /// thread.
    void populateHexField();
    /// An address that was dropped on the field; anything else is ignored. Whether the field takes
    /// one is asked before.
    void populateHexFieldFromDrop(const QString &text);
    /// A saved address was chosen for the field, which has to be enabled, as for a drop. False, and
    /// nothing has happened, where it is not or takes no such text.
    bool chooseAddress(const QString &text);
    /// The apply button follows the field; does nothing while the helper is not installed. Any
    /// thread.
    void checkUpdateButton();

    // The window's buttons and its selection button. While the selected interface is being changed
    // the buttons do nothing.
    void randomizeAddress();
    /// Requests the address in the field, which then shows it in display case.
    void changeMacAddress();
    void restoreDefaultAddress();
    /// The button of the hardware address was chosen: opens its popover or closes it. A restore,
    /// also one from the menu, closes it.
    void toggleHardwarePopover();
    /// However it is closed.
    void hardwarePopoverWillClose();
    void changeInterfacefromPopup(const QString &title);

    /// The user edited the field to `text`. False when the entry rules refuse it, or the field is
    /// disabled: it keeps what it had.
    bool editField(const QString &text);
    /// The user is done with the field: one that is left empty shows the current address again.
    void endEditing();
    /// The program wrote `text` into the field.
    void setFieldText(const QString &text);

    /// A drag over the field is accepted when the field is enabled and `text` is a valid address.
    bool draggingEntered(const QString &text) const;
    bool performDragOperation() const;
    void concludeDragOperation(const QString &text);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// An edit was refused, or the field was left empty: it has to show state().fieldText again.
    void fieldRestored();
    /// Buttons that may be emphasised are to look normal again.
    void infoButtonsReset();
    /// The selected interface was there, and was taken away.
    void selectedInterfaceLeft();

private:
    void showCurrentAddress();
    void fillInterfaceDetails(State &state);
    /// What depends on several facts, after each change of any of them.
    void fillButtons(State &state) const;
    AddressFieldLine lineFor(const State &state) const;
    /// Until the interfaces were shown for the first time the selected one counts as present.
    ChangeButtons::Selected selected() const;
    bool isSelectedPresent() const { return selected() == ChangeButtons::Selected::Present; }
    template <typename Change>
    void update(Change change);
    template <typename Act>
    void request(ChangeRequest button, Act act);

    Collaborators m_deps;
    HexValueTransformer m_displayCase;
    HexFormatter m_hexFormatter;
    bool m_isHelperKnown = false; ///< whether it is installed
    bool m_helperInstalled = false;
    bool m_interfacesShown = false; ///< before that nobody has looked for one to select
    QString m_presentDevice;        ///< the selected one, when it was last looked for and there
    // What could be done if nothing were under way.
    bool m_mayRandomize = false; ///< by the helper's status alone
    bool m_canUpdate = false;
    bool m_canRestore = false;
    ChangeProgress m_progress;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
