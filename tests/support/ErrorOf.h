#pragma once

#include <string>

namespace testing_support {

/// The text of the error that the action throws; empty for none.
template <typename Error, typename Action>
std::string ErrorOf(Action action)
{
    try {
        action();
        return {};
    } catch (const Error& error) {
        return error.what();
    }
}

}  // namespace testing_support
