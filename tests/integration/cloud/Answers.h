// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/platform/linux/Waiting.h"
#include "platform/CloudStorage.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

namespace quillon {

inline void PrintTo(CloudProblem problem, std::ostream *out)
{
    constexpr const char *names[]{"NotThere", "Changed", "WrongPassword", "NotAllowed", "Full",
        "TooLarge", "Unreachable", "UntrustedCertificate", "NotAnAccount", "Failed"};
    *out << names[static_cast<int>(problem)];
}

} // namespace quillon

namespace quillon::test {

/// Waits for the one answer of a request; it must come later than the call returns. `ask` is given
/// what takes the answer.
template <typename Answer, typename Ask>
Answer answerTo(const Ask &ask)
{
    const auto answer = std::make_shared<std::optional<Answer>>();
    ask([answer](const Answer &given) {
        EXPECT_FALSE(answer->has_value()) << "a second answer";
        answer->emplace(given);
    });
    EXPECT_FALSE(answer->has_value()) << "it was answered before the call returned";
    EXPECT_TRUE(eventually([&] { return answer->has_value(); })) << "it is not answered";
    return answer->value();
}

/// A storage whose answers are waited for.
class Asked
{
public:
    explicit Asked(CloudStorage &storage)
        : m_storage(storage)
    {
    }

    CloudResult<QList<CloudFile>> list() const
    {
        return answerTo<CloudResult<QList<CloudFile>>>([&](auto done) { m_storage.list(done); });
    }
    CloudResult<CloudStorage::Content> read(const QString &name, qint64 limit = 1 << 20) const
    {
        return answerTo<CloudResult<CloudStorage::Content>>(
            [&](auto done) { m_storage.read(name, limit, done); });
    }
    CloudResult<std::optional<CloudStorage::Content>> readIfChanged(
        const QString &name, const QByteArray &revision, qint64 limit = 1 << 20) const
    {
        return answerTo<CloudResult<std::optional<CloudStorage::Content>>>(
            [&](auto done) { m_storage.readIfChanged(name, revision, limit, done); });
    }
    CloudResult<QByteArray> create(const QString &name, const QByteArray &bytes) const
    {
        return answerTo<CloudResult<QByteArray>>(
            [&](auto done) { m_storage.create(name, bytes, done); });
    }
    CloudResult<QByteArray> replace(
        const QString &name, const QByteArray &bytes, const QByteArray &revision = {}) const
    {
        return answerTo<CloudResult<QByteArray>>(
            [&](auto done) { m_storage.replace(name, bytes, revision, done); });
    }
    std::optional<CloudError> remove(const QString &name) const
    {
        return answerTo<std::optional<CloudError>>(
            [&](auto done) { m_storage.remove(name, done); });
    }

private:
    CloudStorage &m_storage;
};

/// The problem of an answer; none when it has a value.
template <typename T>
std::optional<CloudProblem> problemIn(const CloudResult<T> &result)
{
    const auto *const error = std::get_if<CloudError>(&result);
    return error ? std::optional(error->problem) : std::nullopt;
}
inline std::optional<CloudProblem> problemIn(const std::optional<CloudError> &error)
{
    return error ? std::optional(error->problem) : std::nullopt;
}

/// The value of an answer; with a failure of the test when there is none.
template <typename T>
T valueOf(const CloudResult<T> &result)
{
    if (const auto *const error = std::get_if<CloudError>(&result)) {
        ADD_FAILURE() << ::testing::PrintToString(error->problem) << ": "
                      << error->message.toStdString();
        return {};
    }
    return std::get<T>(result);
}

} // namespace quillon::test
