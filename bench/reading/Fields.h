#pragma once

#include <IPMS/ParkingFields.h>

#include <boost/describe/members.hpp>
#include <boost/describe/modifiers.hpp>
#include <boost/mp11/algorithm.hpp>

#include <type_traits>

namespace bench {

/// Calls @p visit with the key and value of each field of a record, in the order of the platform.
template <typename Record, typename Visit>
auto VisitFields(Record& record, Visit visit) -> std::enable_if_t<boost::describe::has_describe_members<Record>::value>
{
    using Fields = boost::describe::describe_members<Record, boost::describe::mod_public>;
    boost::mp11::mp_for_each<Fields>([&](auto field) { visit(field.name, record.*field.pointer); });
}

}  // namespace bench
