// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QPointer>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace quillon {

/// Questions to one program on the bus of which the answers are put together. Nobody is started
/// for it. `done` is called once, when the last of those who hold this has gone, unless `context`
/// has gone before: each question holds this until its answer has been taken. Answers come within
/// two seconds, or are errors. Main thread.
class BusAnswers : public std::enable_shared_from_this<BusAnswers>
{
public:
    using Take = std::function<void(const QDBusMessage &answer)>;

    BusAnswers(QDBusConnection bus, QString service, QObject *context, std::function<void()> done);
    ~BusAnswers();
    BusAnswers(const BusAnswers &) = delete;
    BusAnswers &operator=(const BusAnswers &) = delete;

    /// `take` is only called with an answer, never with an error.
    void ask(const QString &path, const QString &interface, const QString &method,
        const QVariantList &arguments, const Take &take);
    /// All properties of an interface.
    void askProperties(const QString &path, const QString &interface,
        const std::function<void(const QVariantMap &properties)> &take);
    void isRunning(const std::function<void(bool)> &take);

private:
    void send(const QDBusMessage &call, const Take &take);

    QDBusConnection m_bus;
    const QString m_service;
    QPointer<QObject> m_context;
    std::function<void()> m_done;
};

} // namespace quillon
