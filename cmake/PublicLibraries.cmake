# The libraries whose headers a client includes: APIMODULE_LIBRARIES, or with the emulator APIMODULE_PUBLIC_LIBRARIES.
set(APIMODULE_LIBRARIES APIModule)
if(APIMODULE_BUNDLED_PLATFORM)
    list(APPEND APIMODULE_LIBRARIES ErrorLexicon OrnGui ornl UserLogical)
endif()
set(APIMODULE_PUBLIC_LIBRARIES ${APIMODULE_LIBRARIES})
if(APIMODULE_BUILD_TOOLS)
    list(APPEND APIMODULE_PUBLIC_LIBRARIES APIModuleTesting)
endif()

# APIModule::Client: the library and all bundled client libraries as one target.
if(APIMODULE_BUNDLED_PLATFORM)
    add_library(APIModuleClient INTERFACE)
    add_library(APIModule::Client ALIAS APIModuleClient)
    set_target_properties(APIModuleClient PROPERTIES EXPORT_NAME Client)
    target_link_libraries(APIModuleClient INTERFACE ${APIMODULE_LIBRARIES})
endif()
