// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/Announcements.h"

#include <QAccessible>
#include <QWidget>

#include <utility>

namespace quillon::test {

namespace {

std::function<void(const QString &)> listener;

void hearUpdate(QAccessibleEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement) {
        listener(static_cast<QAccessibleAnnouncementEvent *>(event)->message());
    }
#else
    if (event->type() == QAccessible::Alert && event->object()->isWidgetType()) {
        listener(static_cast<QWidget *>(event->object())->accessibleName());
    }
#endif
}

} // namespace

void listenToAnnouncements(std::function<void(const QString &)> hear)
{
    listener = std::move(hear);
    QAccessible::installUpdateHandler(hearUpdate);
}

} // namespace quillon::test
