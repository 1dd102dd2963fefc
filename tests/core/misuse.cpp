// The test compiles one misuse of a typed call at a time and checks the compiler's message. Without misuse it compiles.
#include <DMS/DMSCalls.h>
#include <IPMS/IPMSCalls.h>

#include <string>
#include <vector>

using namespace APIModule;

void Misuse(QObject* pContext)
{
    using Lots = std::vector<DatailParkingLotInfoRsp>;
    const auto lots = IPMS::GetDetailParkingLots("3", "001", 0).OnServer(2);
    Start(lots, pContext, [](const Outcome<Lots>& /*outcome*/) {});
    const auto wash = DMS::WashOpen("7");
#if MISUSE == 1
    IPMS::GetDetailParkingLots("3", "001");
#elif MISUSE == 2
    IPMS::GetDetailParkingLots("3", "001", 0, 2);
#elif MISUSE == 3
    IPMS::GetDetailParkingLots(3, "001", 0);
#elif MISUSE == 4
    wash.OnServer(2);
#elif MISUSE == 5
    Start(lots, pContext, [](const Outcome<std::string>& /*outcome*/) {});
#endif
}
