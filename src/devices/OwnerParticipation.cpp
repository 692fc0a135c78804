// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/OwnerParticipation.h"

#include "platform/Scheduler.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillon {

OwnerParticipation::OwnerParticipation(AddressOwners &owners, Scheduler &scheduler)
    : m_owners(owners)
    , m_scheduler(scheduler)
{
}

void OwnerParticipation::carryOut(const QString &device, Change change, End end)
{
    begin({device, std::move(change), std::move(end)});
}

void OwnerParticipation::begin(const Request &request)
{
    m_owners.find(request.device, [self = QPointer(this), request](
                                      std::unique_ptr<AddressOwner> owner) {
        if (!self) {
            return;
        }
        if (self->m_takingPart.contains(request.device)) {
            // Whoever is asked now may have let go of it for the other change.
            self->m_waiting.push_back(request);
        } else if (owner) {
            self->begin(request, std::move(owner));
        } else {
            request.change([end = request.end](bool isChanged) { end({.isChanged = isChanged}); });
            self->beginNext(request.device);
        }
    });
}

void OwnerParticipation::begin(const Request &request, std::unique_ptr<AddressOwner> owner)
{
    m_takingPart.emplace(request.device, std::move(owner));
    ownerOf(request).prepare([this, request](bool ready) {
        if (ready) {
            request.change(m_scheduler.replyOnMain<bool>(
                this, [this, request](bool isChanged) { settle(request, isChanged); }));
        } else {
            finish(request, {.isRefused = true});
        }
    });
}

void OwnerParticipation::settle(const Request &request, bool isChanged)
{
    ownerOf(request).settle(
        isChanged, [this, request, isChanged](AddressOwner::Outcomes settlement) {
            finish(request, {.isChanged = isChanged, .settlement = settlement});
        });
}

void OwnerParticipation::finish(const Request &request, const Result &result)
{
    Result named = result;
    named.owner = ownerOf(request).name();
    // In a turn of its own, as it is the owner who calls.
    m_scheduler.onMain(this, [this, request, named] {
        m_takingPart.erase(request.device);
        request.end(named);
        beginNext(request.device);
    });
}

void OwnerParticipation::beginNext(const QString &device)
{
    const auto next = std::ranges::find(m_waiting, device, &Request::device);
    if (next != m_waiting.end()) {
        const Request request = std::move(*next);
        m_waiting.erase(next);
        begin(request);
    }
}

} // namespace quillon
