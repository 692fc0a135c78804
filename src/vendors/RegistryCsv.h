// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quillon {

/// The columns of the registry that are kept, in the order in which they are stored.
enum class RegistryField
{
    Assignment,
    OrganizationAddress,
    OrganizationName,
    Registry,
};
inline constexpr std::size_t registryFieldCount = 4;

/// One record of the registry, as the bytes of the file: usually UTF-8, but nobody has checked.
struct RegistryRow
{
    std::array<std::string, registryFieldCount> texts;
    /// False where the file has no such column, or the record ends before it.
    std::array<bool, registryFieldCount> present{};

    /// None where it is missing.
    const std::string *field(RegistryField field) const
    {
        const auto index = static_cast<std::size_t>(field);
        return present[index] ? &texts[index] : nullptr;
    }
};

/// Reads the registry's CSV text as it comes: RFC 4180 with any of CR LF, LF and CR as line end,
/// commas only, white space kept, backslashes plain. Empty lines are no records. The first record
/// names the columns; "Assignment", "Organization Address", "Organization Name" and "Registry" are
/// kept, of columns of one name the last. A byte-order mark before it is no part of its first name.
///
/// A quote that is not where RFC 4180 allows one, an unfinished quoted field at the end and a field
/// longer than fieldLimit are parse errors. What is kept in memory is one field and one row.
class RegistryCsv
{
public:
    static constexpr std::size_t fieldLimit = std::size_t{16} * 1024 * 1024;

    /// Receives each record after the first; false stops the reading. The row is valid during the
    /// call. Must not throw.
    using RowHandler = std::function<bool(const RegistryRow &)>;

    explicit RegistryCsv(RowHandler handler);
    ~RegistryCsv();
    RegistryCsv(const RegistryCsv &) = delete;
    RegistryCsv &operator=(const RegistryCsv &) = delete;

    /// The next piece of the file, however it is cut. False after a parse error and when the
    /// handler has stopped the reading: nothing more is read then.
    bool feed(std::string_view bytes);
    /// The file has ended. The same answer.
    bool finish();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace quillon
