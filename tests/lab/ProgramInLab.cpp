// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: lab-program FOLDER
// The program without windows, in FOLDER, for the cases in the lab's machine: what a person does in
// the window is a request here. Requests:
//   change DEVICE ADDRESS  as the window's button does it: whether the address is in place, the
//                          address that DEVICE has, and the nanoseconds that it took
//   begin DEVICE ADDRESS   the same without waiting
//   messages               the titles that the user was told since the last time
#include "bench/ServeInLoop.h"
#include "integration/app/ComposedProgram.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/linux/owner/TakeBackGuard.h"

#include <QCoreApplication>

#include <stdexcept>

namespace {

using namespace quillon;
using namespace quillon::bench;

constexpr int realTime = 1;

class ProgramInLab
{
public:
    explicit ProgramInLab(const QString &folder)
        : m_program(folder, realTime, TakeBackGuard::ownCommand())
    {
        m_program.launch();
    }

    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        if (what == "change" || what == "begin") {
            const auto begin = Clock::now();
            const auto outcome = std::make_shared<std::optional<ChangeOutcome>>();
            m_program.delegate().features().devices.addressChanger.updateMacAddressWithAddress(
                QString::fromStdString(request.at(1)), QString::fromStdString(request.at(2)),
                [outcome](const ChangeOutcome &came) { *outcome = came; });
            if (what == "begin") {
                return {"begun"};
            }
            if (!test::eventually([&] { return outcome->has_value(); })) {
                throw std::runtime_error("the change does not end");
            }
            return {(*outcome)->isInPlace ? "in place" : "not in place",
                (*outcome)->address.toStdString(), word(Clock::now() - begin)};
        }
        if (what == "messages") {
            return messages();
        }
        throw std::runtime_error("no such request: " + what);
    }

private:
    Words messages()
    {
        const QStringList titles = m_program.messageTitles();
        Words news{"told"};
        for (; m_told < titles.size(); ++m_told) {
            news.push_back(titles.at(m_told).toStdString());
        }
        return news;
    }

    test::ComposedProgram m_program;
    qsizetype m_told = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (const auto device = TakeBackGuard::guardedDevice(argc, argv)) {
        QtScheduler scheduler;
        return TakeBackGuard::standGuard(*device, scheduler);
    }
    if (argc != 2) {
        return 2;
    }
    ProgramInLab program(QString::fromLocal8Bit(argv[1]));
    return serveInLoop([&program](const Words &request) { return program.handle(request); });
}
