// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RequestQueue.h"

#include <QPointer>

#include <utility>

namespace quillon {

void RequestQueue::run(Next next, Launch launch, Finished finished)
{
    m_next = std::move(next);
    m_launch = std::move(launch);
    m_finished = std::move(finished);
    fill();
}

void RequestQueue::fill()
{
    if (m_filling) {
        return; // answered at once, within the loop below
    }
    m_filling = true;
    while (m_underWay < m_atOnce) {
        const auto name = m_next();
        if (!name) {
            break;
        }
        ++m_underWay;
        m_launch(*name, [self = QPointer(this)] {
            if (self) {
                --self->m_underWay;
                self->fill();
            }
        });
    }
    m_filling = false;
    if (m_underWay == 0) {
        std::exchange(m_finished, {})();
    }
}

} // namespace quillon
