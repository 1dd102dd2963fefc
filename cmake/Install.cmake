# Install rules for `cmake --install` and cpack. Components: runtime, data, development, tools, testing, testing_development,
# and documentation, which is in docs/CMakeLists.txt. Packages.cmake builds a Debian package of each component.
include(CMakePackageConfigHelpers)

set(headers_folder "${CMAKE_INSTALL_INCLUDEDIR}/apimodule")
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/APIModule")

# Libraries find each other in any installation folder.
foreach(library IN LISTS APIMODULE_LIBRARIES)
    get_target_property(type ${library} TYPE)
    if(type STREQUAL SHARED_LIBRARY)
        set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()
endforeach()

install(TARGETS ${APIMODULE_LIBRARIES} EXPORT APIModuleTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
    FILE_SET HEADERS DESTINATION "${headers_folder}" COMPONENT development)
if(TARGET APIModuleClient)
    install(TARGETS APIModuleClient EXPORT APIModuleTargets)
endif()
install(EXPORT APIModuleTargets NAMESPACE APIModule:: DESTINATION "${package_folder}" COMPONENT development)

if(APIMODULE_BUILD_TOOLS)
    set(share_folder "${CMAKE_INSTALL_DATADIR}/apimodule")
    file(RELATIVE_PATH to_libraries "/prefix/${CMAKE_INSTALL_BINDIR}" "/prefix/${CMAKE_INSTALL_LIBDIR}")
    set(programs apicall platform-emulator)
    if(APIMODULE_BUILD_EXPLORER)
        list(APPEND programs apimodule-explorer)
    endif()
    set_target_properties(${programs} PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
    install(TARGETS ${programs} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tools)

    # The manual pages are generated from --help.
    set(title_of_apicall "make calls to a platform server from a shell")
    set(title_of_apimodule-explorer "make calls to a platform server from a graphical interface")
    set(title_of_platform-emulator "platform server for development and tests")
    find_program(HELP2MAN help2man)
    if(HELP2MAN)
        foreach(program IN LISTS programs)
            set(manual "${PROJECT_BINARY_DIR}/man/${program}.1")
            string(REGEX REPLACE ".*-" "" guide ${program})
            set(see_also "${PROJECT_BINARY_DIR}/man/${program}.h2m")
            configure_file("${PROJECT_SOURCE_DIR}/cmake/manual.h2m.in" "${see_also}" @ONLY)
            add_custom_command(OUTPUT "${manual}.gz"
                COMMAND "${HELP2MAN}" --no-info --output "${manual}" --include "${see_also}"
                    --name "${title_of_${program}}" --version-string "${program} ${PROJECT_VERSION}" $<TARGET_FILE:${program}>
                COMMAND gzip --best --no-name --force "${manual}"
                DEPENDS ${program} "${see_also}" VERBATIM)
            list(APPEND manuals "${manual}.gz")
        endforeach()
        add_custom_target(manuals ALL DEPENDS ${manuals})
        install(FILES ${manuals} DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tools)
    endif()

    set(completions "${PROJECT_SOURCE_DIR}/tools/apicall/completions")
    set(zsh_folder site-functions)
    if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        set(zsh_folder vendor-completions)  # Debian's folder for packages; site-functions is for the administrator
    endif()
    install(FILES "${completions}/apicall.bash" RENAME apicall
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT tools)
    install(FILES "${completions}/_apicall" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/${zsh_folder}" COMPONENT tools)

    install(DIRECTORY "${PROJECT_SOURCE_DIR}/contract" "${PROJECT_SOURCE_DIR}/tools/emulator/seed"
        DESTINATION "${share_folder}" COMPONENT data FILES_MATCHING PATTERN *.yaml PATTERN *.json)

    # The emulator for client tests: find_package(APIModule CONFIG COMPONENTS Testing).
    set_target_properties(APIModuleTesting PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS APIModuleTesting EXPORT APIModuleTestingTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT testing NAMELINK_COMPONENT testing_development
        FILE_SET HEADERS DESTINATION "${headers_folder}" COMPONENT testing_development)
    install(EXPORT APIModuleTestingTargets NAMESPACE APIModule:: DESTINATION "${package_folder}"
        COMPONENT testing_development)
endif()

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/APIModuleConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/APIModuleConfig.cmake" INSTALL_DESTINATION "${package_folder}"
    PATH_VARS APIMODULE_TRANSLATIONS_FOLDER)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/APIModuleConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/APIModuleConfig.cmake" "${PROJECT_BINARY_DIR}/APIModuleConfigVersion.cmake"
    DESTINATION "${package_folder}" COMPONENT development)

install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/apimodule" COMPONENT development)

# Relative path from the folder of APIModule.pc to the prefix.
file(RELATIVE_PATH to_prefix "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" /prefix)
set(translations_variable "")
if(APIMODULE_TRANSLATIONS_FOLDER)
    set(translations_variable "translations=\${prefix}/${APIMODULE_TRANSLATIONS_FOLDER}")
endif()
# Includes the client libraries that a host calls directly; UserLogical is header-only.
set(libraries -lAPIModule)
if(APIMODULE_BUNDLED_PLATFORM)
    string(APPEND libraries " -lErrorLexicon -lOrnGui -lornl")
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/APIModule.pc.in" "${PROJECT_BINARY_DIR}/APIModule.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/APIModule.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
