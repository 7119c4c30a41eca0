#pragma once

#include "aec/BadModelObjectCast.h"

#include <boost/core/demangle.hpp>
#include <fmt/format.h>
#include <type_traits>
#include <typeinfo>

namespace aec
{

namespace detail
{

// To carries the constness of From.
template <class To, class From>
To& checkedCast(From& object)
{
    static_assert(std::is_polymorphic_v<From>, "aec::cast asks for a model object's dynamic type");
    if (auto* const result = dynamic_cast<To*>(&object))
        return *result;
    // typeid of a polymorphic object names its dynamic type, which tells more than the static one.
    throw EBadModelObjectCast(fmt::format("aec::cast failed to cast from {} to {}",
                                          boost::core::demangle(typeid(object).name()),
                                          boost::core::demangle(typeid(To).name())));
}

} // namespace detail

// The interface To of a model object; throws EBadModelObjectCast when the object lacks it.
template <class To, class From>
To& cast(From& object)
{
    return detail::checkedCast<To>(object);
}

template <class To, class From>
const To& cast(const From& object)
{
    return detail::checkedCast<const To>(object);
}

} // namespace aec
