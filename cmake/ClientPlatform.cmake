# Uses the client's platform libraries instead of the bundled ones. They must have the same headers and signatures as
# src/Platform, and a package or a parent project must define the targets below.
if(APIMODULE_PLATFORM_PACKAGE)
    find_package(${APIMODULE_PLATFORM_PACKAGE} CONFIG REQUIRED)
elseif(APIMODULE_INSTALL)
    message(FATAL_ERROR "APIMODULE_BUNDLED_PLATFORM is off: set -DAPIMODULE_PLATFORM_PACKAGE=<name> to the package of the "
                        "client's libraries, which the installed package depends on")
endif()
foreach(library IN ITEMS ErrorLexicon OrnGui ornl UserLogical)
    if(NOT TARGET APIModule::${library})
        message(FATAL_ERROR "APIMODULE_BUNDLED_PLATFORM is off, but the target APIModule::${library} does not exist: set "
                            "-DAPIMODULE_PLATFORM_PACKAGE=<name> to the package that defines it, or define it before the project")
    endif()
endforeach()
