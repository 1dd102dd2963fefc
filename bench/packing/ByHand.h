#pragma once

#include <catalogue/detail/Entry.h>

#include <APIModule.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// Each call of the library packed in the plain way: a QJsonObject filled key by key, written by QJsonDocument, and
/// QString::arg for the URL.
namespace bench {

/// A Pack with its arguments behind one type.
using Pack = std::function<int(void* pRequest, void* const* arguments, int nServerId)>;

struct HandWritten {
    const char* call;
    Pack pack;
};

std::vector<HandWritten> BrmsByHand();
std::vector<HandWritten> OtherFamiliesByHand();

/// Fills the request, as every Pack must, and logs that it did.
int Describe(void* pRequest, APIModule::Method method, const QString& url, int nServerId,
             const QString& body = QString());

QString Compact(const QJsonObject& body);
QJsonArray Texts(const std::vector<std::string>& texts);
QString Joined(const std::vector<std::string>& texts);
QString Flag(bool flag);

template <typename Signature, typename Function, std::size_t... Index>
Pack ByHand(Function pack, std::index_sequence<Index...> /*arguments*/)
{
    return [pack](void* pRequest, [[maybe_unused]] void* const* arguments, [[maybe_unused]] int nServerId) {
        if constexpr (Signature::kTakesServerId) {
            return pack(pRequest, *static_cast<typename Signature::template Argument<Index>*>(arguments[Index])...,
                        nServerId);
        } else {
            return pack(pRequest, *static_cast<typename Signature::template Argument<Index>*>(arguments[Index])...);
        }
    };
}

/// From a function without captures that has the parameters of the Pack.
template <typename Function>
Pack ByHand(Function pack)
{
    using Signature = catalogue::detail::PackSignature<decltype(+pack)>;
    return ByHand<Signature>(pack, std::make_index_sequence<Signature::kArguments>());
}

}  // namespace bench
