# Runs one end-to-end script through explorer-shell and checks its transcript.
#
# Variables: SHELL (the program), SCRIPT, EXPECTED (the golden transcript), DATA_DIR (files the
# script reads, copied into WORK_DIR, where the shell runs), UPDATE=ON to rewrite EXPECTED, and
# EMULATOR, what runs a cross-built SHELL (Wine for the Windows build).
#
# Directives, as comment lines of the script:
#   # exit: N        the status the shell must end with (default 0)
#   # input: stdin   the script is fed through stdin, where commands after a failure still run
#   # args: ...      arguments before the options, such as a project file
#   # same-dumps     every dump the script prints must be the same, line for line
#
# The script runs twice with the same seed: identifiers, and so the transcripts, must repeat.
cmake_minimum_required(VERSION 3.25)

foreach(variable IN ITEMS SHELL SCRIPT EXPECTED DATA_DIR WORK_DIR)
    if(NOT DEFINED ${variable})
        message(FATAL_ERROR "RunShellScript.cmake needs -D${variable}=...")
    endif()
endforeach()

set(expected_status 0)
set(feed script)
set(arguments "")
set(same_dumps OFF)
file(STRINGS ${SCRIPT} directives ENCODING UTF-8 REGEX "^# (exit|input|args):|^# same-dumps$")
foreach(directive IN LISTS directives)
    if(directive MATCHES "^# exit: ([0-9]+)$")
        set(expected_status ${CMAKE_MATCH_1})
    elseif(directive STREQUAL "# input: stdin")
        set(feed stdin)
    elseif(directive MATCHES "^# args: (.*)$")
        separate_arguments(arguments UNIX_COMMAND "${CMAKE_MATCH_1}")
    elseif(directive STREQUAL "# same-dumps")
        set(same_dumps ON)
    else()
        message(FATAL_ERROR "Unknown directive in ${SCRIPT}: ${directive}")
    endif()
endforeach()

# Errors go to stderr, the rest to stdout; both are written to one pipe, as a terminal shows them,
# so that each error stands below the command that made it (the shell flushes stdout before an
# error).
function(run_shell transcript)
    file(REMOVE_RECURSE ${WORK_DIR})
    file(MAKE_DIRECTORY ${WORK_DIR})
    file(COPY ${DATA_DIR}/ DESTINATION ${WORK_DIR})
    set(merged sh -c "exec \"$0\" \"$@\" 2>&1" ${EMULATOR} ${SHELL} ${arguments} --seed 7)
    if(feed STREQUAL "stdin")
        execute_process(COMMAND ${merged}
            INPUT_FILE ${SCRIPT} WORKING_DIRECTORY ${WORK_DIR}
            OUTPUT_VARIABLE output RESULT_VARIABLE status)
    else()
        execute_process(COMMAND ${merged} --script ${SCRIPT}
            WORKING_DIRECTORY ${WORK_DIR}
            OUTPUT_VARIABLE output RESULT_VARIABLE status)
    endif()
    if(NOT status STREQUAL expected_status)
        message(FATAL_ERROR "explorer-shell ended with status ${status}, not ${expected_status}.\n"
                            "output:\n${output}")
    endif()
    # The Windows program ends its lines with CR LF, and the reason the system gives for a failed
    # file operation is in its own words (Wine's or Windows'); the transcripts are the same
    # otherwise.
    if(EMULATOR)
        string(REPLACE "\r\n" "\n" output "${output}")
        string(REGEX REPLACE "\\((Path not found|The system cannot find the path specified)\\.?\\)"
                             "(No such file or directory)" output "${output}")
    endif()
    if(output MATCHES "internal error")
        message(FATAL_ERROR "explorer-shell showed an internal error:\n${output}")
    endif()
    set(${transcript} "${output}" PARENT_SCOPE)
endfunction()

run_shell(first)
run_shell(second)
if(NOT first STREQUAL second)
    file(WRITE ${WORK_DIR}/first.txt "${first}")
    file(WRITE ${WORK_DIR}/second.txt "${second}")
    execute_process(COMMAND diff -u ${WORK_DIR}/first.txt ${WORK_DIR}/second.txt OUTPUT_VARIABLE difference)
    message(FATAL_ERROR "Two runs with the same seed differ:\n${difference}")
endif()

if(same_dumps)
    # A dump runs from its command line to the next line that starts with '>'; names in these
    # scripts hold no '>'.
    string(REGEX MATCHALL "\n> dump(\n[^>\n][^\n]*)*" dumps "\n${first}")
    list(LENGTH dumps dump_count)
    if(dump_count LESS 2)
        message(FATAL_ERROR "${SCRIPT} is marked same-dumps but prints ${dump_count} dump(s).")
    endif()
    list(GET dumps 0 first_dump)
    foreach(dump IN LISTS dumps)
        if(NOT dump STREQUAL first_dump)
            message(FATAL_ERROR "The dumps differ:\n${first_dump}\n--- and ---\n${dump}")
        endif()
    endforeach()
endif()

if(UPDATE)
    file(WRITE ${EXPECTED} "${first}")
    return()
endif()
if(NOT EXISTS ${EXPECTED})
    message(FATAL_ERROR "${EXPECTED} is missing; write it from a checked run with -DUPDATE=ON.")
endif()
file(READ ${EXPECTED} golden)
if(NOT first STREQUAL golden)
    file(WRITE ${WORK_DIR}/actual.txt "${first}")
    execute_process(COMMAND diff -u ${EXPECTED} ${WORK_DIR}/actual.txt OUTPUT_VARIABLE difference)
    message(FATAL_ERROR "The transcript differs from ${EXPECTED}:\n${difference}")
endif()
