// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <variant>

namespace quillon {

/// Why a file of the account is left alone.
enum class FileProblem
{
    Damaged,  ///< half written, tampered with, renamed, of another account, or of somebody else
    Newer,    ///< written by a later version of the program
    TooLarge, ///< larger than any file of ours, or it would be when it is unpacked
    NotKept,  ///< nothing is wrong with it: this computer could not store what it holds
};

/// What was read, or why nothing was.
template <typename T>
using ReadResult = std::variant<T, FileProblem>;

} // namespace quillon
