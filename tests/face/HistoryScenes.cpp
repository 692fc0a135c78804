// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "face/SceneSubjects.h"
#include "history/Connection.h"
#include "store/model/QuillonModel.h"
#include "ui/history/HistoryTable.h"

#include <QAbstractButton>
#include <QItemSelectionModel>
#include <QLineEdit>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// Three weeks of a laptop, the last change a few minutes ago.
void fillHistory(FaceProgram &program)
{
    struct Past
    {
        int minutesAgo;
        QString address;
        QString network;
        QString notes;
        bool isWired = false;
    };
    const QList<Past> past{
        {4, u"62:68:66:48:DC:27"_s, u"Harbor-Guest"_s, u"window seat, by the device table"_s},
        {34, u"7A:54:A2:BC:44:FF"_s, u"Harbor-Guest"_s, {}},
        {296, u"00:16:CB:7A:10:02"_s, u"Harbor-Office"_s, u"the badge reader wants this one"_s},
        {400, u"02:00:5E:00:53:01"_s, {}, u"<b>switch 4</b> & co."_s, true},
        {1179, u"D2:EB:64:ED:A9:E6"_s, u"Harbor-Office"_s, u"switch 4"_s},
        {6000, u"F6:AD:84:32:B8:82"_s, u"Harbor-Guest"_s, {}},
        {6700, u"1E:90:3C:55:07:D0"_s, u"A network whose name is as long as one can be."_s, {}},
    };
    const QDateTime now = program.machine.scheduler.now();
    ManagedObjectContext &context = program.features().history.store.managedObjectContext();
    const ManagedObjectContext::UndoDisabled facts(context);
    constexpr int records = 212;
    for (int number = 0; number < records; ++number) {
        const Past &what = past[number % past.size()];
        const int minutesAgo = what.minutesAgo + 4000 * int(number / past.size());
        Connection record(context.insertNewObject(model::Connection));
        record.setDate(now.addSecs(-60 * minutesAgo));
        record.setAddress(what.address);
        record.setDevice(what.isWired ? FaceProgram::wire : FaceProgram::radio);
        record.setInterface(what.isWired ? u"Ethernet"_s : u"Wi-Fi"_s);
        record.setSsid(what.network);
        record.setBssid(what.isWired ? QString() : u"a4:2b:b0:11:22:33"_s);
        record.setNotes(number < past.size() ? what.notes : QString());
    }
    context.save();
}

HistoryTable &openHistory(FaceProgram &program)
{
    program.machine.settings.set(keys::historySearchType, u"all"_s);
    program.features().presence.goTo(Destination::History);
    program.settle();
    return FaceProgram::part<HistoryTable>(u"historyTable"_s);
}

void openFullHistory(FaceProgram &program)
{
    fillHistory(program);
    openHistory(program);
}

void searchHistory(FaceProgram &program, const QString &text)
{
    openFullHistory(program);
    FaceProgram::part<QLineEdit>(u"historySearch"_s).setText(text);
    program.features().history.controller.controlTextDidChange(text);
    program.settle();
}

void selectInHistory(FaceProgram &program)
{
    fillHistory(program);
    HistoryTable &table = openHistory(program);
    table.setFocus();
    // Qt's selectRow() selects nothing in a mirrored table whose columns fill it.
    table.selectionModel()->setCurrentIndex(table.model()->index(1, 0),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

using P = FaceProgram;

} // namespace

QList<FaceScene> historyScenes()
{
    return {
        {u"history"_s, nullptr, openFullHistory},
        {u"history-empty"_s, nullptr, [](P &program) { openHistory(program); }},
        {u"history-found"_s, nullptr, [](P &program) { searchHistory(program, u"Office"_s); }},
        {u"history-none-found"_s, nullptr, [](P &program) { searchHistory(program, u"xyz"_s); }},
        {u"history-selected"_s, nullptr, selectInHistory},
        {u"history-note"_s, nullptr,
            [](P &program) {
                selectInHistory(program);
                FaceProgram::part<HistoryTable>(u"historyTable"_s).editNote();
            }},
        {u"history-deleted"_s, nullptr,
            [](P &program) {
                selectInHistory(program);
                program.settle();
                program.features().history.controller.deleteSelected();
            }},
        {u"history-types"_s, nullptr,
            [](P &program) {
                openFullHistory(program);
                FaceProgram::part<QAbstractButton>(u"searchTypes"_s).click();
            }},
        {u"history-narrow"_s, nullptr,
            [](P &program) {
                openFullHistory(program);
                FaceProgram::part<QWidget>(u"history"_s).resize(560, 420);
            }},
    };
}

} // namespace quillon::test
