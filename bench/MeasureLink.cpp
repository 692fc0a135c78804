// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: measure-link SETTINGS-FILE
// Started as the ordinary user. Requests: name; change, direct DEVICE ADDRESS; connect; version;
// ports; refresh.
#include "bench/LinkUnderTest.h"
#include "bench/ServeInLoop.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <stdexcept>

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
    // Between requests departures of the other programs are noticed.
    return serveInLoop([&link](const Words &request) { return handle(link, request); });
}
