# Fails unless the library's dynamic symbol table holds its nine entry points, each once, and
# otherwise only the run-time type information of the host interfaces.
# Run as: cmake -DLIBRARY=<path> -P CheckExports.cmake
set(entryPoints
    createViewCreator createGroupingModelFactory createGroupMaker createProjectExplorerFactory
    createProjectExplorerStateMonitor createProjectExplorerGuiEventHandlerFactory
    createProjectExplorerEntityProvider createProjectExplorerEntityControllerFactory setUuidProvider)
set(missingEntryPoints ${entryPoints})
set(exportedEntryPoints)

execute_process(COMMAND nm -D --defined-only --demangle ${LIBRARY}
                OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "nm failed on ${LIBRARY}")
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
