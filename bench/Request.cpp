// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Request.h"

#include <exception>
#include <iostream>

namespace quillon::bench {

Words wordsOf(const std::string &line)
{
    Words words;
    std::size_t begin = 0;
    for (std::size_t end = 0; end != std::string::npos; begin = end + 1) {
        end = line.find('\t', begin);
        words.push_back(line.substr(begin, end == std::string::npos ? end : end - begin));
    }
    return words;
}

void answer(const Words &words)
{
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::cout << (i > 0 ? "\t" : "") << words[i];
    }
    std::cout << std::endl;
}

void answerError(const std::string &why)
{
    answer({"error", why});
}

std::string word(Clock::duration duration)
{
    return std::to_string(std::chrono::nanoseconds(duration).count());
}

void serve(const std::function<Words(const Words &)> &handle)
{
    std::string line;
    while (std::getline(std::cin, line)) {
        try {
            answer(handle(wordsOf(line)));
        } catch (const std::exception &error) {
            answerError(error.what());
        }
    }
}

} // namespace quillon::bench
