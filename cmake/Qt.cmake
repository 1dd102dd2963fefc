# Selects the version of Qt; its targets are ${QT}::<module>. The versionless targets are not used because they depend on
# which Qt a parent project or a client finds first.
set(default 5)
if(TARGET Qt6::Core)
    set(default 6)  # used by a parent project
endif()
set(APIMODULE_QT_MAJOR ${default} CACHE STRING "Major version of Qt to build with: 5 or 6")
set_property(CACHE APIMODULE_QT_MAJOR PROPERTY STRINGS 5 6)
if(APIMODULE_QT_MAJOR EQUAL 5)
    set(APIMODULE_QT_MINIMUM 5.15)
elseif(APIMODULE_QT_MAJOR EQUAL 6)
    set(APIMODULE_QT_MINIMUM 6.4)
else()
    message(FATAL_ERROR "APIMODULE_QT_MAJOR is ${APIMODULE_QT_MAJOR}: APIModule builds with Qt 5 or Qt 6")
endif()
set(QT Qt${APIMODULE_QT_MAJOR})
set(APIModule_QT_MAJOR ${APIMODULE_QT_MAJOR} CACHE INTERNAL "Major version of Qt, for a parent as with find_package(APIModule)")
foreach(major IN ITEMS 5 6)
    if(NOT major EQUAL APIMODULE_QT_MAJOR AND TARGET Qt${major}::Core)
        message(FATAL_ERROR "The project uses Qt ${major}, but APIModule is configured for Qt ${APIMODULE_QT_MAJOR}: "
                            "set APIMODULE_QT_MAJOR to ${major}")
    endif()
endforeach()

# apimodule_find_qt(<module>... [PRIVATE <module>...])
# Finds Qt modules. Those after PRIVATE are also available with private headers, as ${QT}::<module>Private.
macro(apimodule_find_qt)
    cmake_parse_arguments(apimodule_qt "" "" "PRIVATE" ${ARGV})
    find_package(${QT} ${APIMODULE_QT_MINIMUM} REQUIRED
        COMPONENTS ${apimodule_qt_UNPARSED_ARGUMENTS} ${apimodule_qt_PRIVATE})
    if(APIMODULE_QT_MAJOR EQUAL 5)
        foreach(apimodule_qt_module IN LISTS apimodule_qt_PRIVATE)
            find_package(Qt5${apimodule_qt_module} REQUIRED COMPONENTS Private)
        endforeach()
    endif()
endmacro()
