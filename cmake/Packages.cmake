# The target `package` builds a Debian package of each install component. Configure the build with the prefix /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME apimodule)
set(CPACK_PACKAGE_VENDOR "The APIModule developers")
set(CPACK_PACKAGE_CONTACT "The APIModule developers <developers@apimodule.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # set for each package
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# A program linked with this version runs with any later version that has the same SOVERSION.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(library_package "libapimodule${PROJECT_VERSION_MAJOR}")
set(testing_package "libapimoduletesting${PROJECT_VERSION_MAJOR}")
set(at_least "(>= ${PROJECT_VERSION})")
set(same "(= ${PROJECT_VERSION})")
set(qt_package qtbase5-dev)
if(APIMODULE_QT_MAJOR EQUAL 6)
    set(qt_package qt6-base-dev)
endif()

# apimodule_package(<component> <package> <section> <field> <value>... DESCRIPTION <text>)
macro(apimodule_package component package section)
    string(TOUPPER ${component} upper)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
    cmake_parse_arguments(CPACK_DEBIAN_${upper} "" "DESCRIPTION;PACKAGE_ARCHITECTURE;PACKAGE_DEPENDS;PACKAGE_RECOMMENDS;PACKAGE_SUGGESTS" ""
        ${ARGN})
endmacro()

apimodule_package(runtime ${library_package} libs
    PACKAGE_DEPENDS "apimodule-data ${at_least}"
    DESCRIPTION "typed calls to the services of a security platform
The library with which the desktop client of a video-surveillance and
security platform calls the REST services of the platform server, and its
default client libraries.")
apimodule_package(data apimodule-data misc
    PACKAGE_ARCHITECTURE all
    DESCRIPTION "translations, contract and seed data of APIModule
The texts of the library in English, German and Chinese, the calls as
OpenAPI, and the initial data of the platform emulator.")
apimodule_package(development libapimodule-dev libdevel
    PACKAGE_DEPENDS "${library_package} ${same}, ${qt_package}, libboost1.81-dev | libboost-dev (>= 1.81)"
    PACKAGE_RECOMMENDS "libapimoduletesting-dev"
    PACKAGE_SUGGESTS "apimodule-doc, apimodule-tools"
    DESCRIPTION "typed calls to the services of a security platform - headers
Headers, CMake package and pkg-config file for programs that call the REST
services of a platform server with APIModule, and an example program.")
set(packages_with_libraries runtime)
if(APIMODULE_BUILD_TOOLS)
    list(APPEND packages_with_libraries testing)
    apimodule_package(testing ${testing_package} libs
        PACKAGE_DEPENDS "apimodule-data ${at_least}"
        DESCRIPTION "emulator of a security platform, for tests
A platform server inside a test program. It replies to the calls of
APIModule, keeps state, and injects faults.")
    apimodule_package(testing_development libapimoduletesting-dev libdevel
        PACKAGE_DEPENDS "${testing_package} ${same}, libapimodule-dev ${same}, nlohmann-json3-dev"
        DESCRIPTION "emulator of a security platform, for tests - headers
Headers and CMake target of the platform emulator, for testing programs
that use APIModule.")
    apimodule_package(tools apimodule-tools devel
        PACKAGE_DEPENDS "${library_package} ${at_least}, apimodule-data ${at_least}"
        PACKAGE_SUGGESTS "apimodule-doc"
        DESCRIPTION "command-line and graphical tools for a security platform
A server for development and tests, and programs that make any call of
APIModule from a shell (apicall) or in a window (apimodule-explorer).")
endif()
if(APIMODULE_INSTALL_DOCS)
    apimodule_package(documentation apimodule-doc doc
        PACKAGE_ARCHITECTURE all
        DESCRIPTION "guides and reference of APIModule
The guides, the reference of the library and the contract as a website, with
their sources, and an example client.")
endif()

# The trigger runs ldconfig. Listing postinst and postrm keeps CPack from generating scripts that do the same.
foreach(component IN LISTS packages_with_libraries)
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/triggers;postinst;postrm")
endforeach()

# Changelog and copyright of each package.
string(TIMESTAMP package_date "%a, %d %b %Y 00:00:00 +0000" UTC)
configure_file("${PROJECT_SOURCE_DIR}/cmake/changelog.in" "${PROJECT_BINARY_DIR}/changelog" @ONLY)
execute_process(COMMAND gzip --best --no-name --force --keep "${PROJECT_BINARY_DIR}/changelog" COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(folder "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
    install(FILES "${PROJECT_SOURCE_DIR}/COPYING" DESTINATION "${folder}" RENAME copyright COMPONENT ${component})
    install(FILES "${PROJECT_BINARY_DIR}/changelog.gz" DESTINATION "${folder}" COMPONENT ${component})
endforeach()

include(CPack)
