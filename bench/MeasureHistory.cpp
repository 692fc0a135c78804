// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Requests about the history's window on one file of records, its path on the command line:
//   open            shows the window: nanoseconds to the first page painted, to the whole list, and
//                   of the longest turn of the main loop meanwhile
//   close           closes it
//   find TEXT       as typed into the search field: nanoseconds to the first 50 rows, to all, of the
//                   longest turn, and how many were found
//   sqlite TEXT     the same query to SQLite, its first 50 rows: nanoseconds, rows
//   sort COLUMN     by the column of that number: nanoseconds to the first rows, to all, longest turn
//   scroll          to twenty places: nanoseconds of the slowest, painted
//   delete COUNT    of the first rows, so that it can be undone, and undoes it: nanoseconds of each
//   purge           everything, for good: nanoseconds, and of the longest turn
//   memory          kilobytes resident now, and at most so far
#include "bench/Request.h"
#include "platform/desktop/AlertPresenter.h"
#include "platform/desktop/TaskBar.h"
#include "platform/qt/QtScheduler.h"
#include "presence/Presence.h"
#include "presentation/history/HistoryController.h"
#include "presentation/menu/EditMenuModel.h"
#include "store/RecordStore.h"
#include "ui/history/HistoryTable.h"
#include "ui/history/HistoryWindow.h"
#include "ui/theme/Theme.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFileInfo>
#include <QScrollBar>

#include <algorithm>
#include <fstream>
#include <sqlite3.h>
#include <stdexcept>

namespace {

using namespace quillon;
using namespace quillon::bench;

constexpr int page = 50;

/// Nobody changes a setting here.
class Settings : public SettingsStore
{
public:
    QVariant get(const QString &key) const override { return m_values.value(key); }
    void set(const QString &key, const QVariant &value) override { m_values[key] = value; }
    void registerDefaults(const QVariantMap &defaults) override { m_values = defaults; }
    void synchronize() override {}
    bool flush() override { return true; }
    Token addObserver(const QString &, Observer) override { return 0; }
    void removeObserver(Token) override {}

private:
    QVariantMap m_values;
};

/// Somebody who always says yes.
class Yes : public AlertPresenter
{
public:
    int runModal(const Alert &) override { return 0; }
    bool presentError(const Error &error) override
    {
        throw std::runtime_error(error.message.toStdString());
    }
};

class NoTaskBar : public TaskBar
{
public:
    void setSkipped(quintptr, bool) override {}
};

/// The same question to SQLite, on a connection that stays open.
class Plain
{
public:
    explicit Plain(const std::string &path)
    {
        if (sqlite3_open_v2(path.c_str(), &m_database, SQLITE_OPEN_READONLY, nullptr) !=
            SQLITE_OK) {
            throw std::runtime_error("SQLite does not open the file");
        }
    }
    ~Plain() { sqlite3_close(m_database); }
    Plain(const Plain &) = delete;
    Plain &operator=(const Plain &) = delete;

    Words first(const std::string &text) const
    {
        const auto begin = Clock::now();
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(m_database,
            "SELECT * FROM \"Connection\" WHERE instr(device, ?1) > 0 OR instr(interface, ?1) > 0 "
            "OR "
            "instr(address, ?1) > 0 OR instr(ssid, ?1) > 0 OR instr(bssid, ?1) > 0 OR "
            "instr(notes, ?1) > 0 ORDER BY date DESC, pk DESC LIMIT 50",
            -1, &statement, nullptr);
        sqlite3_bind_text(statement, 1, text.c_str(), static_cast<int>(text.size()), SQLITE_STATIC);
        int rows = 0;
        qsizetype letters = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            ++rows;
            for (int column = 2; column < 9; ++column) {
                const auto *value = sqlite3_column_text(statement, column);
                letters += QString::fromUtf8(reinterpret_cast<const char *>(value)).size();
            }
        }
        sqlite3_finalize(statement);
        const auto end = Clock::now();
        if (rows > 0 && letters == 0) {
            throw std::runtime_error("the rows are empty");
        }
        return {word(end - begin), std::to_string(rows)};
    }

private:
    sqlite3 *m_database = nullptr;
};

class History
{
public:
    explicit History(const QString &path)
        : m_records(m_scheduler, QFileInfo(path).path())
        , m_plain(path.toStdString())
    {
        m_settings.registerDefaults({{QStringLiteral("historySearchType"), QStringLiteral("all")}});
        m_theme.apply();
        m_theme.setAnimated(false);
        // The program has opened its records long before somebody looks at them.
        m_records.managedObjectContext();
        QObject::connect(&m_model.rows(), &RecordListing::reset, [this] { m_isReset = true; });
        const auto *loop = QAbstractEventDispatcher::instance();
        QObject::connect(
            loop, &QAbstractEventDispatcher::awake, [this] { m_turnBegan = Clock::now(); });
        QObject::connect(loop, &QAbstractEventDispatcher::aboutToBlock, [this] { endTurn(); });
    }

    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        if (what == "open") {
            return open();
        }
        if (what == "close") {
            m_window->close();
            turnUntil([this] { return m_model.rows().size() == 0; });
            return {"0"};
        }
        if (what == "find") {
            return listed(
                [&] { m_model.controlTextDidChange(QString::fromStdString(request.at(1))); });
        }
        if (what == "sqlite") {
            return m_plain.first(request.at(1));
        }
        if (what == "sort") {
            const auto column =
                historyColumns.at(static_cast<std::size_t>(std::stoi(request.at(1))));
            return listed([&] { m_model.sortBy(column, column != HistoryColumn::Date); });
        }
        if (what == "scroll") {
            return {scroll()};
        }
        if (what == "delete") {
            return remove(std::stoi(request.at(1)));
        }
        if (what == "purge") {
            return purge();
        }
        return {memory("VmRSS:"), memory("VmHWM:")};
    }

private:
    template <typename Done>
    void turnUntil(Done done)
    {
        while (!done()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            endTurn();
        }
    }
    /// A turn is what the main thread does between two waits for something to do.
    void endTurn()
    {
        if (m_turnBegan) {
            m_longest = std::max(m_longest, Clock::now() - *m_turnBegan);
            m_turnBegan.reset();
        }
    }
    void paint() const { table().viewport()->repaint(); }
    HistoryTable &table() const { return *m_window->findChild<HistoryTable *>(); }
    bool isComplete() const { return m_model.rows().isComplete(); }

    Words open()
    {
        m_longest = {};
        const auto begin = Clock::now();
        if (!m_window) {
            m_window =
                std::make_unique<HistoryWindow>(HistoryWindow::Models{m_model, m_edit, m_presence},
                    m_theme, m_scheduler, m_taskBar);
        }
        m_window->bringUp();
        turnUntil([this] { return m_model.rows().size() > 0 || isComplete(); });
        paint();
        const auto shown = Clock::now();
        turnUntil([this] { return isComplete(); });
        return {word(shown - begin), word(Clock::now() - begin), word(m_longest)};
    }

    template <typename Ask>
    Words listed(Ask ask)
    {
        turnUntil([this] { return isComplete(); });
        m_longest = {};
        m_isReset = false;
        const auto begin = Clock::now();
        ask();
        turnUntil([this] { return m_isReset; });
        qsizetype letters = 0;
        const qsizetype rows = std::min<qsizetype>(m_model.rows().size(), page);
        for (qsizetype row = 0; row < rows; ++row) {
            // As SQLite is asked for them: what they hold, and not yet how that is put into words.
            for (const HistoryColumn column : historyColumns) {
                letters += m_model.rows().at(row)->value(attributeOf(column)).toString().size();
            }
        }
        const auto first = Clock::now();
        if (rows > 0 && letters == 0) {
            throw std::runtime_error("the rows are empty");
        }
        turnUntil([this] { return isComplete(); });
        const auto all = Clock::now();
        return {word(first - begin), word(all - begin), word(m_longest),
            std::to_string(m_model.rows().size())};
    }

    std::string scroll() const
    {
        constexpr int places = 20;
        Clock::duration slowest{};
        QScrollBar &bar = *table().verticalScrollBar();
        for (int place = 0; place < places; ++place) {
            const auto begin = Clock::now();
            bar.setValue(static_cast<int>(qint64{bar.maximum()} * ((place * 7) % places) / places));
            paint();
            slowest = std::max(slowest, Clock::now() - begin);
        }
        bar.setValue(0);
        return word(slowest);
    }

    Words remove(int count)
    {
        turnUntil([this] { return isComplete(); });
        m_model.select({{0, count - 1}});
        const qsizetype before = m_model.rows().size();
        const auto begin = Clock::now();
        m_model.deleteSelected();
        const auto removed = Clock::now();
        turnUntil([this] { return isComplete(); });
        const auto undone = Clock::now();
        m_model.deletion().undo();
        turnUntil([&] { return m_model.rows().size() == before; });
        return {word(removed - begin), word(Clock::now() - undone)};
    }

    Words purge()
    {
        turnUntil([this] { return isComplete(); });
        m_model.select({{0, m_model.rows().size() - 1}});
        m_longest = {};
        const auto begin = Clock::now();
        m_model.deleteSelected();
        turnUntil([this] { return !m_model.deletion().progress() && m_model.rows().size() == 0; });
        return {word(Clock::now() - begin), word(m_longest)};
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

    QtScheduler m_scheduler;
    Settings m_settings;
    Yes m_alerts;
    NoTaskBar m_taskBar;
    RecordStore m_records;
    Plain m_plain;
    Presence m_presence{m_settings};
    EditMenuModel m_edit{m_records};
    HistoryController m_model{{m_records, m_settings, m_scheduler, m_alerts}};
    Theme m_theme;
    std::unique_ptr<HistoryWindow> m_window;
    bool m_isReset = false;
    Clock::duration m_longest{};
    std::optional<Clock::time_point> m_turnBegan;
};

} // namespace

int main(int argc, char **argv)
{
    // What a display server adds is the same for every window.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // GLib's loop does not tell when it waits.
    qputenv("QT_NO_GLIB", "1");
    const QApplication application(argc, argv);
    History history(QString::fromLocal8Bit(argv[argc - 1]));
    serve([&history](const Words &request) { return history.handle(request); });
}
