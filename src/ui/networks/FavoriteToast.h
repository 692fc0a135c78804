// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/Toast.h"

namespace quillon {

class RemovedFavorite;

/// Says in a window that a favorite was removed there, as long as it can be had back. When it was
/// had back, and another was removed before it, that can be had back next.
class FavoriteToast : public Toast
{
    Q_OBJECT

public:
    FavoriteToast(
        RemovedFavorite &model, const Theme &theme, Scheduler &scheduler, QWidget *window);

private:
    void offer();
    void refresh();

    RemovedFavorite &m_model;
};

} // namespace quillon
