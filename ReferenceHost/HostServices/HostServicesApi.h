#pragma once

// Marks what libHostServices exports; everything else in the library stays hidden.
#if defined(_WIN32)
#if defined(HOSTSERVICES_BUILDING_LIBRARY)
#define HOSTSERVICES_API __declspec(dllexport)
#else
#define HOSTSERVICES_API __declspec(dllimport)
#endif
#else
#define HOSTSERVICES_API __attribute__((visibility("default")))
#endif
