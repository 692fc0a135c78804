// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

namespace quillon {

class LinkOpener;

/// What the program is: its version, its license, and where more can be read. Main thread.
class AboutPreferencesViewController : public QObject
{
    Q_OBJECT

public:
    struct Link
    {
        QString title; ///< in the user's language
        QUrl url;
    };
    struct State
    {
        /// Why the last link was not opened, with where it leads; "" when it was.
        QString failure;

        bool operator==(const State &) const = default;
    };

    /// `licenseFile` is the text of the license, "" where there is none; `registry` is where the
    /// manufacturers come from.
    AboutPreferencesViewController(
        LinkOpener &links, const QString &licenseFile, const QUrl &registry);

    const State &state() const { return m_state.get(); }
    static QString version();
    static QString license();
    const QList<Link> &links() const { return m_links; }
    /// Ignored for a link that is not there.
    void openLink(qsizetype index);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    LinkOpener &m_opener;
    QList<Link> m_links;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
