# Compiles SOURCE with COMPILER and FLAGS (a |-separated list) once without DROPPED, which must
# succeed, and once for each DROPPED value in CASES (a |-separated list), each of which must fail
# with a message about a result declared nodiscard.
string(REPLACE "|" ";" flags "${FLAGS}")
string(REPLACE "|" ";" cases "${CASES}")
execute_process(COMMAND ${COMPILER} ${flags} -fsyntax-only ${SOURCE}
                RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The results kept do not compile:\n${output}")
endif()
foreach(case IN LISTS cases)
    execute_process(COMMAND ${COMPILER} ${flags} -DDROPPED=${case} -fsyntax-only ${SOURCE}
                    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result EQUAL 0)
        message(FATAL_ERROR "Case ${case}: a dropped result compiles")
    endif()
    if(NOT output MATCHES "nodiscard")
        message(FATAL_ERROR "Case ${case} fails for another reason than the dropped result:\n${output}")
    endif()
endforeach()
