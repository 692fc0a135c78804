// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/OwnerParticipation.h"

#include "platform/Scheduler.h"

#include <QPointer>

#include <utility>

namespace quillon {

OwnerParticipation::OwnerParticipation(AddressOwners &owners, Scheduler &scheduler)
    : m_owners(owners)
    , m_scheduler(scheduler)
{
}

void OwnerParticipation::carryOut(const QString &device, Change change, End end)
{
    m_owners.find(device, [self = QPointer(this), change = std::move(change), end = std::move(end)](
                              std::unique_ptr<AddressOwner> owner) {
        if (self && owner) {
            self->carryOut(std::move(owner), change, end);
        } else if (self) {
            change([end](bool isChanged) { end({.isChanged = isChanged}); });
        }
    });
}

void OwnerParticipation::carryOut(
    std::unique_ptr<AddressOwner> owner, const Change &change, const End &end)
{
    AddressOwner &takesPart = *m_takingPart.emplace_back(std::move(owner));
    takesPart.prepare([this, &takesPart, change, end](bool ready) {
        if (ready) {
            change(m_scheduler.replyOnMain<bool>(this,
                [this, &takesPart, end](bool isChanged) { settle(takesPart, isChanged, end); }));
        } else {
            finish(takesPart, {.isRefused = true}, end);
        }
    });
}

void OwnerParticipation::settle(AddressOwner &owner, bool isChanged, const End &end)
{
    owner.settle(isChanged, [this, &owner, isChanged, end](AddressOwner::Outcome settlement) {
        finish(owner, {.isChanged = isChanged, .settlement = settlement}, end);
    });
}

void OwnerParticipation::finish(AddressOwner &owner, const Result &result, const End &end)
{
    Result named = result;
    named.owner = owner.name();
    // In a turn of its own, as it is the owner who calls.
    m_scheduler.onMain(this, [this, &owner, named, end] {
        std::erase_if(m_takingPart, [&owner](const auto &one) { return one.get() == &owner; });
        end(named);
    });
}

} // namespace quillon
