#pragma once

#include <gtest/gtest.h>

#include <string>

namespace testing_support {

/// Names a parameterised test after the `name` of its row.
struct RowName {
    template <typename Row>
    std::string operator()(const testing::TestParamInfo<Row>& row) const
    {
        return row.param.name;
    }
};

}  // namespace testing_support
