#pragma once

// Marks what libProjectExplorerLib exports (its entry points); everything else stays hidden.
#if defined(_WIN32)
#if defined(PROJECT_EXPLORER_BUILDING_LIBRARY)
#define PROJECT_EXPLORER_API __declspec(dllexport)
#else
#define PROJECT_EXPLORER_API __declspec(dllimport)
#endif
#else
#define PROJECT_EXPLORER_API __attribute__((visibility("default")))
#endif
