#pragma once

#include "Common/AssertionViolation.h"

// Contract checks. Each evaluates its condition once and, when it is false, throws the fitting
// violation built from the check site's file and line. They stay active in release builds.

#define COMMON_DETAIL_CHECK(kind, condition)                                                            \
    do                                                                                                  \
    {                                                                                                   \
        if (!(condition))                                                                               \
            throw ::common::kind(__FILE__, __LINE__);                                                   \
    } while (false)

#define COMMON_PRECONDITION(condition) COMMON_DETAIL_CHECK(EPreconditionViolation, condition)
#define COMMON_POSTCONDITION(condition) COMMON_DETAIL_CHECK(EPostconditionViolation, condition)
#define COMMON_INVARIANT(condition) COMMON_DETAIL_CHECK(EClassInvariantViolation, condition)
#define COMMON_CHECK(condition) COMMON_DETAIL_CHECK(ECheckViolation, condition)
#define COMMON_NOT_IMPLEMENTED() throw ::common::ENotImplemented(__FILE__, __LINE__)
