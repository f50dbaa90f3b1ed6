# kartella_add_test(<area> SOURCES <files...> [LIBS <targets...>] [GUI])
#
# Adds one QtTest executable tst_<area> and registers it with ctest. Each test runs
# offscreen with its own XDG_CONFIG_HOME and HOME under the build tree, so it never
# touches the user's options and tests can run in parallel.
function(kartella_add_test area)
    cmake_parse_arguments(ARG "GUI" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    set(target tst_${area})
    add_executable(${target} ${ARG_SOURCES})
    kartella_warnings(${target})
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
    set(libs kartella_testsupport kartella_core Qt6::Test Qt6::Core)
    if(ARG_GUI)
        list(PREPEND libs kartella_gui)
        list(APPEND libs Qt6::Widgets)
    endif()
    target_link_libraries(${target} PRIVATE ${ARG_LIBS} ${libs})
    set(home ${CMAKE_CURRENT_BINARY_DIR}/${target}.home)
    file(MAKE_DIRECTORY ${home}/config)
    add_test(NAME ${area} COMMAND ${target})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 600)
    endif()
    set_tests_properties(${area} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;KARTELLA_DATA_DIR=${PROJECT_SOURCE_DIR}/share;XDG_CONFIG_HOME=${home}/config;HOME=${home};LC_ALL=C.UTF-8;QT_LOGGING_RULES=qt.qpa.*=false"
        WORKING_DIRECTORY ${home})
endfunction()
