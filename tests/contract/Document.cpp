#include "Document.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace contract_tests {

const emulator::Contract& Document()
{
    static const emulator::Contract document = emulator::Contract::Load(CONTRACT_FOLDER);
    return document;
}

Reading Read(const catalogue::Call& call, const Json& data)
{
    const QByteArray text = QByteArray::fromStdString(data.dump());
    const catalogue::Value record(*call.result);
    const int result = call.parse(QJsonDocument::fromJson(text).object(), record.Data());
    return {result, record.ToJson()};
}

}  // namespace contract_tests
