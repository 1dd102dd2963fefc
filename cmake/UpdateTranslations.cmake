# Updates the .ts FILES from SOURCES with LUPDATE. With CHECK_IN, a scratch folder, updates copies instead and fails if one
# of them changes or lacks a translation. The English file contains only plural forms.
cmake_minimum_required(VERSION 3.25)

if(CHECK_IN)
    file(REMOVE_RECURSE "${CHECK_IN}")
    file(COPY ${FILES} DESTINATION "${CHECK_IN}")
endif()

foreach(file IN LISTS FILES)
    set(updated "${file}")
    if(CHECK_IN)
        get_filename_component(name "${file}" NAME)
        set(updated "${CHECK_IN}/${name}")
    endif()
    set(forms "")
    if(file MATCHES "_en\\.ts$")
        set(forms -pluralonly)
    endif()
    execute_process(
        COMMAND "${LUPDATE}" ${SOURCES} -silent -no-obsolete -locations none -source-language en ${forms} -ts "${updated}"
        ERROR_VARIABLE complaints COMMAND_ERROR_IS_FATAL ANY)
    # lupdate of Debian 13 reports namespaces declared in headers that it does not parse.
    string(REGEX REPLACE "[^\n]*: Qualifying with unknown namespace/class [^\n]*\n" "" complaints "${complaints}")
    if(complaints)
        message(SEND_ERROR "${complaints}")
    endif()

    if(CHECK_IN)
        file(SHA256 "${file}" before)
        file(SHA256 "${updated}" after)
        if(NOT before STREQUAL after)
            message(SEND_ERROR "${file} is out of date: build the target translations")
        endif()
        file(READ "${updated}" text)
        string(REGEX REPLACE "<name>catalogue::Call</name>([^<]|<[^/]|</[^c])*" "" text "${text}")  # may stay English
        if(text MATCHES "type=\"unfinished\"|<translation></translation>|<translation/>|<numerusform></numerusform>")
            message(SEND_ERROR "${file} lacks translations")
        endif()
    endif()
endforeach()
