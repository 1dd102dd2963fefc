# Requirements of all parts of the project, with the oldest versions that are tested.
foreach(compiler IN ITEMS "GNU 12" "Clang 14")
    separate_arguments(compiler)
    list(POP_FRONT compiler id)
    if(CMAKE_CXX_COMPILER_ID STREQUAL id AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS compiler)
        message(FATAL_ERROR "APIModule needs ${id} ${compiler} or newer; "
                            "${CMAKE_CXX_COMPILER} is ${CMAKE_CXX_COMPILER_VERSION}")
    endif()
endforeach()

# Lets a parent project link the libraries without finding these packages itself.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
apimodule_find_qt(Core Network Widgets)
find_package(Boost 1.81 CONFIG REQUIRED)  # Boost.Describe exists since 1.77
