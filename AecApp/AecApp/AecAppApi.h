#pragma once

// Marks what libAecApp exports; everything else in the library stays hidden.
#if defined(_WIN32)
#if defined(AECAPP_BUILDING_LIBRARY)
#define AECAPP_API __declspec(dllexport)
#else
#define AECAPP_API __declspec(dllimport)
#endif
#else
#define AECAPP_API __attribute__((visibility("default")))
#endif
