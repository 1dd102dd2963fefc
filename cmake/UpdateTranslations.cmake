# Takes the texts of SOURCES into the .ts FILES with LUPDATE. With CHECK_IN, a scratch folder, it does so with copies and
# fails when one of them changes or has a text without a translation. English needs plural forms alone.
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
    # lupdate of Debian 13 reports each namespace whose declaration is in a header that it does not read.
    string(REGEX REPLACE "[^\n]*: Qualifying with unknown namespace/class [^\n]*\n" "" complaints "${complaints}")
    if(complaints)
        message(SEND_ERROR "${complaints}")
    endif()

    if(CHECK_IN)
        file(SHA256 "${file}" before)
        file(SHA256 "${updated}" after)
        if(NOT before STREQUAL after)
            message(SEND_ERROR "${file} is not that of the sources: build the target translations")
        endif()
        file(READ "${updated}" text)
        string(REGEX REPLACE "<name>catalogue::Call</name>([^<]|<[^/]|</[^c])*" "" text "${text}")  # may stay English
        if(text MATCHES "type=\"unfinished\"|<translation></translation>|<translation/>|<numerusform></numerusform>")
            message(SEND_ERROR "${file} misses translations")
        endif()
    endif()
endforeach()
