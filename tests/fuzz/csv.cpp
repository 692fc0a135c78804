// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Require.h"
#include "vendors/RegistryCsv.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// The first byte says into which pieces the rest is cut; the rest is taken as the registry's text.
// What comes out is compared with a second reading that knows nothing of pieces.

namespace quillon::test {

namespace {

using Fields = std::array<std::optional<std::string>, registryFieldCount>;

struct Reading
{
    std::vector<Fields> rows;
    bool whole = true;
};

Reading readInPieces(std::string_view text, std::size_t piece)
{
    Reading reading;
    RegistryCsv csv([&](const RegistryRow &row) {
        Fields fields;
        for (std::size_t index = 0; index < registryFieldCount; ++index) {
            if (const auto *const field = row.field(static_cast<RegistryField>(index))) {
                fields[index] = *field;
            }
        }
        reading.rows.push_back(fields);
        return true;
    });
    for (; reading.whole && !text.empty(); text.remove_prefix(std::min(piece, text.size()))) {
        // In memory of its own, so that the sanitizers see a byte too far.
        const std::string part(text.substr(0, piece));
        reading.whole = csv.feed(part);
    }
    reading.whole = reading.whole && csv.finish();
    return reading;
}

/// RFC 4180, spelt out.
class PlainReader
{
public:
    explicit PlainReader(std::string_view text)
        : m_text(text)
    {
        if (m_text.substr(0, 3) == "\xEF\xBB\xBF") {
            m_text.remove_prefix(3);
        }
    }

    Reading read()
    {
        Reading reading;
        std::optional<std::vector<std::string>> header;
        while (skipLineEnds(), !m_text.empty()) {
            const auto record = readRecord();
            if (!record) {
                reading.whole = false;
                break;
            }
            if (!header) {
                header = record;
            } else {
                reading.rows.push_back(kept(*header, *record));
            }
        }
        return reading;
    }

private:
    static bool isLineEnd(char c) { return c == '\r' || c == '\n'; }

    void skipLineEnds()
    {
        while (!m_text.empty() && isLineEnd(m_text.front())) {
            m_text.remove_prefix(1);
        }
    }

    /// None after a quote in the wrong place.
    std::optional<std::vector<std::string>> readRecord()
    {
        std::vector<std::string> record;
        for (;;) {
            const auto field = m_text.substr(0, 1) == "\"" ? quoted() : plain();
            if (!field) {
                return std::nullopt;
            }
            record.push_back(*field);
            if (m_text.empty() || isLineEnd(m_text.front())) {
                return record;
            }
            m_text.remove_prefix(1);
        }
    }

    std::optional<std::string> plain()
    {
        const std::size_t end = std::min(m_text.find_first_of("\",\r\n"), m_text.size());
        const std::string field(m_text.substr(0, end));
        m_text.remove_prefix(end);
        return m_text.substr(0, 1) == "\"" ? std::nullopt : std::optional(field);
    }

    std::optional<std::string> quoted()
    {
        std::string field;
        for (;;) {
            m_text.remove_prefix(1);
            const std::size_t end = m_text.find('"');
            if (end == std::string_view::npos) {
                return std::nullopt;
            }
            field += m_text.substr(0, end);
            m_text.remove_prefix(end + 1);
            if (m_text.empty() || m_text.front() == ',' || isLineEnd(m_text.front())) {
                return field;
            }
            if (m_text.front() != '"') {
                return std::nullopt;
            }
            field += '"';
        }
    }

    static Fields kept(
        const std::vector<std::string> &header, const std::vector<std::string> &record)
    {
        constexpr std::array names = {
            "Assignment", "Organization Address", "Organization Name", "Registry"};
        Fields fields;
        for (std::size_t index = 0; index < registryFieldCount; ++index) {
            const auto last = std::find(header.rbegin(), header.rend(), names[index]);
            const auto column = static_cast<std::size_t>(header.rend() - last);
            if (column > 0 && column <= record.size()) {
                fields[index] = record[column - 1];
            }
        }
        return fields;
    }

    std::string_view m_text;
};

void compare(std::string_view text, std::size_t piece)
{
    const Reading ours = readInPieces(text, piece);
    const Reading plain = PlainReader(text).read();
    require(ours.whole == plain.whole, "both find an error, or neither does");
    require(ours.rows == plain.rows, "both read the same records");
}

} // namespace

} // namespace quillon::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 0) {
        const std::string_view text(reinterpret_cast<const char *>(data) + 1, size - 1);
        quillon::test::compare(text, data[0] == 0 ? size : data[0]);
    }
    return 0;
}
