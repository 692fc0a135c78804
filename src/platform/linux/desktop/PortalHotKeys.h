// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/HotKeys.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QObject>

#include <optional>

namespace quillon {

/// Hot keys by the desktop portal (org.freedesktop.portal.GlobalShortcuts). The portal takes the
/// hot keys of a session all at once and only once, and may ask its user: each change makes a new
/// session with all of them.
class PortalHotKeys : public QObject, public HotKeyBinder
{
    Q_OBJECT

public:
    explicit PortalHotKeys(
        const QDBusConnection &bus = QDBusConnection::sessionBus(), QObject *parent = nullptr);
    ~PortalHotKeys() override;

    /// The question whether the desktop has this portal, to be sent; it has when the answer is no
    /// error.
    static QDBusMessage isOfferedQuestion();

    void bind(const HotKey &hotKey, Reply reply) override;
    void release(const QString &identifier) override;

private Q_SLOTS:
    void responded(const QDBusMessage &response);
    void activated(const QDBusMessage &signal);
    void portalStarted();

private:
    struct Wish
    {
        HotKey hotKey;
        std::optional<Reply> reply; ///< until it was given
    };

    void renewSoon();
    void renew();
    void closeSession();
    void createSession();
    void bindAll();
    QString expectResponse();
    void call(const QString &method, const QVariantList &arguments);
    void sessionCreated(uint code, const QVariantMap &results);
    void allBound(uint code, const QVariantMap &results);
    void answer(const QString &identifier, HotKeyResult result);
    void answerAll(HotKeyResult result);

    QDBusConnection m_bus;
    QMap<QString, Wish> m_wishes; ///< by identifier
    bool m_isRenewing = false;
    int m_tokens = 0;
    QString m_request; ///< the object path of the one that is waited for
    QString m_session; ///< the object path; empty: none
    bool m_isBinding = false;
};

} // namespace quillon
