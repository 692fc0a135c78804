// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/ServeInLoop.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <exception>
#include <unistd.h>

namespace quillon::bench {

int serveInLoop(const std::function<Words(const Words &)> &handle)
{
    std::string unread;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    bool isServing = false;
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        if (isServing) {
            return;
        }
        isServing = true;
        std::array<char, 4096> piece{};
        const ssize_t size = read(STDIN_FILENO, piece.data(), piece.size());
        if (size <= 0) {
            QCoreApplication::quit();
        }
        unread.append(piece.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
        for (std::size_t end = 0; (end = unread.find('\n')) != std::string::npos;) {
            const Words request = wordsOf(unread.substr(0, end));
            unread.erase(0, end + 1);
            try {
                answer(handle(request));
            } catch (const std::exception &error) {
                answerError(error.what());
            }
        }
        isServing = false;
    });
    return QCoreApplication::exec();
}

} // namespace quillon::bench
