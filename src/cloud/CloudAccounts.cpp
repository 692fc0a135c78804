// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudAccounts.h"

#include "base/SettingsKeys.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kindKey = "kind"_L1;
constexpr auto serverKey = "server"_L1;
constexpr auto userKey = "user"_L1;
constexpr auto folderKey = "folder"_L1;
constexpr auto fingerprintKey = "fingerprint"_L1;
constexpr auto webDav = "WebDAV"_L1;
constexpr auto folder = "folder"_L1;
constexpr auto leftKey = "left"_L1;
constexpr qsizetype fingerprintSize = 32;
constexpr qsizetype mostLeft = 16;

/// Nothing where it is not one of a certificate's.
std::optional<QByteArray> fingerprintOf(const QString &text)
{
    const QByteArray bytes = QByteArray::fromHex(text.toLatin1());
    const bool isWhole = bytes.isEmpty() ? text.isEmpty() : bytes.size() == fingerprintSize;
    return isWhole ? std::optional(bytes) : std::nullopt;
}

std::optional<CloudAccount> accountOf(const QVariantMap &stored)
{
    const auto text = [&stored](QLatin1StringView key) {
        const QVariant value = stored.value(key);
        return propertyListType(value) == PropertyListType::String ? value.toString() : QString();
    };
    CloudAccount account{.folder = text(folderKey)};
    if (account.folder.isEmpty()) {
        return std::nullopt;
    }
    if (text(kindKey) == folder) {
        return account;
    }
    account.kind = CloudAccount::Kind::WebDav;
    account.server = QUrl(text(serverKey), QUrl::StrictMode);
    account.user = text(userKey);
    const auto fingerprint = fingerprintOf(text(fingerprintKey));
    if (text(kindKey) != webDav || !account.server.isValid() || account.server.host().isEmpty() ||
        account.user.isEmpty() || !fingerprint) {
        return std::nullopt;
    }
    account.fingerprint = *fingerprint;
    return account;
}

QVariantMap stored(const CloudAccount &account)
{
    if (account.kind == CloudAccount::Kind::Folder) {
        return {{kindKey, QString(folder)}, {folderKey, account.folder}};
    }
    return {{kindKey, QString(webDav)},
        {serverKey, QString::fromLatin1(account.server.toEncoded(QUrl::FullyEncoded))},
        {userKey, account.user}, {folderKey, account.folder},
        {fingerprintKey, QString::fromLatin1(account.fingerprint.toHex())}};
}

} // namespace

CloudAccounts::CloudAccounts(SettingsStore &settings)
    : m_settings(settings)
    , m_told(account())
    , m_observer(settings.addObserver(keys::cloudAccount, [this](const auto &) { tell(); }))
{
}

CloudAccounts::~CloudAccounts()
{
    m_settings.removeObserver(m_observer);
}

std::optional<CloudAccount> CloudAccounts::account() const
{
    return accountOf(m_settings.getDictionary(keys::cloudAccount));
}

void CloudAccounts::set(const CloudAccount &account)
{
    store(account, left());
}

void CloudAccounts::forget()
{
    store(std::nullopt, left());
}

QList<CloudAccount> CloudAccounts::left() const
{
    QList<CloudAccount> accounts;
    const QVariant value = m_settings.getDictionary(keys::cloudAccount).value(leftKey);
    const bool isList = propertyListType(value) == PropertyListType::Array;
    for (const QVariant &each : isList ? value.toList().mid(0, mostLeft) : QVariantList()) {
        if (const auto account = accountOf(each.toMap())) {
            accounts.append(*account);
        }
    }
    return accounts;
}

void CloudAccounts::addLeft(const CloudAccount &account)
{
    QList<CloudAccount> accounts = left();
    if (!accounts.contains(account)) {
        accounts.prepend(account);
        store(this->account(), accounts.mid(0, mostLeft));
    }
}

void CloudAccounts::removeLeft(const CloudAccount &account)
{
    QList<CloudAccount> accounts = left();
    if (accounts.removeAll(account) > 0) {
        store(this->account(), accounts);
    }
}

void CloudAccounts::store(
    const std::optional<CloudAccount> &account, const QList<CloudAccount> &left)
{
    QVariantMap value = account ? stored(*account) : QVariantMap();
    if (!left.isEmpty()) {
        QVariantList list;
        std::ranges::transform(left, std::back_inserter(list), stored);
        value.insert(leftKey, list);
    }
    m_settings.set(keys::cloudAccount, value.isEmpty() ? QVariant() : QVariant(value));
    m_settings.synchronize();
}

QVariant CloudAccounts::identityToken() const
{
    const auto signedIn = account();
    return signedIn ? QVariant(signedIn->identityToken()) : QVariant();
}

CloudAccounts::Token CloudAccounts::addObserver(std::function<void()> changed)
{
    m_observers.emplace(m_nextToken, std::move(changed));
    return m_nextToken++;
}

void CloudAccounts::removeObserver(Token token)
{
    m_observers.erase(token);
}

void CloudAccounts::tell()
{
    const auto now = account();
    if (std::exchange(m_told, now) == now) {
        return;
    }
    const auto observers = m_observers;
    for (const auto &[token, changed] : observers) {
        if (m_observers.contains(token)) {
            changed();
        }
    }
}

} // namespace quillon
