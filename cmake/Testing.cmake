# apimodule_test(<name> SOURCES <file>... [LIBRARIES <target>...] [TIMEOUT <seconds>])
# Adds a test program and registers it with ctest under its name. It runs without a window server by default.
# A test of a minute or more has a COST, so that a first run does not end with it alone.
find_package(GTest REQUIRED)
include(GoogleTest)
set(APIMODULE_TEST_ENVIRONMENT
    QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LANGUAGE=en "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp")
function(apimodule_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;LIBRARIES")
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    if(APIMODULE_SANITIZE)
        math(EXPR arg_TIMEOUT "3 * ${arg_TIMEOUT}")
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gtest)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "${APIMODULE_TEST_ENVIRONMENT}")
endfunction()
