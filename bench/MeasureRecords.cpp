// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Requests about one file of history records, its path on the command line:
//   fill COUNT      makes so many records and saves them: nanoseconds
//   open            opens the file and reads the first page: nanoseconds, records
//   keep            the same, and keeps it open for what follows: nanoseconds, records
//   newest          the first page by date, newest first: nanoseconds, records
//   search FIELD TEXT   the first page of what contains the text ("all": any field): the same
//   save            makes one record and saves it: nanoseconds
//   memory          kilobytes resident now, and at most so far
#include "bench/Request.h"
#include "platform/qt/QtScheduler.h"
#include "store/graph/FetchedRecords.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

#include <QCoreApplication>
#include <QDateTime>

#include <fstream>
#include <stdexcept>

namespace {

using namespace quillon;
using namespace quillon::bench;

constexpr qsizetype page = 50;
constexpr int recordsOfOneSave = 20'000;
constexpr qint64 firstMoment = 1'600'000'000'000; // milliseconds since 1970
constexpr qint64 betweenRecords = 60'000;

/// A check that the compiler and an Error cannot do away with.
template <typename T>
const T &valueOf(const Result<T> &result)
{
    if (!result) {
        throw std::runtime_error(result.error().message.toStdString());
    }
    return result.value();
}

/// A laptop's life: a few interfaces, some hundred networks, a note now and then.
QVariantMap valuesOf(int number)
{
    const auto hex = [](int value, int digits) {
        return QString::number(value, 16).rightJustified(digits, u'0');
    };
    const int network = number * 7 % 997;
    QVariantMap values{
        {model::connection::date,
            QDateTime::fromMSecsSinceEpoch(firstMoment + number * betweenRecords, Qt::UTC)},
        {model::connection::device, number % 3 == 0 ? u"enp1s0"_qs : u"wlp2s0"_qs},
        {model::connection::interface, number % 3 == 0 ? u"Ethernet"_qs : u"Wi-Fi"_qs},
        {model::connection::address,
            u"02:1a:%1:%2:%3:%4"_qs.arg(hex(number >> 24 & 255, 2), hex(number >> 16 & 255, 2),
                hex(number >> 8 & 255, 2), hex(number & 255, 2))},
    };
    if (number % 3 != 0) {
        values.insert(model::connection::ssid, u"Network %1"_qs.arg(network));
        values.insert(model::connection::bssid,
            u"06:00:5e:00:%1:%2"_qs.arg(hex(network >> 8, 2), hex(network & 255, 2)));
    }
    if (number % 1000 == 0) {
        values.insert(model::connection::notes, u"asked at the reception, visit %1"_qs.arg(number));
    }
    return values;
}

void insert(ManagedObjectContext &context, int number)
{
    const auto record = context.insertNewObject(model::Connection);
    const QVariantMap values = valuesOf(number);
    for (auto value = values.begin(); value != values.end(); ++value) {
        record->setValue(value.key(), value.value());
    }
}

Predicate condition(const QString &field, const QString &text)
{
    if (field != u"all"_qs) {
        return Predicate::contains(field, text);
    }
    QList<Predicate> parts;
    for (const QString &name :
        {model::connection::device, model::connection::interface, model::connection::address,
            model::connection::ssid, model::connection::bssid, model::connection::notes}) {
        parts << Predicate::contains(name, text);
    }
    return Predicate::any(parts);
}

class Records
{
public:
    explicit Records(QString path)
        : m_path(std::move(path))
    {
    }

    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        if (what == "fill") {
            return {fill(std::stoi(request.at(1)))};
        }
        if (what == "open") {
            auto answer = keep();
            m_context.reset();
            return answer;
        }
        if (what == "keep") {
            return keep();
        }
        if (what == "newest") {
            return firstPage({model::Connection, {}, {{model::connection::date, false}}});
        }
        if (what == "search") {
            const auto field = QString::fromStdString(request.at(1));
            const auto text = QString::fromStdString(request.at(2));
            return firstPage({model::Connection, condition(field, text), {}});
        }
        if (what == "save") {
            return {save()};
        }
        return {memory("VmRSS:"), memory("VmHWM:")};
    }

private:
    void load()
    {
        auto opened = ManagedObjectContext::open(quillonModel(), m_path, m_scheduler);
        valueOf(opened);
        m_context = std::move(opened.value());
    }
    ManagedObjectContext &context() { return *m_context; }

    Words keep()
    {
        m_context.reset();
        const auto begin = Clock::now();
        load();
        const Words read = firstPage({model::Connection, {}, {}});
        return {word(Clock::now() - begin), read.at(1)};
    }

    Words firstPage(const FetchRequest &request)
    {
        const auto begin = Clock::now();
        const FetchedRecords records = valueOf(context().fetchLazily(request));
        qsizetype letters = 0;
        for (qsizetype row = 0; row < std::min(page, records.size()); ++row) {
            letters += records.at(row)->value(model::connection::address).toString().size();
        }
        const auto end = Clock::now();
        if (records.size() > 0 && letters == 0) {
            throw std::runtime_error("the page is empty");
        }
        return {word(end - begin), std::to_string(records.size())};
    }

    std::string fill(int count)
    {
        const auto begin = Clock::now();
        load();
        {
            const ManagedObjectContext::UndoDisabled facts(context());
            for (int number = 0; number < count; ++number) {
                insert(context(), number);
                if ((number + 1) % recordsOfOneSave == 0 || number + 1 == count) {
                    saveNow();
                }
            }
        }
        m_context.reset();
        return word(Clock::now() - begin);
    }

    std::string save()
    {
        const auto begin = Clock::now();
        insert(context(), ++m_saved);
        saveNow();
        return word(Clock::now() - begin);
    }

    void saveNow()
    {
        if (const auto error = context().save()) {
            throw std::runtime_error(error->message.toStdString());
        }
    }

    static std::string memory(const std::string &name)
    {
        std::ifstream status("/proc/self/status");
        for (std::string line; status >> line;) {
            if (line == name && status >> line) {
                return line;
            }
        }
        throw std::runtime_error("no " + name);
    }

    QString m_path;
    QtScheduler m_scheduler;
    std::unique_ptr<ManagedObjectContext> m_context;
    int m_saved = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Records records(QString::fromLocal8Bit(argv[argc - 1]));
    serve([&records](const Words &request) { return records.handle(request); });
}
