// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudSecrets.h"

#include "base/Log.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Of both parts in Base64.
constexpr QChar separator = u'.';

QString textOf(const AccountKey &key, const QByteArray &file)
{
    QByteArray bytes = key.bytes();
    QByteArray secret = bytes.toBase64();
    const QString text =
        QString::fromLatin1(secret) + separator + QString::fromLatin1(file.toBase64());
    wipe(bytes);
    wipe(secret);
    return text;
}

std::shared_ptr<const OpenedKey> keyOf(const QString &text)
{
    const qsizetype end = text.indexOf(separator);
    QByteArray bytes = QByteArray::fromBase64(text.left(end).toLatin1());
    auto key = AccountKey::fromBytes(bytes);
    wipe(bytes);
    if (end < 0 || !key) {
        return nullptr;
    }
    return std::make_shared<const OpenedKey>(
        OpenedKey{std::move(*key), QByteArray::fromBase64(text.mid(end + 1).toLatin1())});
}

} // namespace

CloudSecrets::CloudSecrets(SecretStore &store)
    : m_store(store)
{
}

QString CloudSecrets::keyName(const CloudAccount &account)
{
    constexpr qsizetype digits = 32;
    return u"key of account "_s + QString::fromLatin1(account.identityToken().toHex().left(digits));
}

void CloudSecrets::keep(const CloudAccount &account, const Kept &kept, Done done)
{
    const auto keepPassword = [&store = m_store, name = account.secretName(),
                                  password = kept.password, done = std::move(done)](
                                  const std::optional<SecretStore::Failure> &failure) {
        if (failure || name.isEmpty()) {
            done(failure);
        } else {
            store.store(name, password, done);
        }
    };
    m_store.store(keyName(account), textOf(kept.key->key, kept.key->file), keepPassword);
}

void CloudSecrets::keepKeyFile(
    const CloudAccount &account, const AccountKey &key, const QByteArray &file, Done done)
{
    m_store.store(keyName(account), textOf(key, file), std::move(done));
}

void CloudSecrets::read(const CloudAccount &account, Read read)
{
    using Answer = std::variant<std::optional<QString>, SecretStore::Failure>;
    const auto readPassword = [&store = m_store, name = account.secretName(),
                                  read = std::move(read)](const Answer &answer) {
        if (const auto *const failure = std::get_if<SecretStore::Failure>(&answer)) {
            read(*failure);
            return;
        }
        const QString text = std::get<std::optional<QString>>(answer).value_or(QString());
        const auto key = keyOf(text);
        if (!key) {
            read(std::optional<Kept>());
        } else if (name.isEmpty()) {
            read(std::optional(Kept{{}, key}));
        } else {
            store.read(name, [key, read](const Answer &password) {
                if (const auto *const failure = std::get_if<SecretStore::Failure>(&password)) {
                    read(*failure);
                    return;
                }
                const auto &kept = std::get<std::optional<QString>>(password);
                read(kept ? std::optional(Kept{*kept, key}) : std::nullopt);
            });
        }
    };
    m_store.read(keyName(account), readPassword);
}

void CloudSecrets::forget(const CloudAccount &account, const std::optional<CloudAccount> &other,
    std::function<void(bool)> done)
{
    const QStringList needed =
        other ? QStringList{keyName(*other), other->secretName()} : QStringList();
    QStringList names{keyName(account), account.secretName()};
    names.removeIf(
        [&needed](const QString &name) { return name.isEmpty() || needed.contains(name); });
    if (names.isEmpty() && done) {
        done(true);
    }
    const auto left = std::make_shared<qsizetype>(names.size());
    const auto all = std::make_shared<bool>(true);
    for (const QString &name : std::as_const(names)) {
        m_store.remove(name, [left, all, done](const std::optional<SecretStore::Failure> &failure) {
            if (failure) {
                *all = false;
                qCWarning(
                    logSync, "a secret stays in the keyring: %s", qUtf8Printable(failure->message));
            }
            if (--*left == 0 && done) {
                done(*all);
            }
        });
    }
}

} // namespace quillon
