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
    connect(&m_model, &RemovedFavorite::remembered, this, &FavoriteToast::offer);
    connect(&m_model, &RemovedFavorite::changed, this, &FavoriteToast::refresh);
    connect(this, &Toast::expired, &m_model, &RemovedFavorite::forget);
}

void FavoriteToast::offer()
{
    say(RemovedFavorite::message(), [this] {
        m_model.undo();
        if (m_model.entry()) {
            offer();
        }
    });
}

void FavoriteToast::refresh()
{
    if (!m_model.entry()) {
        dismiss();
    }
}

} // namespace quillon
