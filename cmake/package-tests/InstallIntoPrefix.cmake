cmake_minimum_required(VERSION 3.25)

# Installs the build tree into an empty PREFIX, so that nothing left from an earlier install can
# stand in for a file this one forgot.
# Arguments: BUILD_DIR, PREFIX, CONFIG.

file(REMOVE_RECURSE ${PREFIX})
set(config_arguments "")
if(CONFIG)
    set(config_arguments --config ${CONFIG})
endif()
execute_process(
    COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX} ${config_arguments}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed (${result}):\n${output}")
endif()
