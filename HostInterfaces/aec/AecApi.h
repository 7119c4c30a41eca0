#pragma once

// The host interfaces are header only, yet their classes cross shared-library boundaries: an
// interface implemented in one library is cast with dynamic_cast in another, and an exception
// thrown in one is caught in another. Both need one identity for the class's type information
// across the process, so these classes keep default visibility even in libraries that build with
// hidden visibility.
#if defined(_WIN32)
#define AEC_INTERFACE
#else
#define AEC_INTERFACE __attribute__((visibility("default")))
#endif
