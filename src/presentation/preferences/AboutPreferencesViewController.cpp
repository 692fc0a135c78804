// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/AboutPreferencesViewController.h"

#include "base/Localized.h"
#include "platform/desktop/LinkOpener.h"

#include <QCoreApplication>

namespace quillon {

using namespace Qt::StringLiterals;

AboutPreferencesViewController::AboutPreferencesViewController(
    LinkOpener &links, const QString &licenseFile, const QUrl &registry)
    : m_opener(links)
{
    if (!licenseFile.isEmpty()) {
        m_links.append({localized("Read the License"), QUrl::fromLocalFile(licenseFile)});
    }
    m_links.append({localized("The License on the Web"),
        QUrl(u"https://www.gnu.org/licenses/gpl-3.0.html"_s)});
    if (registry.isValid() && !registry.host().isEmpty()) {
        // Its front page: the registry itself is a download of several megabytes.
        QUrl front = registry;
        front.setPath(u"/"_s);
        m_links.append({localized("Where Vendors Are Registered"), front});
    }
}

QString AboutPreferencesViewController::version()
{
    return filled(localized("Version %@"), {QCoreApplication::applicationVersion()});
}

QString AboutPreferencesViewController::license()
{
    return localized("Free software under the GNU General Public License, version 3 or any later "
                     "version. It comes without any warranty.");
}

void AboutPreferencesViewController::openLink(qsizetype index)
{
    if (index < 0 || index >= m_links.size()) {
        return;
    }
    const QUrl &url = m_links.at(index).url;
    const QString failure =
        m_opener.open(url) ? QString()
                           : filled(localized("No program here opens %@"), {url.toDisplayString()});
    m_state.update([&failure](State &state) { state.failure = failure; });
}

} // namespace quillon
