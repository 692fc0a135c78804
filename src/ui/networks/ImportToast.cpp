// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/ImportToast.h"

#include "presentation/history/HistoryImport.h"

namespace quillon {

ImportToast::ImportToast(
    HistoryImport &model, const Theme &theme, Scheduler &scheduler, QWidget *window)
    : Toast(theme, scheduler, window)
{
    connect(&model, &HistoryImport::ended, this, [this, &model](const QString &message) {
        say(message, model.canUndo() ? std::function<void()>([&model] { model.undo(); }) : nullptr);
    });
    connect(this, &Toast::expired, &model, &HistoryImport::forget);
}

} // namespace quillon
