// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: measure-link SETTINGS-FILE
// Started as the ordinary user. Requests: name; change, direct DEVICE ADDRESS; connect; version;
// ports; refresh.
#include "bench/LinkUnderTest.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QSocketNotifier>

#include <array>
#include <stdexcept>
#include <unistd.h>

namespace {

using namespace quillon::bench;

Words handle(LinkUnderTest &link, const Words &request)
{
    const std::string &what = request.at(0);
    const auto text = [&request](std::size_t i) { return QString::fromStdString(request.at(i)); };
    if (what == "change") {
        return link.change(text(1), text(2));
    }
    if (what == "direct") {
        return link.changeByHelper(text(1), text(2));
    }
    if (what == "connect") {
        return link.connectThroughService();
    }
    if (what == "version") {
        return link.versionOfHelper();
    }
    if (what == "ports") {
        return link.ports();
    }
    if (what == "refresh") {
        return link.refresh();
    }
    if (what == "name") {
        return {QDBusConnection::systemBus().baseService().toStdString()};
    }
    throw std::runtime_error("no such request: " + what);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        return 2;
    }
    LinkUnderTest link(QString::fromLocal8Bit(argv[1]));
    // Between requests the event loop turns, as the program's does: departures are noticed.
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
                answer(handle(link, request));
            } catch (const std::exception &error) {
                answerError(error.what());
            }
        }
        isServing = false;
    });
    return QCoreApplication::exec();
}
