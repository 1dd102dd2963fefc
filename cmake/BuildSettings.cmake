# Settings shared by all targets of the project.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ${PROJECT_IS_TOP_LEVEL})

# The same layout as in an installation: programs look for their data in ../share.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(APIMODULE_BUILD_SHARE "${PROJECT_BINARY_DIR}/share/apimodule")

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                    -Wcast-align -Wformat=2 -Wimplicit-fallthrough -Wextra-semi
                    # clang warns about macros of Boost.Describe and GoogleTest, since version 19 as an extension of C++20
                    -Wno-gnu-zero-variadic-macro-arguments
                    $<$<AND:$<CXX_COMPILER_ID:Clang>,$<VERSION_GREATER_EQUAL:$<CXX_COMPILER_VERSION>,19>>:-Wno-c++20-extensions>)
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
                        QT_DEPRECATED_WARNINGS)

if(CMAKE_UNITY_BUILD)
    # GCC mistakes the sources of a unity build for headers.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()

if(APIMODULE_SANITIZE)
    # Without the check of enumerations: Qt's flags combine enumerators.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize=enum -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(APIMODULE_FUZZ)
    set(APIMODULE_FUZZED_CODE -fsanitize=fuzzer-no-link)  # options for the code that the fuzz targets explore
endif()

if(APIMODULE_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
