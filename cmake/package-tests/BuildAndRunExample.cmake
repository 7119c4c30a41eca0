cmake_minimum_required(VERSION 3.25)

# Configures and builds the example host against the package in PREFIX alone, runs it, and checks
# what it shows of the explorer before and after its user action, and when it is opened again.
# Arguments: PREFIX, SOURCE_DIR, BINARY_DIR, GENERATOR, MAKE_PROGRAM, CXX_COMPILER,
# CXX_COMPILER_LAUNCHER, CXX_FLAGS, EXE_LINKER_FLAGS, CONFIG.

function(run_step what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what} failed (${result}):\n${output}")
    endif()
endfunction()

set(configure_arguments
    -S ${SOURCE_DIR} -B ${BINARY_DIR} --fresh -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${PREFIX}
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_BUILD_TYPE=${CONFIG}
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
    "-DCMAKE_EXE_LINKER_FLAGS=${EXE_LINKER_FLAGS}"
    -DCMAKE_COMPILE_WARNING_AS_ERROR=ON)
if(MAKE_PROGRAM)
    list(APPEND configure_arguments -DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM})
endif()
if(CXX_COMPILER_LAUNCHER)
    list(APPEND configure_arguments -DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_COMPILER_LAUNCHER})
endif()
run_step("Configuring the example against ${PREFIX}" ${CMAKE_COMMAND} ${configure_arguments})

# A package found anywhere else (a system install) would prove nothing about this one.
file(STRINGS ${BINARY_DIR}/CMakeCache.txt package_dir REGEX "^ProjectExplorer_DIR:")
string(FIND "${package_dir}" "=${PREFIX}/" found_in_prefix)
if(found_in_prefix EQUAL -1)
    message(FATAL_ERROR "The example found the package outside ${PREFIX}: ${package_dir}")
endif()

set(config_arguments "")
if(CONFIG)
    set(config_arguments --config ${CONFIG})
endif()
run_step("Building the example" ${CMAKE_COMMAND} --build ${BINARY_DIR} ${config_arguments} --parallel 2)

# A multi-configuration generator puts the program into a folder of its configuration.
set(program ${BINARY_DIR}/minimal-host)
if(NOT EXISTS ${program})
    set(program ${BINARY_DIR}/${CONFIG}/minimal-host)
endif()
execute_process(COMMAND ${program} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The example failed (${result}):\n${output}\n${errors}")
endif()

# The output in its parts: what comes before the first line "== <step>", then one part per step.
# (Not a CMake list: the output may hold semicolons and brackets.)
set(part_count 0)
set(rest "${output}")
while(TRUE)
    string(FIND "${rest}" "\n== " heading)
    if(heading EQUAL -1)
        set(part_${part_count} "${rest}")
        break()
    endif()
    string(SUBSTRING "${rest}" 0 ${heading} part_${part_count})
    math(EXPR heading "${heading} + 4")
    string(SUBSTRING "${rest}" ${heading} -1 rest)
    math(EXPR part_count "${part_count} + 1")
endwhile()
if(NOT part_count EQUAL 5)
    message(FATAL_ERROR "The example printed ${part_count} steps instead of five:\n${output}")
endif()

set(faults "")
# expect(PART TEXT): the variable PART holds TEXT.
function(expect part text)
    string(FIND "${${part}}" "${text}" position)
    if(position EQUAL -1)
        set(faults "${faults}\n  ${part} lacks:\n${text}" PARENT_SCOPE)
    endif()
endfunction()

set(opened "${part_1}")
set(selected "${part_2}")
set(context_menu "${part_3}")
set(deleted "${part_4}")
set(reopened "${part_5}")

# Opened: every group folded, with the count of its entities from the project.
expect(opened "> Sheets (4)\n> Tables (1)\n")
expect(opened "> Topics (2)\n> Linked models (0)\n> Images (1)\n")
# Grouped by topic in natural order, the entity without a topic under the formatter's "(none)";
# the selected entities' subgroups unfolded, the others left folded.
expect(selected [[
v Sheets
  > (none) (1)
  v Architecture
      Ground floor plan
    * Roof plan
  v Structure
    * Foundation plan
> Tables (1)
]])
expect(context_menu "[Delete]")
# Deleted after confirmation in one transaction; the emptied subgroup is gone, the others keep
# their fold state.
set(sheets_after_delete [[
v Sheets
  > (none) (1)
  v Architecture
      Ground floor plan
> Tables (1)
]])
expect(deleted "Do you want to delete the 2 selected entities? -> Yes\n")
expect(deleted "${sheets_after_delete}")
expect(deleted "Undo history: Remove entities from project explorer\n")
# A new explorer of the project restores grouping and fold state from the project's preferences.
expect(reopened "${sheets_after_delete}")

if(faults)
    message(FATAL_ERROR "The example's output is wrong:${faults}\n\nWhole output:\n${output}")
endif()
