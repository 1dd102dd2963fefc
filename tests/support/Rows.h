#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <tuple>

namespace testing_support {

template <typename Row>
auto NameOf(const Row& row) -> decltype(std::string(row.name))
{
    return row.name;
}

/// Prints a row as its name. Tests make this known for their own rows by a using-declaration.
template <typename Row>
auto operator<<(std::ostream& stream, const Row& row) -> decltype(stream << row.name)
{
    return stream << row.name;
}

/// Names a parameterised test after its row, or after the parts of its combination.
struct RowName {
    template <typename Row>
    std::string operator()(const testing::TestParamInfo<Row>& row) const
    {
        return NameOf(row.param);
    }

    template <typename... Parts>
    std::string operator()(const testing::TestParamInfo<std::tuple<Parts...>>& row) const
    {
        std::string name;
        std::apply([&](const auto&... part) { ((name += '_' + NameOf(part)), ...); }, row.param);
        return name.substr(1);
    }
};

}  // namespace testing_support
