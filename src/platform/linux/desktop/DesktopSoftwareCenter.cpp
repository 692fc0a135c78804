// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DesktopSoftwareCenter.h"

#include <QDesktopServices>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Whether a program says that it opens such addresses: the caches of the desktop's database of
/// programs have a line for each kind, "x-scheme-handler/appstream=center.desktop;".
bool hasSoftwareCenter()
{
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    return std::any_of(folders.begin(), folders.end(), [](const QString &folder) {
        QFile cache(folder + u"/mimeinfo.cache"_s);
        if (!cache.open(QIODevice::ReadOnly)) {
            return false;
        }
        const QList<QByteArray> lines = cache.readAll().split('\n');
        return std::any_of(lines.begin(), lines.end(), [](const QByteArray &line) {
            return line.startsWith("x-scheme-handler/appstream=") &&
                   line.trimmed().contains(".desktop");
        });
    });
}

} // namespace

DesktopSoftwareCenter::DesktopSoftwareCenter(bool isPackaged, Open open)
    : m_isPackaged(isPackaged)
    , m_open(open ? std::move(open) : Open(&QDesktopServices::openUrl))
{
}

bool DesktopSoftwareCenter::openOwnPage()
{
    return m_isPackaged && hasSoftwareCenter() &&
           m_open(QUrl(u"appstream:com.orvandel.Quillon4"_s));
}

bool DesktopSoftwareCenter::openWebPage(const QUrl &page)
{
    return page.isValid() && page.scheme() == "https"_L1 && !page.host().isEmpty() && m_open(page);
}

} // namespace quillon
