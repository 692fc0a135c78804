// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/Overview.h"

namespace quillon {

Overview::Overview(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_changes(collaborators.addressChanger)
{
}

Overview::~Overview() = default;

void Overview::openOverviewWindow()
{
    if (m_controller == nullptr) {
        makeController();
    } else if (m_controller->isOutOfDate()) {
        loadAnew();
    }
}

void Overview::loadAnew()
{
    releaseOverviewWindow();
    makeController();
}

void Overview::makeController()
{
    m_controller =
        std::make_unique<OverviewController>(OverviewController::Collaborators{m_deps.settings,
            m_deps.scheduler, m_deps.notifications, m_deps.devices, m_deps.currentInterface,
            m_deps.addressChanger, m_deps.timers, m_deps.presence, m_deps.helper, m_changes});
    Q_EMIT controllerMade();
}

void Overview::releaseOverviewWindow()
{
    if (m_controller != nullptr) {
        Q_EMIT controllerGoing();
        m_controller.reset();
    }
}

void Overview::look()
{
    if (m_controller != nullptr) {
        m_controller->look();
    }
}

void Overview::setHelperInstalled(bool installed)
{
    if (m_controller != nullptr) {
        m_controller->setHelperInstalled(installed);
    }
}

void Overview::setInSight(bool inSight)
{
    if (m_isInSight != inSight) {
        m_isInSight = inSight;
        Q_EMIT inSightChanged();
    }
}

} // namespace quillon
