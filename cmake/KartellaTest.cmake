# kartella_add_test(<area> SOURCES <files...> [LIBS <targets...>] [GUI] [TIMEOUT <seconds>])
#
# Adds one QtTest executable tst_<area> and registers it with ctest. Each test runs
# offscreen with its own XDG_CONFIG_HOME and HOME under the build tree, so it never
# touches the user's options and tests can run in parallel.
# The test executables' own code is compiled with these options besides (the presets that
# run the suite make it quick to compile: it runs once and calls into optimised libraries).
set(KARTELLA_TEST_CODE_OPTIONS "" CACHE STRING "Compile options of the test executables' own code")

function(kartella_add_test area)
    cmake_parse_arguments(ARG "GUI" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    set(target tst_${area})
    add_executable(${target} ${ARG_SOURCES})
    kartella_warnings(${target})
    target_compile_options(${target} PRIVATE ${KARTELLA_TEST_CODE_OPTIONS})
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
    set(libs kartella_testsupport kartella_core Qt6::Test Qt6::Core)
    if(ARG_GUI)
        list(PREPEND libs kartella_gui)
        list(APPEND libs Qt6::Widgets)
        kartella_test_precompiled_header(${target} GUI)
    else()
        kartella_test_precompiled_header(${target} CORE)
    endif()
    target_link_libraries(${target} PRIVATE ${ARG_LIBS} ${libs})
    _kartella_register_test(${area} ${target} ${CMAKE_CURRENT_BINARY_DIR}/${target}.home "${ARG_TIMEOUT}")
endfunction()

# kartella_add_test_run(<name> <area> [TIMEOUT <seconds>] [SKIP_RETURN_CODE <code>]
#                       [ENVIRONMENT <VAR=value>...])
#
# Registers tst_<area> a second time, as the ctest test <name>: with a HOME of its own, the
# private environment of kartella_add_test and the given variables besides. An exit status of
# SKIP_RETURN_CODE reports the run as skipped. Variables the environment sets are not cleared
# (ctest passes its own environment on), so KARTELLA_TEST_POSTGRESQL reaches every test.
function(kartella_add_test_run name area)
    cmake_parse_arguments(ARG "" "TIMEOUT;SKIP_RETURN_CODE" "ENVIRONMENT" ${ARGN})
    set(target tst_${area})
    _kartella_register_test(${name} ${target} ${CMAKE_CURRENT_BINARY_DIR}/${target}.${name}.home
        "${ARG_TIMEOUT}" ${ARG_ENVIRONMENT})
    if(DEFINED ARG_SKIP_RETURN_CODE)
        set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE ${ARG_SKIP_RETURN_CODE})
    endif()
endfunction()

# Adds the ctest test <name> running <target> in <home>, with the environment every test gets
# and the VAR=value arguments after <timeout> besides.
function(_kartella_register_test name target home timeout)
    file(MAKE_DIRECTORY ${home}/config)
    add_test(NAME ${name} COMMAND ${target})
    if(NOT timeout)
        set(timeout 600)
    endif()
    set(environment
        QT_QPA_PLATFORM=offscreen
        KARTELLA_DATA_DIR=${PROJECT_SOURCE_DIR}/share
        XDG_CONFIG_HOME=${home}/config
        HOME=${home}
        LC_ALL=C.UTF-8
        QT_LOGGING_RULES=qt.qpa.*=false
        ${ARGN})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${timeout}
        ENVIRONMENT "${environment}"
        WORKING_DIRECTORY ${home})
endfunction()
