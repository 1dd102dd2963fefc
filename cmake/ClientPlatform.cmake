# The client's own platform libraries instead of the bundled ones, with the same headers and signatures as src/Platform:
# the targets below, of a package or of a parent project that has defined them already.
if(APIMODULE_PLATFORM_PACKAGE)
    find_package(${APIMODULE_PLATFORM_PACKAGE} CONFIG REQUIRED)
elseif(APIMODULE_INSTALL)
    message(FATAL_ERROR "APIMODULE_BUNDLED_PLATFORM is off: name the package of the client's libraries, which the installed "
                        "package asks for, with -DAPIMODULE_PLATFORM_PACKAGE=<name>")
endif()
foreach(library IN ITEMS ErrorLexicon OrnGui ornl UserLogical)
    if(NOT TARGET APIModule::${library})
        message(FATAL_ERROR "APIMODULE_BUNDLED_PLATFORM is off, and there is no target APIModule::${library}: name the package "
                            "that defines it with -DAPIMODULE_PLATFORM_PACKAGE=<name>, or define it before the project")
    endif()
endforeach()
