#include "Soak.h"

#include <catalogue/Run.h>
#include <catalogue/Value.h>
#include <PlatformEmulator.h>

#include <APIModule.h>
#include <Call.h>
#include <libornl/TalPrintLog.h>
#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnSingleton.h>

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>

namespace soak {
namespace {

// Reads return at once. A write over loopback takes 40 ms, because its body waits for a delayed acknowledgement;
// other calls run meanwhile.
constexpr double kWrites = 0.12;
constexpr double kWithDialog = 0.05;
constexpr double kWithTip = 0.02;
constexpr double kNotified = 0.05;
constexpr double kWithOthers = 0.1;
constexpr double kTyped = 0.3;
constexpr double kBursts = 0.01;
constexpr int kMostInBurst = 30;
constexpr double kCancelled = 0.2;
constexpr std::size_t kMaxDepth = 4;
constexpr int kMostNestedCalls = 6;
constexpr int kParentLivesMs = 20;
constexpr int kFailureLevel = 6;

const std::string kTip = "done";
const std::string kCaption = "Soaking failed";

APIModule::CAPIModule& Library()
{
    return APIModule::CAPIModule::GetInstance();
}

bool StartsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

std::vector<catalogue::Value> ArgumentsOf(const e2e::Row& row, const catalogue::Call& call)
{
    return catalogue::ReadArguments(call, row.arguments.is_null() ? Json::object() : row.arguments);
}

int Pack(const catalogue::Call& call, const std::vector<catalogue::Value>& arguments, void* pReqParamData)
{
    std::vector<void*> values;
    values.reserve(arguments.size());
    for (const catalogue::Value& argument : arguments) {
        values.push_back(argument.Data());
    }
    return call.pack(pReqParamData, values.data(), -1);
}

/// Returns what ExecuteFuncs would have returned, and notifies as it does.
int ResultOf(const APIModule::OutcomeBase& outcome, const QString& tip, bool bNotified)
{
    using APIModule::CallEnd;
    const CallEnd end = outcome.End();
    const bool bJudged = end == CallEnd::HttpStatus || end == CallEnd::Refused ||
                         (end == CallEnd::UnreadableReply && outcome.UnreadableKey().isEmpty());
    if (bJudged && !bNotified) {
        return outcome.Code();
    }
    Library().NotifyOutcome(outcome, QString::fromStdString(kCaption), tip);
    return outcome ? 0 : -1;
}

std::string Listed(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts) {
        all += '[' + text + ']';
    }
    return all;
}

}  // namespace

Soak::Soak(e2e::EmulatorProcess& platform, Random::result_type seed, Tally& tally)
    : m_platform(platform), m_random(seed), m_tally(tally)
{
    m_users.servers[1] = {"127.0.0.1", platform.HttpsPort(), emulator::kDefaultToken};
    Library().Init(&m_users);
    QObject::connect(&ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance(),
                     &ORNGUI::OrnMessageNotify::TextNotificationAdded, &m_context,
                     [this](const QString& text) { m_notices.push_back(text.toStdString()); });
    ornl::TalPrintLog::instance().SetObserver([this](const ornl::LogRecord& record) {
        if (record.nLevel == kFailureLevel) {
            m_logged.push_back(record.strMessage);
        }
    });
    m_window.show();
    for (const Candidate& candidate : Candidates()) {
        (candidate.reads ? m_reading : m_writing).push_back(candidate);
    }
}

Soak::~Soak()
{
    ornl::TalPrintLog::instance().SetObserver({});
    Library().UnInit();
}

void Soak::Step()
{
    if (Chance(m_random, kBursts)) {
        Burst();
    } else {
        Make(*Choose());
    }
}

/// Starts many reads at once. Some are cancelled, at once or later, by their handle or by destroying their receiver.
void Soak::Burst()
{
    struct Started {
        const Candidate* candidate;
        APIModule::CallHandle handle;
        std::unique_ptr<QObject> receiver = std::make_unique<QObject>();
        bool cancelled = false;
        int ended = 0;
    };
    m_users.servers[1].port = m_platform.HttpsPort();
    Library().SetHttpsMode(1);
    std::vector<std::unique_ptr<Started>> calls;
    std::size_t nRunning = 0;
    QEventLoop loop;
    const int nCalls = std::uniform_int_distribution<int>(2, kMostInBurst)(m_random);
    for (int i = 0; i < nCalls; ++i) {
        Started& call = *calls.emplace_back(std::make_unique<Started>());
        call.candidate = &OneOf(m_random, m_reading);
        ++nRunning;
        const auto leave = [&nRunning, &loop] {
            if (--nRunning == 0) {
                loop.quit();
            }
        };
        call.handle = catalogue::Start(
            *call.candidate->call, ArgumentsOf(*call.candidate->row, *call.candidate->call), {}, call.receiver.get(),
            [this, &call, leave](const catalogue::Outcome& outcome) {
                ++call.ended;
                if (!outcome) {
                    m_tally.Fail(call.candidate->call->name + " in a burst returned " + std::to_string(outcome.Code()));
                }
                leave();
            });
        if (Chance(m_random, kCancelled)) {
            const bool bByHandle = Chance(m_random, 0.5);
            const int nDelay = std::uniform_int_distribution<int>(0, 5)(m_random);
            QTimer::singleShot(nDelay, &loop, [&call, leave, bByHandle] {
                if (!call.handle.IsRunning()) {
                    return;
                }
                call.cancelled = true;
                if (bByHandle) {
                    call.handle.Cancel();
                } else {
                    call.receiver.reset();
                }
                leave();
            });
        }
    }
    loop.exec();
    for (const auto& pCall : calls) {
        const catalogue::Call& call = *pCall->candidate->call;
        m_tally.Count({call.family, call.name, FaultNames().front(), false, 1, 0, 0});
        if (pCall->ended != (pCall->cancelled ? 0 : 1)) {
            m_tally.Fail(call.name + " in a burst ended " + std::to_string(pCall->ended) + " times");
        }
    }
}

std::vector<Soak::Candidate> Soak::Candidates()
{
    std::vector<Candidate> candidates;
    for (const e2e::Row& row : e2e::Rows()) {
        const catalogue::Call* pCall = catalogue::FindCall(row.call);
        APIModule::RequestParam param;
        if (pCall == nullptr || Pack(*pCall, ArgumentsOf(row, *pCall), &param) != 0) {
            throw std::logic_error(row.call + " does not run");
        }
        // Up to the first character that may be percent-encoded.
        const std::size_t end = param.strUrl.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                                               "0123456789/.-_");
        candidates.push_back({&row, pCall, param.strUrl.substr(0, end), param.eMethod == APIModule::Method_Get});
    }
    return candidates;
}

// Draws without replacement, so that every call appears regularly, and only from families without a waiting call, so
// that no call changes the data or receives the fault of another.
const Soak::Candidate* Soak::Choose()
{
    const bool writes = Chance(m_random, kWrites);
    std::vector<const Candidate*>& next = writes ? m_nextWriting : m_nextReading;
    if (next.empty()) {
        for (const Candidate& candidate : writes ? m_writing : m_reading) {
            next.push_back(&candidate);
        }
        std::shuffle(next.begin(), next.end(), m_random);
    }
    const auto found = std::find_if(next.begin(), next.end(), [&](const Candidate* pCandidate) {
        return std::count(m_families.begin(), m_families.end(), pCandidate->call->family) == 0;
    });
    if (found == next.end()) {
        return nullptr;
    }
    const Candidate* pChosen = *found;
    next.erase(found);
    return pChosen;
}

Soak::CallPlan Soak::Draw(const Candidate& candidate)
{
    Fault fault = DrawFault(m_random, candidate.reads);
    // A request that is still on its way could receive this fault instead of the call.
    const bool mayHitLateRequest = !m_latePath.empty() && (StartsWith(m_latePath, candidate.path));
    if (mayHitLateRequest && !fault.control.is_null()) {
        fault = Fault{FaultNames().front(), {}};
    }
    m_latePath = fault.requestIsLate ? candidate.path : std::string();
    const bool withDialog = fault.parentDies || Chance(m_random, kWithDialog);
    return {&candidate, std::move(fault), withDialog, Chance(m_random, kWithTip), Chance(m_random, kNotified)};
}

void Soak::Make(const Candidate& candidate)
{
    const CallPlan plan = Draw(candidate);
    const bool isSecure = Chance(m_random, 0.5);
    m_users.servers[1].port = isSecure ? m_platform.HttpsPort() : m_platform.HttpPort();
    Library().SetHttpsMode(isSecure ? 1 : 0);
    if (!plan.fault.control.is_null()) {
        Json fault = plan.fault.control;
        fault["path"] = candidate.path;
        Control("POST", "faults", fault);
    }

    m_families.push_back(candidate.call->family);
    std::vector<std::string> noticesOfOuter = std::exchange(m_notices, {});
    std::vector<std::string> loggedByOuter = std::exchange(m_logged, {});
    std::optional<QObject> others;
    const bool isUndisturbed = plan.fault.control.is_null() && plan.fault.ending == Ending::Success;
    if (isUndisturbed && m_families.size() < kMaxDepth && (!candidate.reads || Chance(m_random, kWithOthers))) {
        others.emplace();
        QTimer::singleShot(0, &*others, [this] { StartOthers(); });
    }
    Check(plan, Execute(plan));
    m_notices = std::move(noticesOfOuter);
    m_logged = std::move(loggedByOuter);
    m_families.pop_back();

    if (!plan.fault.control.is_null()) {
        Control("DELETE", "faults");
    }
    if (!candidate.reads) {
        Control("POST", "reset");
    }
}

int Soak::Execute(const CallPlan& plan)
{
    const catalogue::Call& call = *plan.candidate->call;
    const std::vector<catalogue::Value> arguments = ArgumentsOf(*plan.candidate->row, call);
    std::optional<catalogue::Value> record;
    if (call.result != nullptr) {
        record.emplace(*call.result);
    }
    const auto pack = [&](void* pReqParamData) {
        const int result = Pack(call, arguments, pReqParamData);
        if (plan.fault.timeoutSeconds) {
            static_cast<APIModule::RequestParam*>(pReqParamData)->nTimeout = *plan.fault.timeoutSeconds;
        }
        return result;
    };
    const auto parse = [&](const QJsonObject& data) { return record ? call.parse(data, record->Data()) : 0; };

    QWidget* pParent = plan.withDialog ? &m_window : nullptr;
    if (plan.fault.parentDies) {
        pParent = new QWidget;
        pParent->show();
        QTimer::singleShot(kParentLivesMs, pParent, [pParent] { delete pParent; });
    }
    const QString tip = plan.withTip ? QString::fromStdString(kTip) : QString();
    if (Chance(m_random, kTyped)) {
        catalogue::RunSettings settings;
        if (plan.fault.timeoutSeconds) {
            settings.timeout = std::chrono::seconds(*plan.fault.timeoutSeconds);
        }
        return ResultOf(catalogue::Run(call, arguments, settings, pParent), tip, plan.notified);
    }
    return Library().ExecuteFuncs(pack, parse, QString::fromStdString(kCaption), pParent, tip, true, plan.notified);
}

void Soak::StartOthers()
{
    const int nOthers = std::uniform_int_distribution<int>(1, kMostNestedCalls)(m_random);
    for (int i = 0; i < nOthers; ++i) {
        if (const Candidate* pOther = Choose()) {
            Make(*pOther);
        }
    }
}

void Soak::Check(const CallPlan& plan, int result)
{
    const Fault& fault = plan.fault;
    const bool isNotified =
        fault.ending == Ending::AlwaysNotified || (fault.ending == Ending::NotifiedOnRequest && plan.notified);
    int expected = isNotified ? -1 : fault.code;
    std::vector<std::string> expectedNotices;
    if (isNotified) {
        expectedNotices.push_back(
            APIModule::CAPIModule::GetErroCodeInfor(QString::fromStdString(kCaption), fault.code, true).toStdString());
    } else if (fault.ending == Ending::Success && plan.withTip) {
        expectedNotices.push_back(kTip);
    }
    m_tally.Count({plan.candidate->call->family, plan.candidate->call->name, fault.name, plan.withDialog,
                   m_families.size(), result, fault.code});
    if (result != expected || m_notices != expectedNotices) {
        m_tally.Fail(plan.candidate->call->name + " with fault " + fault.name + " at depth " +
                     std::to_string(m_families.size()) + " returned " + std::to_string(result) + " instead of " +
                     std::to_string(expected) + ", notified: " + Listed(m_notices) + ", logged: " + Listed(m_logged));
    }
}

void Soak::Control(const char* pMethod, const std::string& path, const Json& body)
{
    const Reply reply =
        m_platform.Control().request(pMethod, "/emulator/v1/" + path, body.is_null() ? std::string() : body.dump());
    if (!reply.arrived || reply.status >= 300) {
        throw std::runtime_error("the emulator rejects " + path + ": " + reply.body);
    }
}

}  // namespace soak
