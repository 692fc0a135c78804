// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QtGlobal>

#include <mutex>
#include <utility>

namespace quillon::test {

/// Keeps the program's log while it lives, instead of printing it; each line as "category: text".
/// One at a time.
class LogCapture
{
public:
    LogCapture()
        : m_previous(qInstallMessageHandler(keep))
    {
        const std::lock_guard lock(mutex);
        lines.clear();
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    static QStringList taken()
    {
        const std::lock_guard lock(mutex);
        return std::exchange(lines, {});
    }

private:
    static void keep(QtMsgType, const QMessageLogContext &context, const QString &text)
    {
        const std::lock_guard lock(mutex);
        lines << QString::fromUtf8(context.category) + QStringLiteral(": ") + text;
    }

    inline static std::mutex mutex;
    inline static QStringList lines;
    QtMessageHandler m_previous;
};

} // namespace quillon::test
