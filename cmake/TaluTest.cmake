# talu_add_test(<name> SOURCES <files...> LIBS <targets...> [LABELS <labels...>])
#
# One Qt Test executable per test file, registered with CTest. Every test runs
# offscreen with a home and configuration home of its own, so no test ever
# reads or writes the user's real settings and tests running side by side
# never share one (Qt's test mode keeps settings under $HOME/.qttest). Tests
# that bind or send UDP carry the label "network"; scripts/test runs them only
# inside a private network namespace.
function(talu_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt6::Test ${ARG_LIBS})
    target_compile_definitions(${name} PRIVATE
        TALU_TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
        TALU_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_test(NAME ${name} COMMAND ${name})
    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    file(MAKE_DIRECTORY "${home}/config" "${home}/data" "${home}/cache")
    file(MAKE_DIRECTORY "${home}/runtime")
    file(CHMOD "${home}/runtime" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;XDG_RUNTIME_DIR=${home}/runtime"
        TIMEOUT 300)
    if(ARG_LABELS)
        set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}")
    endif()
endfunction()
