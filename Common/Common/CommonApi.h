#pragma once

// Marks what libCommon exports; everything else in the library stays hidden.
#if defined(_WIN32)
#if defined(COMMON_BUILDING_LIBRARY)
#define COMMON_API __declspec(dllexport)
#else
#define COMMON_API __declspec(dllimport)
#endif
#else
#define COMMON_API __attribute__((visibility("default")))
#endif
