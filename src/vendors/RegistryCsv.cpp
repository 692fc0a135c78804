// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/RegistryCsv.h"

#include <algorithm>
#include <cstdlib>
#include <csv.h>
#include <limits>
#include <utility>

namespace quillon {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t noColumn = std::numeric_limits<std::size_t>::max();
/// The parser's buffer grows by so much at a time.
constexpr std::size_t bufferStep = std::size_t{64} * 1024;

constexpr std::array<std::string_view, registryFieldCount> columnNames = {
    "Assignment", "Organization Address", "Organization Name", "Registry"};

/// The parser drops what it takes for white space around a field: here nothing is.
int isNoSpace(unsigned char)
{
    return 0;
}

void *reallocateUpToLimit(void *buffer, std::size_t size)
{
    // The parser reads "no memory" as an error of its own and ends.
    return size <= RegistryCsv::fieldLimit + bufferStep ? std::realloc(buffer, size) : nullptr;
}

} // namespace

struct RegistryCsv::State
{
    explicit State(RowHandler rowHandler)
        : handler(std::move(rowHandler))
    {
        columns.fill(noColumn);
        usable = csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI) == 0;
        csv_set_space_func(&parser, isNoSpace);
        csv_set_realloc_func(&parser, reallocateUpToLimit);
        csv_set_blk_size(&parser, bufferStep);
    }
    ~State() { csv_free(&parser); }
    State(const State &) = delete;
    State &operator=(const State &) = delete;

    static void onField(void *text, std::size_t length, void *state);
    static void onRow(int, void *state) { static_cast<State *>(state)->takeRow(); }

    void parse(std::string_view bytes);
    void endMark();
    void takeField(std::string_view text);
    void takeRow();

    RowHandler handler;
    csv_parser parser{};
    bool usable = false;
    /// So many bytes of a byte-order mark have come and are held back.
    std::size_t markBytes = 0;
    bool markPassed = false;
    bool headerRead = false;
    /// For each field the column that holds it.
    std::array<std::size_t, registryFieldCount> columns;
    std::size_t column = 0;
    RegistryRow row;
};

void RegistryCsv::State::onField(void *text, std::size_t length, void *state)
{
    // The parser gives no text at all for an empty field.
    const auto *const bytes = static_cast<const char *>(text);
    static_cast<State *>(state)->takeField({length == 0 ? "" : bytes, length});
}

void RegistryCsv::State::parse(std::string_view bytes)
{
    if (usable && !bytes.empty()) {
        const std::size_t read =
            csv_parse(&parser, bytes.data(), bytes.size(), onField, onRow, this);
        usable = usable && read == bytes.size();
    }
}

/// No byte-order mark: what looked like the beginning of one is text.
void RegistryCsv::State::endMark()
{
    markPassed = true;
    parse(byteOrderMark.substr(0, markBytes));
}

void RegistryCsv::State::takeField(std::string_view text)
{
    usable = usable && text.size() <= fieldLimit;
    for (std::size_t field = 0; usable && field < registryFieldCount; ++field) {
        if (!headerRead && text == columnNames[field]) {
            columns[field] = column;
        } else if (headerRead && column == columns[field]) {
            row.texts[field].assign(text);
            row.present[field] = true;
        }
    }
    ++column;
}

void RegistryCsv::State::takeRow()
{
    // The parser cannot be stopped inside a piece: the rest of it is ignored.
    if (usable && headerRead) {
        usable = handler(row);
    }
    headerRead = true;
    column = 0;
    row.present.fill(false);
}

RegistryCsv::RegistryCsv(RowHandler handler)
    : m_state(std::make_unique<State>(std::move(handler)))
{
}

RegistryCsv::~RegistryCsv() = default;

bool RegistryCsv::feed(std::string_view bytes)
{
    State &state = *m_state;
    while (!state.markPassed && !bytes.empty()) {
        if (bytes.front() != byteOrderMark[state.markBytes]) {
            state.endMark();
        } else {
            bytes.remove_prefix(1);
            state.markPassed = ++state.markBytes == byteOrderMark.size();
        }
    }
    state.parse(bytes);
    return state.usable;
}

bool RegistryCsv::finish()
{
    State &state = *m_state;
    if (!state.markPassed) {
        state.endMark();
    }
    if (state.usable) {
        const int error = csv_fini(&state.parser, State::onField, State::onRow, &state);
        state.usable = state.usable && error == 0;
    }
    return state.usable;
}

} // namespace quillon
