// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SettingsProblemMessage.h"

#include "base/Localized.h"
#include "platform/SettingsProblem.h"

namespace quillon {

SettingsProblemMessage settingsProblemMessage(const SettingsProblem &problem)
{
    switch (problem.kind) {
    case SettingsProblem::Kind::Damaged:
        if (problem.keptPath.isEmpty()) {
            return {localized("Settings are damaged"),
                filled(localized("Quillon goes on with what it knows, or with its defaults. The "
                                 "damaged file was left as it was: %@"),
                    {problem.path})};
        }
        return {localized("Settings were damaged"),
            filled(localized("Quillon goes on with what it knows, or with its defaults. The "
                             "damaged file is kept: %@"),
                {problem.keptPath})};
    case SettingsProblem::Kind::Unreadable:
        return {localized("Settings cannot be read"),
            filled(localized("Quillon uses its defaults and leaves the file alone: %@"),
                {problem.path})};
    case SettingsProblem::Kind::NotWritable:
        return {localized("Settings cannot be saved"),
            filled(
                localized("Changes last until Quillon quits. Please check the permissions of %@"),
                {problem.path})};
    case SettingsProblem::Kind::DiskFull:
        return {localized("Settings cannot be saved"),
            filled(localized(
                       "There is no room left on the disk. Changes last until Quillon quits: %@"),
                {problem.path})};
    }
    return {};
}

} // namespace quillon
