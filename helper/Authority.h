// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <string>

namespace quillon {

/// Decides whether a caller may do something, asking a person where that is the rule.
class Authority
{
public:
    using Details = std::map<std::string, std::string>;
    using Answer = std::function<void(bool authorized)>;

    virtual ~Authority() = default;

    /// Whether `caller` (a unique bus name) may do `action`; `details` is what a prompt may show.
    /// Every doubt is "no": no authority, an error, an answer that is not understood, no answer in
    /// time. The answer comes later, once; it can take as long as a person thinks. `check` names
    /// this question for cancel(); nobody can guess it.
    virtual void authorize(const std::string &caller, const std::string &action,
        const Details &details, const std::string &check, Answer answer) = 0;
    /// Takes a prompt away whose answer no longer matters. The answer may still come.
    virtual void cancel(const std::string &check) = 0;
};

} // namespace quillon
