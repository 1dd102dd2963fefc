#pragma once

#include <IPMS/Parking.h>

#include <QByteArray>

#include <vector>

namespace bench {

/// The code of an envelope that carries data.
constexpr int kSuccess = 1000;

using ParkingLots = std::vector<APIModule::DatailParkingLotInfoRsp>;

/// Realistic parking lots, the same ones in every run.
ParkingLots MakeParkingLots(int count);

/// The complete reply that lists them, including its envelope.
QByteArray ReplyOf(ParkingLots& lots);

}  // namespace bench
