// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>
#include <QString>

namespace quillon {

class XPCMethods;

/// The hint that the helper is not installed, its install button, and the popover that explains the
/// helper. Main thread.
class ReadMeModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        bool visible = false;
        bool installing = false; ///< an installation was asked for and has not ended
        bool popoverShown = false;

        bool operator==(const State &) const = default;
    };

    /// How the hint is drawn: left-aligned, bold, of this size in points, in this color (0 to 1).
    struct Style
    {
        int pointSize = 14;
        double red = 0.43;
        double green = 0.61;
        double blue = 0.99;
        double alpha = 1.0;
    };

    explicit ReadMeModel(XPCMethods &helper);

    const State &state() const { return m_state.get(); }
    static Style style() { return {}; }
    /// Explains the helper.
    static QString text();

    void setHelperInstalled(bool installed);
    void hide() { setHelperInstalled(true); }
    void setInstalling(bool installing);
    /// Gives the hint its own style again without changing its text.
    void readMeReset();

    void installHelper();
    /// The hint was chosen: opens the popover or closes it.
    void toggleReadMePopover();
    /// However it is closed.
    void popoverWillClose();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    void styleReset();

private:
    XPCMethods &m_helper;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
