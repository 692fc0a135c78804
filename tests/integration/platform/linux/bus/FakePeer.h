// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

namespace quillon::test {

/// A peer on the bus that answers as a test says, or not at all.
class FakePeer : public QDBusVirtualObject
{
public:
    using Answer = std::function<QDBusMessage(const QDBusMessage &call)>;

    FakePeer(QString bus, const char *path, Answer answer)
        : m_bus(std::move(bus))
        , m_answer(std::move(answer))
    {
        EXPECT_TRUE(QDBusConnection(m_bus).registerVirtualObject(QLatin1String(path), this));
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &) override
    {
        calls.push_back(call);
        const QDBusMessage answer = m_answer(call);
        if (answer.type() != QDBusMessage::InvalidMessage) {
            QDBusConnection(m_bus).send(answer);
        }
        return true;
    }

    std::vector<QDBusMessage> calls;

private:
    const QString m_bus; // a copy of the connection itself would keep it from closing
    const Answer m_answer;
};

} // namespace quillon::test
