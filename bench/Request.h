// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// How the measuring programs are asked: one line on standard input is one request, its words
/// separated by tabs; one line on standard output is the answer, its words separated by tabs, the
/// first "error" where it failed. So several programs can be measured in turns; times are taken
/// inside them, without the time of whoever asks.
namespace quillon::bench {

using Clock = std::chrono::steady_clock;
using Words = std::vector<std::string>;

Words wordsOf(const std::string &line);
void answer(const Words &words);
void answerError(const std::string &why);

/// Nanoseconds, as a word.
std::string word(Clock::duration duration);

/// Answers requests until standard input ends.
void serve(const std::function<Words(const Words &)> &handle);

} // namespace quillon::bench
