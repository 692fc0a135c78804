// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/LinkUnderTest.h"

#include "base/NotificationNames.h"
#include "contract/Names.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QEventLoop>

#include <stdexcept>

namespace quillon::bench {

using namespace Qt::StringLiterals;

namespace {

const QString failureTitle = u"was not Changed"_s;

} // namespace

LinkUnderTest::LinkUnderTest(const QString &settings)
    : m_settings(settings, m_scheduler, {})
    , m_changer({m_settings, m_scheduler, m_notifications, *this, m_helper, m_owners, m_devices,
          m_currentInterface, m_randomAddress})
{
    QObject::connect(&m_changer, &AddressChanger::addressChanged, [this] { m_announced = true; });
    m_helper.authorizeHelperTool(true);
    m_devices.updateNetWorkInterfaces();
    m_currentInterface.selectInitialDevice();
}

void LinkUnderTest::sendNotificationWithBody(const QString &title, const QString &body)
{
    if (title.contains(failureTitle)) {
        m_failure = body;
    }
}

Words LinkUnderTest::change(const QString &device, const QString &address)
{
    m_failure.reset();
    m_announced = false;
    const Clock::time_point begin = Clock::now();
    m_changer.updateMacAddressWithAddress(device, address);
    while (!m_announced && !m_failure) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const Clock::time_point end = Clock::now();
    if (m_failure) {
        throw std::runtime_error("not changed: " + m_failure->toStdString());
    }
    // What the announcement set in motion ends before the next request is measured.
    const Words times{word(m_host.lastAnswer() - begin), word(end - begin)};
    if (m_devices.getInfoForDevice(device).macAddress != address) {
        throw std::runtime_error("the kernel has another address");
    }
    return times;
}

Words LinkUnderTest::ports()
{
    const Clock::time_point begin = Clock::now();
    const auto ports = m_kernel.ports();
    const Clock::time_point end = Clock::now();
    if (!ports) {
        throw std::runtime_error("the interfaces cannot be read");
    }
    return {word(end - begin), std::to_string(ports->size())};
}

Words LinkUnderTest::refresh()
{
    const Clock::time_point begin = Clock::now();
    m_devices.updateNetWorkInterfaces();
    return {word(Clock::now() - begin)};
}

QDBusMessage LinkUnderTest::call(const QDBusConnection &bus, const QDBusMessage &message)
{
    QDBusMessage reply = bus.call(message, QDBus::Block, contract::answerLimit);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        throw std::runtime_error(reply.errorName().toStdString());
    }
    return reply;
}

LinkUnderTest::Reached LinkUnderTest::reach()
{
    const QDBusMessage reply = call(QDBusConnection::sessionBus(),
        QDBusMessage::createMethodCall(QLatin1String(contract::serviceName),
            QLatin1String(contract::service::path), QLatin1String(contract::service::interface),
            QLatin1String(contract::service::connectWithEndpointAndAuthorization.name)));
    return {reply.arguments().at(0).toString(), reply.arguments().at(1).toByteArray()};
}

Words LinkUnderTest::connectThroughService()
{
    const Clock::time_point begin = Clock::now();
    m_reached = reach();
    return {word(Clock::now() - begin)};
}

Words LinkUnderTest::callHelper(const contract::Method &method, const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_reached.endpoint, QLatin1String(contract::helper::path),
            QLatin1String(contract::helper::interface), QLatin1String(method.name));
    message.setArguments(arguments);
    const Clock::time_point begin = Clock::now();
    call(QDBusConnection::systemBus(), message);
    return {word(Clock::now() - begin)};
}

Words LinkUnderTest::versionOfHelper()
{
    return callHelper(contract::helper::getVersion, {});
}

Words LinkUnderTest::changeByHelper(const QString &device, const QString &address)
{
    return callHelper(
        contract::helper::changeAddressOfDevice, {device, address, false, m_reached.authorization});
}

} // namespace quillon::bench
