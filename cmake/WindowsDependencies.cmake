# The libraries of the Windows cross build. Boost, fmt, nlohmann-json and CLI11 are used header
# only, from Debian's headers: a folder of the build links to just their include folders, so that
# the Linux system headers beside them in /usr/include never reach the Windows compiler. GoogleTest
# builds from the sources Debian ships. The targets carry the names that find_package gives on
# Linux.

set(PROJECT_HEADER_ONLY_ROOT /usr/include CACHE PATH "Where the header-only libraries' folders are")
set(header_only_dir ${CMAKE_BINARY_DIR}/header-only-include)
file(MAKE_DIRECTORY ${header_only_dir})
foreach(library_dir IN ITEMS boost fmt nlohmann CLI)
    if(NOT EXISTS ${PROJECT_HEADER_ONLY_ROOT}/${library_dir})
        message(FATAL_ERROR "${PROJECT_HEADER_ONLY_ROOT}/${library_dir} is missing: ./scripts/setup installs it")
    endif()
    file(CREATE_LINK ${PROJECT_HEADER_ONLY_ROOT}/${library_dir} ${header_only_dir}/${library_dir} SYMBOLIC)
endforeach()

# <windows.h> without its rarely used parts and without its min and max macros, which would break
# std::min and std::max in every file that includes it (libstdc++ defines NOMINMAX as 1 too).
add_compile_definitions(WIN32_LEAN_AND_MEAN NOMINMAX=1)

# Imported, so that their headers are system headers and our warnings do not apply to them.
add_library(Boost::headers INTERFACE IMPORTED GLOBAL)
target_include_directories(Boost::headers INTERFACE ${header_only_dir})
# Boost would otherwise ask for its compiled libraries by auto-linking, which MinGW ignores anyway.
target_compile_definitions(Boost::headers INTERFACE BOOST_ALL_NO_LIB)

add_library(fmt::fmt INTERFACE IMPORTED GLOBAL)
target_include_directories(fmt::fmt INTERFACE ${header_only_dir})
target_compile_definitions(fmt::fmt INTERFACE FMT_HEADER_ONLY)

add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
target_include_directories(nlohmann_json::nlohmann_json INTERFACE ${header_only_dir})

add_library(CLI11::CLI11 INTERFACE IMPORTED GLOBAL)
target_include_directories(CLI11::CLI11 INTERFACE ${header_only_dir})

if(BUILD_TESTING)
    set(PROJECT_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest's sources")
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
    # Its targets come with the GTest:: names that find_package(GTest) gives.
    add_subdirectory(${PROJECT_GOOGLETEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endif()

# Every program and DLL in one folder, as Windows looks for a program's DLLs beside it, with the
# compiler's run-time DLLs copied there too.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libstdc++-6.dll
                OUTPUT_VARIABLE libstdcxx_dll OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libgcc_s_seh-1.dll
                OUTPUT_VARIABLE libgcc_dll OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libwinpthread-1.dll
                OUTPUT_VARIABLE winpthread_dll OUTPUT_STRIP_TRAILING_WHITESPACE)
file(COPY ${libstdcxx_dll} ${libgcc_dll} ${winpthread_dll} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
