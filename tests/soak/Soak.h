#pragma once

#include "Fault.h"
#include "Tally.h"

#include <catalogue/Call.h>
#include <e2e/rows/Rows.h>
#include <e2e/support/EmulatorProcess.h>
#include <support/UserManager.h>

#include <QObject>
#include <QWidget>

#include <random>
#include <string>
#include <vector>

namespace soak {

/// Makes calls one after another, as a client's user interface does for weeks, and compares each outcome with the
/// expected one.
class Soak {
public:
    Soak(e2e::EmulatorProcess& platform, Random::result_type seed, Tally& tally);
    ~Soak();
    Soak(const Soak&) = delete;
    Soak& operator=(const Soak&) = delete;
    Soak(Soak&&) = delete;
    Soak& operator=(Soak&&) = delete;

    /// Makes one call, and those that start while it waits.
    void Step();

private:
    /// A call that the steps choose from.
    struct Candidate {
        const e2e::Row* row;
        const catalogue::Call* call;
        std::string path;  ///< the start of its URL, as sent
        bool reads;        ///< whether it only reads
    };

    /// How one call is made.
    struct CallPlan {
        const Candidate* candidate;
        Fault fault;
        bool withDialog;
        bool withTip;
        bool notified;
    };

    std::vector<Candidate> Candidates();
    const Candidate* Choose();
    CallPlan Draw(const Candidate& candidate);
    void Make(const Candidate& candidate);
    void Burst();
    int Execute(const CallPlan& plan);
    void StartOthers();
    void Check(const CallPlan& plan, int result);
    void Control(const char* pMethod, const std::string& path, const Json& body = {});

    e2e::EmulatorProcess& m_platform;
    Random m_random;
    Tally& m_tally;
    testing_support::UserManager m_users;
    QWidget m_window;
    QObject m_context;
    std::vector<Candidate> m_reading;
    std::vector<Candidate> m_writing;
    std::vector<const Candidate*> m_nextReading;  ///< not yet made in this round
    std::vector<const Candidate*> m_nextWriting;
    std::string m_latePath;               ///< path of a request that may arrive after its call has ended
    std::vector<std::string> m_notices;   ///< texts that the running call notified
    std::vector<std::string> m_logged;    ///< failures that it logged
    std::vector<std::string> m_families;  ///< families of the waiting calls
};

}  // namespace soak
