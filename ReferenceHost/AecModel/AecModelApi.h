#pragma once

// Marks what libAecModel exports; everything else in the library stays hidden.
#if defined(_WIN32)
#if defined(AECMODEL_BUILDING_LIBRARY)
#define AECMODEL_API __declspec(dllexport)
#else
#define AECMODEL_API __declspec(dllimport)
#endif
#else
#define AECMODEL_API __attribute__((visibility("default")))
#endif
