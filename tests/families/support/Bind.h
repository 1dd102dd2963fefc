#pragma once

#include "Family.h"
#include "Records.h"

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace family_testing {

template <typename... Parameters>
struct Signature {
    using Pack = int (*)(void*, Parameters..., int);
    using PackWithoutServer = int (*)(void*, Parameters...);
};

/// Calls a Pack with copies of the arguments and checks that it does not change them.
template <typename Call, typename... Arguments>
std::function<int(void*, int)> Bound(const Call& call, Arguments... arguments)
{
    return [call, given = std::make_tuple(std::move(arguments)...)](void* pReqParamData, int nServerId) {
        auto passed = given;
        const int nResult = std::apply([&](auto&... each) { return call(pReqParamData, nServerId, each...); }, passed);
        const auto toJson = [](const auto&... each) { return Json::array({ToJson(each)...}); };
        EXPECT_EQ(std::apply(toJson, passed), std::apply(toJson, given)) << "an argument changed";
        return nResult;
    };
}

/// Fixes the parameter types of the interface: a Pack with other parameters does not compile.
template <typename... Parameters>
std::function<int(void*, int)> Bind(typename Signature<Parameters...>::Pack pack, std::decay_t<Parameters>... arguments)
{
    return Bound(
        [pack](void* pReqParamData, int nServerId, auto&... each) { return pack(pReqParamData, each..., nServerId); },
        std::move(arguments)...);
}

template <typename... Parameters>
std::function<int(void*, int)> Bind(typename Signature<Parameters...>::PackWithoutServer pack,
                                    std::decay_t<Parameters>... arguments)
{
    return Bound([pack](void* pReqParamData, int /*nServerId*/, auto&... each) { return pack(pReqParamData, each...); },
                 std::move(arguments)...);
}

/// Values of PackRow that few Packs need.
struct Irregular {
    Server server = Server::OfCaller;
    std::string failed = {};
    std::string success = {};
};

/// Makes rows that call the same Pack.
template <typename... Parameters>
class PackRowFactory {
public:
    template <typename Pack>
    PackRowFactory(std::string call, Pack pack, APIModule::Method method, std::string url = {},
                   Irregular irregular = {})
        : m_call(std::move(call)), m_bind([pack](std::decay_t<Parameters>... arguments) {
              return Bind<Parameters...>(pack, std::move(arguments)...);
          }),
          m_method(method), m_url(std::move(url)), m_irregular(std::move(irregular))
    {}

protected:
    [[nodiscard]] PackRow Row(const std::string& name, std::decay_t<Parameters>... arguments, const std::string& inUrl,
                              const std::string& body) const
    {
        return {name,
                m_call,
                m_bind(std::move(arguments)...),
                m_method,
                m_url + inUrl,
                body,
                m_irregular.server,
                m_irregular.failed,
                m_irregular.success};
    }

private:
    std::string m_call;
    std::function<std::function<int(void*, int)>(std::decay_t<Parameters>...)> m_bind;
    APIModule::Method m_method;
    std::string m_url;
    Irregular m_irregular;
};

/// Rows consist of a name, the arguments, their part of the URL, and the body if there is one.
template <typename... Parameters>
class UrlPack : public PackRowFactory<Parameters...> {
public:
    using PackRowFactory<Parameters...>::PackRowFactory;
    PackRow operator()(const std::string& name, std::decay_t<Parameters>... arguments, const std::string& inUrl,
                       const std::string& body = {}) const
    {
        return this->Row(name, std::move(arguments)..., inUrl, body);
    }
};

/// Rows of a Pack that sends a text in its URL, followed by @p after.
template <typename Text>
std::vector<PackRow> TextRows(const std::string& name, const UrlPack<Text>& pack, const std::string& after = {})
{
    using namespace std::string_literals;
    struct {
        const char* name;
        std::string text;
        std::string inUrl;
    } const texts[] = {
        {"", "1000001$1$0$0", "1000001$1$0$0"},
        {"_empty", "", ""},
        {"_is_not_escaped", R"(a b/c?d&e#f"g"+%20)", R"(a b/c?d&e#f"g"+%20)"},
        {"_with_marker_is_kept", "%1%2b", "%1%2b"},
        {"_is_utf8", "\xC3\xBC\xE4\xB8\xAD\xF0\x9F\x98\x80", "\xC3\xBC\xE4\xB8\xAD\xF0\x9F\x98\x80"},
        {"_of_invalid_utf8_is_replaced", "a\xFF", "a\xEF\xBF\xBD"},
        {"_continues_after_a_zero_byte", "a\0b"s, "a\0b"s},
    };
    std::vector<PackRow> rows;
    for (const auto& row : texts) {
        rows.push_back(pack(name + row.name, {row.text}, row.inUrl + after));
    }
    return rows;
}

/// Rows consist of a name, the arguments and the body.
template <typename... Parameters>
class BodyPack : public PackRowFactory<Parameters...> {
public:
    using PackRowFactory<Parameters...>::PackRowFactory;
    PackRow operator()(const std::string& name, std::decay_t<Parameters>... arguments, const std::string& body) const
    {
        return this->Row(name, std::move(arguments)..., {}, body);
    }
};

}  // namespace family_testing
