// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helper/FakePolkit.h"

#include "integration/helper/BusClient.h"

#include <utility>

namespace quillon::test {

namespace {

constexpr char interface[] = "org.freedesktop.PolicyKit1.Authority";
constexpr contract::Method checkAuthorization{
    "CheckAuthorization", "(sa{sv})sa{ss}us", {}, "(bba{ss})", {}};
constexpr contract::Method cancelCheckAuthorization{"CancelCheckAuthorization", "s", {}, "", {}};

} // namespace

FakePolkit::FakePolkit(Decision decision)
    : m_decision{std::move(decision)}
    , m_connection{connectAs("polkitd")}
    , m_object{
          sdbus::createObject(*m_connection, bus::Path{"/org/freedesktop/PolicyKit1/Authority"})}
{
    bus::publish(*m_object, interface,
        {{checkAuthorization, [this](sdbus::MethodCall call) { check(std::move(call)); }},
            {cancelCheckAuthorization, [this](sdbus::MethodCall call) {
                 std::string id;
                 call >> id;
                 const std::lock_guard lock{m_mutex};
                 m_cancelled.push_back(id);
                 call.createReply().send();
             }}});
    m_connection->requestName(bus::Name{"org.freedesktop.PolicyKit1"});
    m_connection->enterEventLoopAsync();
}

FakePolkit::~FakePolkit()
{
    m_connection->leaveEventLoop();
    // Messages do not outlive their connection.
    m_open.clear();
}

void FakePolkit::check(sdbus::MethodCall call)
{
    Question question;
    sdbus::Struct<std::string, std::map<std::string, sdbus::Variant>> subject;
    call >> subject >> question.action >> question.details >> question.flags >>
        question.cancellation;
    question.subjectKind = std::get<0>(subject);
    for (const auto &[key, value] : std::get<1>(subject)) {
        question.subject[key] =
            value.containsValueOfType<std::string>() ? value.get<std::string>() : "?";
    }
    const auto decision = m_decision(question);
    const std::lock_guard lock{m_mutex};
    m_questions.push_back(question);
    switch (decision) {
    case Answer::Yes:
        answer(call, true);
        break;
    case Answer::No:
        answer(call, false);
        break;
    case Answer::LeaveOpen:
        m_open.push_back(call);
        break;
    case Answer::Error:
        call.createErrorReply(
                sdbus::Error{bus::ErrorName{"org.freedesktop.PolicyKit1.Error.Failed"}, "broken"})
            .send();
        break;
    case Answer::Nonsense: {
        auto reply = call.createReply();
        reply << true;
        reply.send();
        break;
    }
    }
}

void FakePolkit::answer(const sdbus::MethodCall &call, bool yes)
{
    auto reply = call.createReply();
    reply << sdbus::Struct<bool, bool, std::map<std::string, std::string>>{yes, false, {}};
    reply.send();
}

std::vector<FakePolkit::Question> FakePolkit::questions() const
{
    const std::lock_guard lock{m_mutex};
    return m_questions;
}

std::vector<std::string> FakePolkit::cancelled() const
{
    const std::lock_guard lock{m_mutex};
    return m_cancelled;
}

void FakePolkit::openQuestionsAreGranted()
{
    const std::lock_guard lock{m_mutex};
    for (const auto &call : m_open) {
        answer(call, true);
    }
    m_open.clear();
}

} // namespace quillon::test
