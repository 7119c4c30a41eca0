# Helpers that give every target of ours the same warnings and layout.

set(PROJECT_WARNINGS
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-align -Wnull-dereference -Wimplicit-fallthrough -Werror)

# With AddressSanitizer, GCC's flow analysis reports false positives in library templates: every
# Boost.Signals2 connect reads an "uninitialized" optional group key, and nlohmann-json's parser
# "dereferences null". Neither happens; the reports would fail files that use those libraries.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_FLAGS MATCHES "-fsanitize=[^ ]*address")
    list(APPEND PROJECT_WARNINGS -Wno-maybe-uninitialized -Wno-null-dereference)
endif()

function(project_apply_warnings target)
    target_compile_options(${target} PRIVATE ${PROJECT_WARNINGS})
endfunction()

# project_add_library(NAME SHARED|STATIC [SOURCES ...] [PUBLIC_DEPS ...] [PRIVATE_DEPS ...] INCLUDE_ROOT dir)
function(project_add_library name kind)
    cmake_parse_arguments(ARG "" "INCLUDE_ROOT;EXPORT_DEFINE" "SOURCES;PUBLIC_DEPS;PRIVATE_DEPS" ${ARGN})
    add_library(${name} ${kind} ${ARG_SOURCES})
    project_apply_warnings(${name})
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${ARG_INCLUDE_ROOT}>
        $<INSTALL_INTERFACE:include>)
    if(ARG_EXPORT_DEFINE)
        target_compile_definitions(${name} PRIVATE ${ARG_EXPORT_DEFINE})
    endif()
    target_link_libraries(${name} PUBLIC ${ARG_PUBLIC_DEPS} PRIVATE ${ARG_PRIVATE_DEPS})
endfunction()

# project_add_tests(NAME SOURCES ... DEPS ...): one GoogleTest binary, each test a CTest test.
function(project_add_tests name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    project_apply_warnings(${name})
    target_link_libraries(${name} PRIVATE ${ARG_DEPS} GTest::gtest GTest::gmock GTest::gtest_main)
    if(CMAKE_CROSSCOMPILING)
        # Each start of the emulator (Wine) costs seconds, so the binary runs once with all its tests.
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES TIMEOUT 1200)
    else()
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 600)
    endif()
endfunction()
