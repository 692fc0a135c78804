// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/Toast.h"

namespace quillon {

class HistoryImport;

/// Says in a window what was imported from the history, and takes it back.
class ImportToast : public Toast
{
    Q_OBJECT

public:
    ImportToast(HistoryImport &model, const Theme &theme, Scheduler &scheduler, QWidget *window);
};

} // namespace quillon
