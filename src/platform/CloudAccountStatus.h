// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariant>

#include <functional>

namespace quillon {

/// Who is signed in to the cloud account. Main thread.
class CloudAccountStatus
{
public:
    using Token = quint64;

    virtual ~CloudAccountStatus() = default;

    /// Tells accounts apart, as property-list data; invalid while nobody is signed in.
    virtual QVariant identityToken() const = 0;
    /// `changed` is called after each sign-in and sign-out.
    virtual Token addObserver(std::function<void()> changed) = 0;
    virtual void removeObserver(Token token) = 0;
};

} // namespace quillon
