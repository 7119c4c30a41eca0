# Fails unless the library's dynamic symbol table (a DLL's export table) holds its nine entry
# points, each once, and otherwise only the run-time type information of the host interfaces.
# Run as: cmake -DLIBRARY=<path> [-DOBJDUMP=<objdump of a DLL's toolchain>] -P CheckExports.cmake
set(entryPoints
    createViewCreator createGroupingModelFactory createGroupMaker createProjectExplorerFactory
    createProjectExplorerStateMonitor createProjectExplorerGuiEventHandlerFactory
    createProjectExplorerEntityProvider createProjectExplorerEntityControllerFactory setUuidProvider)
set(missingEntryPoints ${entryPoints})
set(exportedEntryPoints)

if(OBJDUMP)
    # A DLL: the names of its export table, "[ordinal] name" each, demangled by the toolchain's
    # c++filt beside objdump.
    string(REGEX REPLACE "objdump(\\.exe)?$" "c++filt" CXXFILT "${OBJDUMP}")
    execute_process(COMMAND ${OBJDUMP} -p ${LIBRARY} OUTPUT_VARIABLE dump RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "objdump failed on ${LIBRARY}")
    endif()
    # The names are listed under "[Ordinal/Name Pointer] Table" up to the next empty line; the
    # address table before them has lines of the same shape.
    string(FIND "${dump}" "[Ordinal/Name Pointer] Table\n" namesStart)
    if(namesStart EQUAL -1)
        message(FATAL_ERROR "${LIBRARY} exports nothing")
    endif()
    string(SUBSTRING "${dump}" ${namesStart} -1 names)
    string(FIND "${names}" "\n\n" namesEnd)
    string(SUBSTRING "${names}" 0 ${namesEnd} names)
    string(REGEX MATCHALL "\n[ \t]*\\[ *[0-9]+\\] [^\n]+" entries "${names}")
    set(mangled)
    foreach(entry IN LISTS entries)
        string(REGEX REPLACE "^\n[ \t]*\\[ *[0-9]+\\] " "" name "${entry}")
        string(APPEND mangled "${name}\n")
    endforeach()
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/exports-mangled.txt "${mangled}")
    execute_process(COMMAND ${CXXFILT} INPUT_FILE ${CMAKE_CURRENT_BINARY_DIR}/exports-mangled.txt
                    OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "c++filt failed")
    endif()
else()
    execute_process(COMMAND nm -D --defined-only --demangle ${LIBRARY}
                    OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "nm failed on ${LIBRARY}")
    endif()
endif()

string(REPLACE "\n" ";" lines "${symbols}")
foreach(line IN LISTS lines)
    if(line STREQUAL "")
        continue()
    endif()
    string(REGEX REPLACE "^[0-9a-f]* +[A-Za-z] +" "" symbol "${line}")
    if(symbol MATCHES "^(typeinfo for|typeinfo name for|vtable for) aec::")
        continue()
    endif()
    if(symbol MATCHES "^project_explorer::([A-Za-z]+)\\(")
        list(FIND entryPoints "${CMAKE_MATCH_1}" index)
        if(index GREATER_EQUAL 0)
            list(APPEND exportedEntryPoints "${CMAKE_MATCH_1}")
            list(REMOVE_ITEM missingEntryPoints "${CMAKE_MATCH_1}")
            continue()
        endif()
    endif()
    message(SEND_ERROR "exported but not an entry point: ${symbol}")
endforeach()

if(missingEntryPoints)
    message(FATAL_ERROR "entry points not exported: ${missingEntryPoints}")
endif()
# An overload of an entry point would pass the name test above; the host looks each up by name.
list(LENGTH exportedEntryPoints exportedCount)
if(NOT exportedCount EQUAL 9)
    message(FATAL_ERROR "expected nine exported functions, found ${exportedCount}: ${exportedEntryPoints}")
endif()
