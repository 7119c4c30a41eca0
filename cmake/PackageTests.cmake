# The installed package, tried the way another host uses it. The first test installs the build
# into a scratch prefix inside the build tree; the others need that install: one checks what it
# holds, one configures and builds the example host against it alone, runs it and checks what it
# prints.

set(PACKAGE_TEST_DIR ${CMAKE_BINARY_DIR}/package-test)
set(PACKAGE_TEST_PREFIX ${PACKAGE_TEST_DIR}/prefix)
set(PACKAGE_TEST_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/package-tests)

add_test(NAME PackageInstallsIntoScratchPrefix
         COMMAND ${CMAKE_COMMAND}
                 -DBUILD_DIR=${CMAKE_BINARY_DIR}
                 -DPREFIX=${PACKAGE_TEST_PREFIX}
                 -DCONFIG=$<CONFIG>
                 -P ${PACKAGE_TEST_SCRIPTS}/InstallIntoPrefix.cmake)
set_tests_properties(PackageInstallsIntoScratchPrefix PROPERTIES FIXTURES_SETUP PackageInstalled)

add_test(NAME PackageHoldsOnlyTheLibrariesAndTheirHeaders
         COMMAND ${CMAKE_COMMAND}
                 -DPREFIX=${PACKAGE_TEST_PREFIX}
                 -DLIBDIR=${CMAKE_INSTALL_LIBDIR}
                 -DINCLUDEDIR=${CMAKE_INSTALL_INCLUDEDIR}
                 -DPACKAGE=${PROJECT_PACKAGE_NAME}
                 "-DLIBRARIES=$<TARGET_FILE_NAME:Common>,$<TARGET_FILE_NAME:AecApp>,$<TARGET_FILE_NAME:ProjectExplorerLib>"
                 -P ${PACKAGE_TEST_SCRIPTS}/CheckInstalledTree.cmake)
set_tests_properties(PackageHoldsOnlyTheLibrariesAndTheirHeaders PROPERTIES FIXTURES_REQUIRED PackageInstalled)

# The example is built with this build's compiler, generator, build type and flags (the sanitizer
# flags of an asan build, which its libraries need in the program too), warnings as errors. Its
# build runs alone, so that it takes no more cores than the build it tests.
add_test(NAME MinimalHostBuildsAndRunsAgainstPackage
         COMMAND ${CMAKE_COMMAND}
                 -DPREFIX=${PACKAGE_TEST_PREFIX}
                 -DSOURCE_DIR=${PROJECT_SOURCE_DIR}/examples/minimal-host
                 -DBINARY_DIR=${PACKAGE_TEST_DIR}/minimal-host
                 -DGENERATOR=${CMAKE_GENERATOR}
                 -DMAKE_PROGRAM=${CMAKE_MAKE_PROGRAM}
                 -DCXX_COMPILER=${CMAKE_CXX_COMPILER}
                 -DCXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
                 "-DCXX_FLAGS=${CMAKE_CXX_FLAGS}"
                 "-DEXE_LINKER_FLAGS=${CMAKE_EXE_LINKER_FLAGS}"
                 -DCONFIG=$<CONFIG>
                 -P ${PACKAGE_TEST_SCRIPTS}/BuildAndRunExample.cmake)
set_tests_properties(MinimalHostBuildsAndRunsAgainstPackage PROPERTIES
    FIXTURES_REQUIRED PackageInstalled
    RUN_SERIAL TRUE
    TIMEOUT 900)
