#pragma once

// Marks what libHostFrame exports; everything else in the library stays hidden.
#if defined(_WIN32)
#if defined(HOSTFRAME_BUILDING_LIBRARY)
#define HOSTFRAME_API __declspec(dllexport)
#else
#define HOSTFRAME_API __declspec(dllimport)
#endif
#else
#define HOSTFRAME_API __attribute__((visibility("default")))
#endif
