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

// Reads answer at once, a write over loopback takes 40 ms (its body waits for a delayed acknowledgement), in which
// other calls run.
constexpr double kWrites = 0.12;
constexpr double kWithDialog = 0.05;
constexpr double kWithTip = 0.02;
constexpr double kNotified = 0.05;
constexpr double kWithOthers = 0.1;
constexpr double kTyped = 0.3;
constexpr double kBursts = 0.01;
constexpr int kMostInBurst = 30;
constexpr double kGivenUp = 0.2;
constexpr std::size_t kDeepest = 4;
constexpr int kMostOthers = 6;
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

/// What ExecuteFuncs would have returned, and notifies as it does.
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
                     [this](const QString& text) { m_told.push_back(text.toStdString()); });
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

/// Many reads at once. Some are given up, at once or on their way, by their handle or by the end of their receiver.
void Soak::Burst()
{
    struct Started {
        const Candidate* candidate;
        APIModule::CallHandle handle;
        std::unique_ptr<QObject> receiver = std::make_unique<QObject>();
        bool givenUp = false;
        int ended = 0;
    };
    m_users.servers[1].port = m_platform.HttpsPort();
    Library().SetHttpsMode(1);
    std::vector<std::unique_ptr<Started>> calls;
    std::size_t nToGo = 0;
    QEventLoop loop;
    const int nCalls = std::uniform_int_distribution<int>(2, kMostInBurst)(m_random);
    for (int i = 0; i < nCalls; ++i) {
        Started& call = *calls.emplace_back(std::make_unique<Started>());
        call.candidate = &OneOf(m_random, m_reading);
        ++nToGo;
        const auto leave = [&nToGo, &loop] {
            if (--nToGo == 0) {
                loop.quit();
            }
        };
        call.handle = catalogue::Start(
            *call.candidate->call, ArgumentsOf(*call.candidate->row, *call.candidate->call), {}, call.receiver.get(),
            [this, &call, leave](const catalogue::Outcome& outcome) {
                ++call.ended;
                if (!outcome) {
                    m_tally.Fail(call.candidate->call->name + " in a burst gave " + std::to_string(outcome.Code()));
                }
                leave();
            });
        if (Chance(m_random, kGivenUp)) {
            const bool bByHandle = Chance(m_random, 0.5);
            const int nDelay = std::uniform_int_distribution<int>(0, 5)(m_random);
            QTimer::singleShot(nDelay, &loop, [&call, leave, bByHandle] {
                if (!call.handle.IsRunning()) {
                    return;
                }
                call.givenUp = true;
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
        if (pCall->ended != (pCall->givenUp ? 0 : 1)) {
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
        // Up to the first character that may be encoded on its way.
        const std::size_t end = param.strUrl.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                                               "0123456789/.-_");
        candidates.push_back({&row, pCall, param.strUrl.substr(0, end), param.eMethod == APIModule::Method_Get});
    }
    return candidates;
}

// Drawn like cards, so that each appears regularly, and from families without a waiting call, so that no call changes
// the data or takes the fault of another.
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

Soak::Making Soak::Draw(const Candidate& candidate)
{
    Fault fault = DrawFault(m_random, candidate.reads);
    // A request that is under way yet could meet this fault in the place of the call.
    const bool meetsLate = !m_latePath.empty() && (StartsWith(m_latePath, candidate.path));
    if (meetsLate && !fault.control.is_null()) {
        fault = Fault{FaultNames().front(), {}};
    }
    m_latePath = fault.answerIsLate ? candidate.path : std::string();
    const bool withDialog = fault.parentGoes || Chance(m_random, kWithDialog);
    return {&candidate, std::move(fault), withDialog, Chance(m_random, kWithTip), Chance(m_random, kNotified)};
}

void Soak::Make(const Candidate& candidate)
{
    const Making making = Draw(candidate);
    const bool isSecure = Chance(m_random, 0.5);
    m_users.servers[1].port = isSecure ? m_platform.HttpsPort() : m_platform.HttpPort();
    Library().SetHttpsMode(isSecure ? 1 : 0);
    if (!making.fault.control.is_null()) {
        Json fault = making.fault.control;
        fault["path"] = candidate.path;
        Control("POST", "faults", fault);
    }

    m_families.push_back(candidate.call->family);
    std::vector<std::string> toldToOuter = std::exchange(m_told, {});
    std::vector<std::string> loggedByOuter = std::exchange(m_logged, {});
    std::optional<QObject> others;
    const bool isUndisturbed = making.fault.control.is_null() && making.fault.ending == Ending::Success;
    if (isUndisturbed && m_families.size() < kDeepest && (!candidate.reads || Chance(m_random, kWithOthers))) {
        others.emplace();
        QTimer::singleShot(0, &*others, [this] { StartOthers(); });
    }
    Judge(making, Execute(making));
    m_told = std::move(toldToOuter);
    m_logged = std::move(loggedByOuter);
    m_families.pop_back();

    if (!making.fault.control.is_null()) {
        Control("DELETE", "faults");
    }
    if (!candidate.reads) {
        Control("POST", "reset");
    }
}

int Soak::Execute(const Making& making)
{
    const catalogue::Call& call = *making.candidate->call;
    const std::vector<catalogue::Value> arguments = ArgumentsOf(*making.candidate->row, call);
    std::optional<catalogue::Value> record;
    if (call.result != nullptr) {
        record.emplace(*call.result);
    }
    const auto pack = [&](void* pReqParamData) {
        const int result = Pack(call, arguments, pReqParamData);
        if (making.fault.timeoutSeconds) {
            static_cast<APIModule::RequestParam*>(pReqParamData)->nTimeout = *making.fault.timeoutSeconds;
        }
        return result;
    };
    const auto parse = [&](const QJsonObject& data) { return record ? call.parse(data, record->Data()) : 0; };

    QWidget* pParent = making.withDialog ? &m_window : nullptr;
    if (making.fault.parentGoes) {
        pParent = new QWidget;
        pParent->show();
        QTimer::singleShot(kParentLivesMs, pParent, [pParent] { delete pParent; });
    }
    const QString tip = making.withTip ? QString::fromStdString(kTip) : QString();
    if (Chance(m_random, kTyped)) {
        catalogue::RunSettings settings;
        if (making.fault.timeoutSeconds) {
            settings.timeout = std::chrono::seconds(*making.fault.timeoutSeconds);
        }
        return ResultOf(catalogue::Run(call, arguments, settings, pParent), tip, making.notified);
    }
    return Library().ExecuteFuncs(pack, parse, QString::fromStdString(kCaption), pParent, tip, true, making.notified);
}

void Soak::StartOthers()
{
    const int nOthers = std::uniform_int_distribution<int>(1, kMostOthers)(m_random);
    for (int i = 0; i < nOthers; ++i) {
        if (const Candidate* pOther = Choose()) {
            Make(*pOther);
        }
    }
}

void Soak::Judge(const Making& making, int result)
{
    const Fault& fault = making.fault;
    const bool isNotified = fault.ending == Ending::Broken || (fault.ending == Ending::Judged && making.notified);
    int expected = isNotified ? -1 : fault.code;
    std::vector<std::string> told;
    if (isNotified) {
        told.push_back(
            APIModule::CAPIModule::GetErroCodeInfor(QString::fromStdString(kCaption), fault.code, true).toStdString());
    } else if (fault.ending == Ending::Success && making.withTip) {
        told.push_back(kTip);
    }
    m_tally.Count({making.candidate->call->family, making.candidate->call->name, fault.name, making.withDialog,
                   m_families.size(), result, fault.code});
    if (result != expected || m_told != told) {
        m_tally.Fail(making.candidate->call->name + " under " + fault.name + " in depth " +
                     std::to_string(m_families.size()) + " gave " + std::to_string(result) + " for " +
                     std::to_string(expected) + ", notified: " + Listed(m_told) + ", logged: " + Listed(m_logged));
    }
}

void Soak::Control(const char* pMethod, const std::string& path, const Json& body)
{
    const Answer answer =
        m_platform.Control().request(pMethod, "/emulator/v1/" + path, body.is_null() ? std::string() : body.dump());
    if (!answer.arrived || answer.status >= 300) {
        throw std::runtime_error("the emulator does not take " + path + ": " + answer.body);
    }
}

}  // namespace soak
