# zvc_add_component(<component> <target> INTERNAL <static library>
#                   SOURCES ... PUBLIC_HEADERS ... EXPORT_MACRO_BASE <BASE>
#                   DESCRIPTION <text> PUBLIC_CLASSES ... [PC_LIBS_PRIVATE ...])
#
# An optional component of the package: a shared library made of the
# component's public classes (SOURCES) over its internal static library,
# installed as lib<target>[Qt6].so.6 with its headers under
# include/<package>/<component in lower case>/, a targets file of its own that
# the package config loads only when a host asks for the component, and a
# pkg-config module <target>[Qt6]. Only what carries the <BASE>_EXPORT macro
# is visible: the internal classes stay in the static library, which the
# project's tests, benchmarks and fuzzers link directly. A linker version
# script keeps the dynamic symbol table to PUBLIC_CLASSES (qualified names):
# the standard library's templates, which are visible by their own
# declaration, would otherwise be exported wherever the internals
# instantiate them.
#
# Install components: <component> (the library) and <component>Devel (the rest).
function(zvc_add_component component target)
    cmake_parse_arguments(ARG "" "INTERNAL;EXPORT_MACRO_BASE;DESCRIPTION"
        "SOURCES;PUBLIC_HEADERS;PUBLIC_CLASSES;PC_LIBS_PRIVATE" ${ARGN})
    string(TOLOWER "${component}" subdir)
    string(TOLOWER "${target}" lower)
    set(library ${target}${ZVC_NAME_SUFFIX})

    add_library(${target} SHARED ${ARG_SOURCES} ${ARG_PUBLIC_HEADERS})
    add_library(${ZVC_PACKAGE_NAME}::${component} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${library}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        EXPORT_NAME ${component})
    generate_export_header(${target}
        BASE_NAME ${ARG_EXPORT_MACRO_BASE}
        EXPORT_FILE_NAME ${CMAKE_CURRENT_BINARY_DIR}/${lower}_export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${ZVC_PACKAGE_NAME}>)
    target_link_libraries(${target}
        PUBLIC ZarvexViewerComponents ${ZVC_QT}::Core
        PRIVATE ${ARG_INTERNAL})
    # The internal library's headers include the public ones, export macro and all.
    target_include_directories(${ARG_INTERNAL} PUBLIC ${CMAKE_CURRENT_BINARY_DIR})
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)

    # Methods (and their thunks), vtables, type information and meta-objects
    # of the public classes. The patterns are anchored at the class name, so
    # that a library template merely instantiated over a private nested type
    # (a shared pointer's control block, say) stays local.
    set(patterns "")
    foreach(class IN LISTS ARG_PUBLIC_CLASSES)
        string(APPEND patterns "      ${class}::*;\n      *thunk?to?${class}::*;\n      *for?${class};\n")
    endforeach()
    set(version_script ${CMAKE_CURRENT_BINARY_DIR}/${lower}.map)
    file(WRITE ${version_script} "{\n  global:\n    extern \"C++\" {\n${patterns}    };\n  local: *;\n};\n")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${version_script}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${version_script})

    install(TARGETS ${target}
        EXPORT ${ZVC_PACKAGE_NAME}${component}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component} NAMELINK_COMPONENT ${component}Devel
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component}Devel)
    install(EXPORT ${ZVC_PACKAGE_NAME}${component}Targets
        NAMESPACE ${ZVC_PACKAGE_NAME}::
        DESTINATION ${ZVC_CMAKE_DIR}
        COMPONENT ${component}Devel)
    install(FILES ${ARG_PUBLIC_HEADERS} ${CMAKE_CURRENT_BINARY_DIR}/${lower}_export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ZVC_PACKAGE_NAME}/${subdir}
        COMPONENT ${component}Devel)

    set(ZVC_COMPONENT_LIBRARY ${library})
    set(ZVC_COMPONENT_DESCRIPTION "${ARG_DESCRIPTION}")
    string(JOIN " " ZVC_COMPONENT_LIBS_PRIVATE ${ARG_PC_LIBS_PRIVATE})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/ZarvexComponent.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${library}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${library}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT ${component}Devel)
endfunction()
