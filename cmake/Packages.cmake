# Debian packages of the install tree: the target `package`, in a folder that is configured with the prefix /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME apimodule)
set(CPACK_PACKAGE_VENDOR "The APIModule developers")
set(CPACK_PACKAGE_CONTACT "The APIModule developers <developers@apimodule.example>")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development tools)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/triggers")
set(CPACK_DEBIAN_TOOLS_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/triggers")

set(runtime_package "libapimodule${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "typed calls to the services of a security platform
 The library through which the desktop client of a video-surveillance and
 security platform calls the REST services of the platform server, and the
 default client libraries that it works with.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libapimodule-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(qt_package qtbase5-dev)
if(APIMODULE_QT_MAJOR EQUAL 6)
    set(qt_package qt6-base-dev)
endif()
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime_package} (= ${PROJECT_VERSION}), apimodule-tools (= ${PROJECT_VERSION}), ${qt_package}, libboost1.81-dev | libboost-dev (>= 1.81), nlohmann-json3-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "typed calls to the services of a security platform - development
 Headers, CMake package and pkg-config file for programs that call the REST
 services of a platform server through APIModule, and the platform emulator
 for their tests.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME apimodule-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "typed calls to the services of a security platform - tools
 A server to develop and test against, programs that run any call from a shell
 or from a window, and the same server as a library for tests.")

# What every package says of itself.
string(TIMESTAMP package_date "%a, %d %b %Y 00:00:00 +0000" UTC)
configure_file("${PROJECT_SOURCE_DIR}/cmake/changelog.in" "${PROJECT_BINARY_DIR}/changelog" @ONLY)
execute_process(COMMAND gzip --best --no-name --force --keep "${PROJECT_BINARY_DIR}/changelog" COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN ITEMS runtime development tools)
    string(TOUPPER ${component} upper)
    set(folder "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
    install(FILES "${PROJECT_SOURCE_DIR}/COPYING" DESTINATION "${folder}" RENAME copyright COMPONENT ${component})
    install(FILES "${PROJECT_BINARY_DIR}/changelog.gz" DESTINATION "${folder}" COMPONENT ${component})
endforeach()

include(CPack)
