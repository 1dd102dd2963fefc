# What every part of the project needs, in the oldest versions that it is built and tested with.
foreach(compiler IN ITEMS "GNU 12" "Clang 14")
    separate_arguments(compiler)
    list(POP_FRONT compiler id)
    if(CMAKE_CXX_COMPILER_ID STREQUAL id AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS compiler)
        message(FATAL_ERROR "APIModule needs ${id} ${compiler} or newer; "
                            "${CMAKE_CXX_COMPILER} is ${CMAKE_CXX_COMPILER_VERSION}")
    endif()
endforeach()

# A parent links the libraries without looking for these itself.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
apimodule_find_qt(Core Network Widgets)
find_package(Boost 1.81 CONFIG REQUIRED)  # Boost.Describe is in no release before 1.77
