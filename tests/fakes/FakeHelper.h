// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HelperLink.h"

#include <QList>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace quillon::test {

class FakeNetworkHost;
class FakeScheduler;

/// The service and the helper behind the link: they keep their addresses on a fake machine and
/// answer as if from a thread of their own, in a later turn. What the real ones refuse they refuse
/// too, by the same names; every way in which they can fail is a switch.
class FakeHelper : public HelperLink
{
public:
    FakeHelper(FakeScheduler &scheduler, FakeNetworkHost &host);
    ~FakeHelper() override;

    // What the peers are like.
    bool serviceExists = true; ///< else every call to it ends in an error
    bool installed = true;     ///< else the service has no endpoint
    bool installFails = false; ///< the service answers the installation with an error
    bool authorizes = true;    ///< else the authorization cannot be created
    bool answersTwice = false; ///< a broken helper: every reply comes twice
    QString version = QStringLiteral("2.0");
    /// What the helper does with a call.
    enum class Mood
    {
        Obliging,
        Refusing, ///< answers with an error
        Hanging,  ///< does not answer until timeOut()
        Dropping, ///< drops the connection instead of an answer; an uninstall is done all the same
        Lying,    ///< claims success and does nothing
    };
    Mood mood = Mood::Obliging;
    bool serviceHangs = false;
    /// From the moment the machine has its new address to the answer that tells so.
    std::chrono::milliseconds changeTakes{0};

    /// What the peers were asked.
    struct Change
    {
        QString device;
        QString address;
        bool deviceIsWiFi = false;
        QByteArray authorization;
    };
    const QList<Change> &changes() const { return m_changes; }
    /// In order: "authorize", "service <name>", "rights", "endpoint", "install", "helper
    /// <endpoint>", "version", "change", "uninstall".
    const QStringList &journal() const { return m_journal; }
    void clearJournal() { m_journal.clear(); }
    /// The authorization that the service gave out with its latest endpoint.
    const QByteArray &givenAuthorization() const { return m_givenAuthorization; }
    /// The bytes that createAuthorization() gives first.
    static QByteArray externalForm();

    /// The peer goes: its connections are invalidated, calls under way end in their error handlers.
    void dropService();
    void dropHelper();
    /// The time limit of the calls that hang passes.
    void timeOut();
    /// Connections to the helper that still exist.
    int liveHelperConnections() const;

    Result<QByteArray> createAuthorization() override;
    std::shared_ptr<XPCServiceConnection> connectToService(const QString &serviceName) override;
    std::shared_ptr<HelperToolConnection> connectToListenerEndpoint(
        const QString &endpoint) override;

private:
    class Link;
    class Service;
    class Tool;

    void answer(const std::function<void()> &reply);
    void hang(const ErrorHandler &errorHandler);
    std::optional<Error> change(const Change &change);

    FakeScheduler &m_scheduler;
    FakeNetworkHost &m_host;
    QList<Change> m_changes;
    QStringList m_journal;
    QByteArray m_givenAuthorization;
    int m_authorizations = 0;
    int m_endpoints = 0;
    QStringList m_livingEndpoints;
    std::vector<ErrorHandler> m_hanging;
    std::vector<std::weak_ptr<Service>> m_services;
    std::vector<std::weak_ptr<Tool>> m_tools;
};

} // namespace quillon::test
