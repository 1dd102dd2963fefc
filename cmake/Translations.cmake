# apimodule_translations(<name> COMPONENT <component> [SOURCES <folder>...])
# Translates the sources below the calling folder, or those in SOURCES, into all languages of the project. The translations
# are in translations/<name>_<language>.ts. The target <name>-translations compiles them to share/apimodule/translations,
# where programs load them from, both in the build folder and in an installation. The target `translations` updates all .ts
# files from the sources; a test fails if one of them is out of date or incomplete.
# A parent project finds the libraries' translations in APIModule_TRANSLATIONS, as with find_package(APIModule).
set(APIMODULE_LANGUAGES en de zh)

unset(APIModule_TRANSLATIONS CACHE)
if(APIMODULE_TRANSLATIONS)
    find_package(${QT} ${APIMODULE_QT_MINIMUM} QUIET OPTIONAL_COMPONENTS LinguistTools)
    if(TARGET ${QT}::lrelease)
        set(APIModule_TRANSLATIONS "${APIMODULE_BUILD_SHARE}/translations" CACHE INTERNAL
            "Folder of the libraries' translations")
        set(APIMODULE_TRANSLATIONS_FOLDER "${CMAKE_INSTALL_DATADIR}/apimodule/translations")
    else()
        set(severity WARNING)
        if(PROJECT_IS_TOP_LEVEL)
            set(severity FATAL_ERROR)
        endif()
        message(${severity} "APIModule's texts will be English only, because Qt's LinguistTools, which compile the translations, "
                            "were not found. Install them, or turn off APIMODULE_TRANSLATIONS.")
    endif()
endif()
if(APIMODULE_UPDATE_TRANSLATIONS)
    add_custom_target(translations)
endif()

function(apimodule_translations name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "COMPONENT" "SOURCES")
    if(NOT arg_SOURCES)
        set(arg_SOURCES .)
    endif()
    list(TRANSFORM arg_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")

    foreach(language IN LISTS APIMODULE_LANGUAGES)
        list(APPEND files "${CMAKE_CURRENT_SOURCE_DIR}/translations/${name}_${language}.ts")
    endforeach()
    if(APIModule_TRANSLATIONS)
        set_source_files_properties(${files} PROPERTIES OUTPUT_LOCATION "${APIModule_TRANSLATIONS}")
        cmake_language(CALL qt${APIMODULE_QT_MAJOR}_add_translation compiled ${files} OPTIONS -silent)
        if(APIMODULE_INSTALL)
            install(FILES ${compiled} DESTINATION "${APIMODULE_TRANSLATIONS_FOLDER}" COMPONENT ${arg_COMPONENT})
        endif()
    endif()
    add_custom_target(${name}-translations DEPENDS ${compiled})
    if(NOT TARGET ${QT}::lupdate)
        return()
    endif()

    # Escaped to pass each list as one argument.
    string(REPLACE ";" "\\;" sources "${arg_SOURCES}")
    string(REPLACE ";" "\\;" files "${files}")
    set(update "${CMAKE_COMMAND}" "-DLUPDATE=$<TARGET_FILE:${QT}::lupdate>" "-DSOURCES=${sources}" "-DFILES=${files}")
    set(script "${PROJECT_SOURCE_DIR}/cmake/UpdateTranslations.cmake")
    if(APIMODULE_UPDATE_TRANSLATIONS)
        add_custom_target(${name}-texts COMMAND ${update} -P "${script}" VERBATIM)
        add_dependencies(translations ${name}-texts)
    endif()
    # The .ts files come from Qt 5's lupdate; the lupdate of Qt 6 parses the sources differently.
    if(APIMODULE_BUILD_TESTS AND BUILD_TESTING AND APIMODULE_QT_MAJOR EQUAL 5)
        add_test(NAME ${name}_translations
            COMMAND ${update} "-DCHECK_IN=${CMAKE_CURRENT_BINARY_DIR}/${name}-translations" -P "${script}")
    endif()
endfunction()
