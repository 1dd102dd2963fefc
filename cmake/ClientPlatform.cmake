# The client's own platform libraries instead of the bundled ones. The package that it names brings the
# targets below, with the same headers and signatures as src/Platform.
if(NOT APIMODULE_PLATFORM_PACKAGE)
    message(FATAL_ERROR "APIMODULE_BUNDLED_PLATFORM is off: name the package of the client's libraries "
                        "with -DAPIMODULE_PLATFORM_PACKAGE=<name>")
endif()
find_package(${APIMODULE_PLATFORM_PACKAGE} CONFIG REQUIRED)
foreach(library IN ITEMS ErrorLexicon OrnGui ornl UserLogical)
    if(NOT TARGET APIModule::${library})
        message(FATAL_ERROR "The package ${APIMODULE_PLATFORM_PACKAGE} brings no target APIModule::${library}")
    endif()
endforeach()
