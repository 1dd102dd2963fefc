#pragma once

/// A namespace.
namespace sample {

/// A kind of thing.
enum class Kind {
    First,  ///< an enumerator
    Second  ///< another one
};

/// A record.
struct Record {
    int number = 0;           ///< a field
    Kind kind = Kind::First;  ///< another one
};

/// A class.
class Reader {
public:
    /// A function without parameters.
    static void Forget();

    /// @param place a parameter
    /// @param record another one
    /// @return a result
    static int Read(int place, Record& record);
};

/// Calls that describe a request in @p pReqParamData for @p nServerId, and read @p data. They return 0 or -1.
class Calls {
public:
    /// Sends @p record.
    static int PacketRecord(void* pReqParamData, const Record& record, int nServerId);
    /// @param record receives the fields
    static int ParseRecord(int data, Record& record);
};

/// A name for a type.
using Number = int;

}  // namespace sample
