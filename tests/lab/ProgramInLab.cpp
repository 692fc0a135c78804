// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: lab-program FOLDER [SPEED [login]]
// The program without windows, in FOLDER, for the cases in the lab's machine: what a person does in
// the window is a request here. SPEED is how many times faster its clock runs, 1 unless told; with
// "login" it was started by the login item. Requests:
//   change DEVICE ADDRESS  as the window's button does it: whether the address is in place, the
//                          address that DEVICE has, and the nanoseconds that it took
//   begin DEVICE ADDRESS   the same without waiting
//   rule DEVICE NETWORK ADDRESS MINUTES
//                          makes a rule, switched off, and says its identity. NETWORK is one of
//                          networks/SpecialNetworks.h, a BSSID, or "" for a login rule; ADDRESS may
//                          be "random"; MINUTES are those of "Every", or 0 for once
//   switch RULE on|off     the check box of that rule
//   pause DEVICE           the countdown's buttons
//   resume DEVICE
//   countdowns             the interfaces that have a countdown
//   history                what rules and people have changed: DEVICE ADDRESS for each
//   messages               the titles that the user was told since the last time
//   wifi                   what the window shows of the network that the radio is on: KEY=TEXT, …
//   traces DEVICE          what the window says that the interface's network still sees: LABEL|VALUE|HINT, …
//   install                as the window's button does it: whether the helper is installed now
//   uninstall              the same of its other button
#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "bench/ServeInLoop.h"
#include "contract/Names.h"
#include "integration/app/ComposedProgram.h"
#include "integration/app/RecordsFile.h"
#include "integration/platform/linux/Waiting.h"
#include "networks/WiFiNetwork.h"
#include "platform/linux/owner/TakeBackGuard.h"
#include "platform/linux/wifi/Nl80211WiFiClient.h"
#include "presentation/networks/NetworkInfoModel.h"
#include "presentation/networks/TracesModel.h"
#include "rules/Rule.h"
#include "rules/RuleActions.h"
#include "store/graph/ManagedObjectContext.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <stdexcept>

namespace {

using namespace Qt::StringLiterals;

using namespace quillon;
using namespace quillon::bench;

class ProgramInLab
{
public:
    ProgramInLab(const QString &folder, int speed)
        : m_records(test::ComposedProgram::recordsPath(folder))
        , m_program(folder, speed, TakeBackGuard::ownCommand(), &m_radio)
    {
        m_program.launch();
    }

    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        if (what == "change" || what == "begin") {
            return change(text(request, 1), text(request, 2), what == "change");
        }
        if (what == "rule") {
            return {makeRule(request).toStdString()};
        }
        if (what == "switch") {
            features().rules.switches.toggleRule(
                {{u"objID"_s, text(request, 1)}, {u"state"_s, request.at(2) == "on"}});
            return {"switched"};
        }
        if (what == "pause" || what == "resume") {
            CountdownTimers &timers = features().rules.timers;
            what == "pause" ? timers.pauseCountdownTimer(text(request, 1))
                            : timers.resumeCountdownTimer(text(request, 1));
            return {what + "d"};
        }
        if (what == "countdowns") {
            return words("running", features().rules.timers.timers().keys());
        }
        if (what == "history") {
            return history();
        }
        if (what == "messages") {
            return messages();
        }
        if (what == "wifi") {
            return wifi();
        }
        if (what == "network") {
            return words("named", {features().networks.info.state().name});
        }
        if (what == "traces") {
            return traces(text(request, 1));
        }
        if (what == "install" || what == "uninstall") {
            return helper(what == "install");
        }
        throw std::runtime_error("no such request: " + what);
    }

private:
    static QString text(const Words &request, std::size_t place)
    {
        return QString::fromStdString(request.at(place));
    }

    static Words words(const std::string &first, const QStringList &others)
    {
        Words all{first};
        for (const QString &other : others) {
            all.push_back(other.toStdString());
        }
        return all;
    }

    Features &features() { return m_program.delegate().features(); }

    Words change(const QString &device, const QString &address, bool isAwaited)
    {
        const auto begin = Clock::now();
        const auto outcome = std::make_shared<std::optional<ChangeOutcome>>();
        features().devices.addressChanger.updateMacAddressWithAddress(
            device, address, [outcome](const ChangeOutcome &came) { *outcome = came; });
        if (!isAwaited) {
            return {"begun"};
        }
        if (!test::eventually([&] { return outcome->has_value(); })) {
            throw std::runtime_error("the change does not end");
        }
        return {(*outcome)->isInPlace ? "in place" : "not in place",
            (*outcome)->address.toStdString(), word(Clock::now() - begin)};
    }

    QString makeRule(const Words &request)
    {
        const QString network = text(request, 2);
        const QString address = text(request, 3);
        const int minutes = std::stoi(request.at(4));
        const bool isLogin = network.isEmpty();
        ManagedObjectContext &context = features().history.store.managedObjectContext();
        const Rule rule(context.insertNewObject(model::Rule));
        rule.setDevice(text(request, 1));
        rule.setName(u"%1 on %2"_s.arg(rule.device(), network));
        rule.setNetwork(network);
        rule.setIsLogin(isLogin);
        rule.setAction(isLogin ? Rule::notChosen : Rule::changeAddress);
        rule.setChangeAction(isLogin ? Rule::notChosen : minutes > 0 ? Rule::every : Rule::once);
        rule.setTimerMins(minutes);
        rule.setAddress(address == "random"_L1 ? randomAddressTitle() : address);
        rule.setEnabled(false);
        if (const auto error = context.save()) {
            throw std::runtime_error(error->message.toStdString());
        }
        features().rules.evaluation.rulesWereChanged();
        return rule.objID();
    }

    Words history() const
    {
        QStringList changes;
        const QList<QVariantMap> saved = test::savedHistory(m_records);
        for (const QVariantMap &change : saved) {
            changes.append(change.value(model::connection::device).toString() + u' ' +
                           change.value(model::connection::address).toString());
        }
        return words("changed", changes);
    }

    Words wifi()
    {
        features().networks.wifi.updateWiFiNetwork();
        const QVariantMap shown = m_program.settings.getDictionary(keys::currentWiFiDict);
        Words words{"wifi"};
        for (const auto &[key, text] : shown.asKeyValueRange()) {
            words.push_back((key + u'=' + text.toString()).toStdString());
        }
        return words;
    }

    void showTraces(const QString &device)
    {
        features().devices.currentInterface.selectInterface(device);
        TracesModel &model = features().networks.traces;
        model.setShown(true);
        if (!test::eventually([&] {
                return model.state().title.contains(device) &&
                       model.state().line != localized("Looking…");
            })) {
            throw std::runtime_error("nothing is read");
        }
    }

    Words traces(const QString &device)
    {
        // Those of another interface first, so that nothing of an earlier time is left.
        const QStringList others = features().devices.table.names();
        for (const QString &other : others) {
            if (other != device) {
                showTraces(other);
                break;
            }
        }
        showTraces(device);
        TracesModel &model = features().networks.traces;
        model.setShown(false);
        Words words{"traces"};
        for (const TracesModel::Row &row : model.state().rows) {
            words.push_back(QStringList({row.label, row.value, row.hint}).join(u'|').toStdString());
        }
        return words;
    }

    Words helper(bool shallBeThere)
    {
        XPCMethods &helper = features().helper;
        const auto success = std::make_shared<std::optional<bool>>();
        const auto reply = [success](bool came) { // on any thread
            QMetaObject::invokeMethod(qApp, [success, came] { *success = came; });
        };
        if (shallBeThere) {
            helper.installHelperToolwithReply(reply);
        } else {
            helper.uninstallHelperToolwithReply(reply);
        }
        if (!test::eventually([&] { return success->has_value(); })) {
            throw std::runtime_error("nobody answers");
        }
        return {success->value() ? "done" : "not done"};
    }

    Words messages()
    {
        const QStringList titles = m_program.messageTitles();
        const QStringList news = titles.mid(m_told);
        m_told = titles.size();
        return words("told", news);
    }

    const QString m_records;
    Nl80211WiFiClient m_radio;
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
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 4) {
        return 2;
    }
    if (arguments.value(3) == "login"_L1) {
        // The login item has this name while it waits for the program to come up.
        QDBusConnection::sessionBus().registerService(QLatin1String(contract::loginHelperName));
    }
    ProgramInLab program(arguments.at(1), arguments.value(2, u"1"_s).toInt());
    return serveInLoop([&program](const Words &request) { return program.handle(request); });
}
