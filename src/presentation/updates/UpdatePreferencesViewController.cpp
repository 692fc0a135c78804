// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/updates/UpdatePreferencesViewController.h"

#include "base/DateStamp.h"
#include "base/Languages.h"
#include "base/Localized.h"
#include "updates/Updater.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

namespace {

struct Interval
{
    const char *title;
    qlonglong tag; ///< seconds
};

constexpr qlonglong day = 24 * 60 * 60;
constexpr std::array<Interval, 3> offered{{
    {QT_TRANSLATE_NOOP("Quillon", "Daily"), day},
    {QT_TRANSLATE_NOOP("Quillon", "Weekly"), 7 * day},
    {QT_TRANSLATE_NOOP("Quillon", "Monthly"), 30 * day},
}};

int indexOf(qlonglong seconds)
{
    const auto found = std::find_if(offered.begin(), offered.end(),
        [&](const Interval &interval) { return interval.tag == seconds; });
    return found == offered.end() ? -1 : static_cast<int>(found - offered.begin());
}

QString problemText(UpdateProblem problem)
{
    switch (problem) {
    case UpdateProblem::NoInternet:
        return localized("The internet cannot be reached now.");
    case UpdateProblem::BadAddress:
        return localized("The place to look at is not an https address.");
    case UpdateProblem::NotFetched:
        return localized("The list of versions could not be fetched.");
    case UpdateProblem::NotTrusted:
        return localized("What came is not from the authors of Quillon and was not used.");
    case UpdateProblem::Outdated:
        return localized("The list of versions that came is out of date and was not used.");
    }
    return {};
}

QString absenceText(bool isLeftToSystem)
{
    return isLeftToSystem
               ? localized("Your system's software updates bring new versions.")
               : localized("It was built without a list of versions to ask for. Nothing is asked, "
                           "whatever is chosen here.");
}

QString lastCheckText(const QDateTime &moment)
{
    return moment.isValid()
               ? filled(localized("Last checked: %@"),
                     {mediumDateShortTime(moment.toLocalTime(), textLocale(), QLocale())})
               : localized("Not checked yet.");
}

} // namespace

UpdatePreferencesViewController::UpdatePreferencesViewController(Updater &updater, QString version)
    : m_updater(updater)
    , m_version(std::move(version))
{
}

QStringList UpdatePreferencesViewController::intervals()
{
    QStringList titles;
    for (const Interval &interval : offered) {
        titles.append(localized(interval.title));
    }
    return titles;
}

void UpdatePreferencesViewController::load()
{
    m_isLoaded = true;
    show();
}

void UpdatePreferencesViewController::refresh()
{
    if (m_isLoaded) {
        show();
    }
}

void UpdatePreferencesViewController::show()
{
    m_state.update([this](State &state) {
        state = {};
        state.isAvailable = m_updater.canCheck();
        state.absence = state.isAvailable ? QString() : absenceText(m_updater.isLeftToSystem());
        state.hasSettings = !m_updater.isLeftToSystem();
        state.checkForUpdatesButton = m_updater.automaticallyChecksForUpdates();
        state.autoInstallButton = m_updater.automaticallyDownloadsUpdates();
        state.intervalPopup = indexOf(m_updater.updateCheckInterval());
        state.isChecking = m_updater.isChecking();
        state.lastCheck = lastCheckText(m_updater.lastCheck());
        showResult(state);
    });
}

void UpdatePreferencesViewController::showResult(State &state) const
{
    const auto release = state.isAvailable ? m_updater.offer() : std::nullopt;
    if (release) {
        state.offer = filled(localized("Quillon %@ is available"), {release->version.text()});
        state.offerDetails = filled(localized("This is version %@."), {m_version});
        state.page = release->page.toString();
        state.notes = release->notes;
    }
    if (state.isChecking) {
        return;
    }
    if (const auto problem = m_updater.problem()) {
        state.result = problemText(*problem);
        state.resultKind =
            *problem == UpdateProblem::NotTrusted ? ResultKind::Danger : ResultKind::Notice;
    } else if (m_updater.hasAnswer() && !release) {
        state.result = filled(localized("Quillon %@ is the newest version."), {m_version});
        state.resultKind = ResultKind::Positive;
    }
}

void UpdatePreferencesViewController::tickCheckForUpdates(bool on)
{
    m_updater.setAutomaticallyChecksForUpdates(on);
}

void UpdatePreferencesViewController::tickAutoInstall(bool on)
{
    m_updater.setAutomaticallyDownloadsUpdates(on);
}

void UpdatePreferencesViewController::chooseInterval(int index)
{
    if (index >= 0 && index < static_cast<int>(offered.size())) {
        m_updater.setUpdateCheckInterval(offered.at(static_cast<std::size_t>(index)).tag);
    }
}

void UpdatePreferencesViewController::checkNow()
{
    m_updater.checkForUpdates();
}

void UpdatePreferencesViewController::openOffer()
{
    if (!m_state->offer.isEmpty() && !m_updater.openOffer()) {
        m_state.update([](State &state) {
            state.result = localized("No browser could be opened.");
            state.resultKind = ResultKind::Notice;
        });
    }
}

} // namespace quillon
