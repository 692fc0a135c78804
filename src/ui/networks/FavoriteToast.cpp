// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/FavoriteToast.h"

#include "presentation/networks/RemovedFavorite.h"

namespace quillon {

FavoriteToast::FavoriteToast(
    RemovedFavorite &model, const Theme &theme, Scheduler &scheduler, QWidget *window)
    : Toast(theme, scheduler, window)
    , m_model(model)
{
    connect(&m_model, &RemovedFavorite::changed, this, &FavoriteToast::refresh);
}

void FavoriteToast::refresh()
{
    if (m_model.entry()) {
        say(RemovedFavorite::message(), [this] { m_model.undo(); });
    } else {
        dismiss();
    }
}

} // namespace quillon
