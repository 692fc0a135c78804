// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Requests about the vendor registry, a folder to write to on the command line:
//   import FILE        imports the registry's text into a new database: nanoseconds, rows
//   rewrite            writes that over the live one and waits for the disk: nanoseconds
//   lookup ASSIGNMENT  one lookup in the live database: nanoseconds, 1 when it was found
//   count              counts the live database's rows: nanoseconds, rows
//   list               reads the live database, builds the list to choose from: nanoseconds, entries
//   grow COUNT         makes the list that long, with entries of its own kind: entries
//   keystroke TEXT     narrows the list by the text: nanoseconds, entries that are left
//   memory             kilobytes resident at most so far
#include "bench/Request.h"
#include "vendors/VendorDatabase.h"
#include "vendors/VendorEntries.h"
#include "vendors/VendorFiles.h"
#include "vendors/VendorTable.h"

#include <QFile>

#include <fstream>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using namespace quillon;
using namespace quillon::bench;

class Vendors
{
public:
    explicit Vendors(const QString &folder)
        : m_files{folder, {}}
        , m_database(m_files.liveDatabase())
    {
    }

    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        const QString text = QString::fromStdString(request.size() > 1 ? request.at(1) : "");
        const auto begin = Clock::now();
        if (what == "import") {
            const bool done = fillVendorTable(text, m_files.newDatabase());
            return answered(begin, done ? VendorDatabase(m_files.newDatabase()).count() : 0);
        }
        if (what == "rewrite") {
            return rewrite();
        }
        if (what == "lookup") {
            return answered(begin, m_database.lookup(text) ? 1 : 0);
        }
        if (what == "count") {
            return answered(begin, m_database.count());
        }
        if (what == "list") {
            QStringList texts{u"Random Address"_s};
            texts += m_database.displayStrings();
            m_entries = VendorEntries(std::move(texts));
            return answered(begin, m_entries.size());
        }
        if (what == "grow") {
            return grow(text.toLongLong());
        }
        if (what == "keystroke") {
            const auto found = m_entries.beginningWith(text);
            return {word(Clock::now() - begin), std::to_string(found.size())};
        }
        return {peakMemory()};
    }

private:
    static std::string peakMemory()
    {
        std::ifstream status("/proc/self/status");
        for (std::string line; status >> line;) {
            if (line == "VmHWM:" && status >> line) {
                return line;
            }
        }
        throw std::runtime_error("the kernel does not say how much memory there was");
    }

    /// What was counted must be something: an empty answer is quick.
    static Words answered(Clock::time_point begin, qsizetype count)
    {
        const auto taken = Clock::now() - begin;
        if (count == 0) {
            throw std::runtime_error("nothing was found");
        }
        return {word(taken), std::to_string(count)};
    }

    Words rewrite()
    {
        if (!QFile::exists(m_files.liveDatabase())) {
            QFile::copy(m_files.newDatabase(), m_files.liveDatabase());
        }
        const auto begin = Clock::now();
        const auto outcome = m_database.rewriteFrom(m_files.newDatabase());
        const auto taken = Clock::now() - begin;
        if (outcome != VendorDatabase::Rewriting::Done) {
            throw std::runtime_error("it was not written");
        }
        return {word(taken)};
    }

    Words grow(qsizetype count)
    {
        const QStringList vendors = m_database.displayStrings();
        QStringList texts{u"Random Address"_s};
        while (texts.size() < count) {
            const QString &vendor = vendors.at(texts.size() % vendors.size());
            texts << (texts.size() < vendors.size()
                          ? vendor
                          : vendor.left(3) + QString::number(texts.size()) + vendor.mid(3));
        }
        m_entries = VendorEntries(texts);
        return {std::to_string(m_entries.size())};
    }

    VendorFiles m_files;
    VendorDatabase m_database;
    VendorEntries m_entries;
};

} // namespace

int main(int argc, char **argv)
{
    Vendors vendors(QString::fromLocal8Bit(argv[argc - 1]));
    serve([&vendors](const Words &request) { return vendors.handle(request); });
}
