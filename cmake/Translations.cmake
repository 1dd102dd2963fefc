# apimodule_translations(<name> COMPONENT <component> [SOURCES <folder>...])
# The texts of the sources below the calling folder, or of those named, in every language of the project: the files
# translations/<name>_<language>.ts beside the caller. The target <name>-translations makes the files that programs load
# from share/apimodule/translations, in the build folder as in an installation. The target `translations` takes new texts
# into all .ts files; a test fails when one of them is not up to date or misses a translation.
find_package(Qt5 5.12 REQUIRED COMPONENTS LinguistTools)

set(APIMODULE_LANGUAGES en de zh)
set(APIMODULE_TRANSLATIONS_FOLDER "${CMAKE_INSTALL_DATADIR}/apimodule/translations")
add_custom_target(translations)

function(apimodule_translations name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "COMPONENT" "SOURCES")
    if(NOT arg_SOURCES)
        set(arg_SOURCES .)
    endif()
    list(TRANSFORM arg_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")

    foreach(language IN LISTS APIMODULE_LANGUAGES)
        list(APPEND files "${CMAKE_CURRENT_SOURCE_DIR}/translations/${name}_${language}.ts")
    endforeach()
    set_source_files_properties(${files} PROPERTIES
        OUTPUT_LOCATION "${CMAKE_BINARY_DIR}/share/apimodule/translations")
    qt5_add_translation(compiled ${files} OPTIONS -silent)
    add_custom_target(${name}-translations ALL DEPENDS ${compiled})
    install(FILES ${compiled} DESTINATION "${APIMODULE_TRANSLATIONS_FOLDER}" COMPONENT ${arg_COMPONENT})

    # Each list is one argument.
    string(REPLACE ";" "\\;" sources "${arg_SOURCES}")
    string(REPLACE ";" "\\;" files "${files}")
    set(update "${CMAKE_COMMAND}" "-DLUPDATE=$<TARGET_FILE:Qt5::lupdate>" "-DSOURCES=${sources}" "-DFILES=${files}")
    set(script "${PROJECT_SOURCE_DIR}/cmake/UpdateTranslations.cmake")
    add_custom_target(${name}-texts COMMAND ${update} -P "${script}" VERBATIM)
    add_dependencies(translations ${name}-texts)
    if(BUILD_TESTING)
        add_test(NAME ${name}_translations
            COMMAND ${update} "-DCHECK_IN=${CMAKE_CURRENT_BINARY_DIR}/${name}-translations" -P "${script}")
    endif()
endfunction()
