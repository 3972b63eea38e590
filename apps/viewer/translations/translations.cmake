# The viewer's own translation catalogues, compiled by lrelease at build time
# and carried in the viewer's window library under
# ":/translation/zarvex-viewer_<lang>.qm". The library's catalogues translate
# the feature tree; these translate the viewer's menus, panes and messages.
#
# Adds the compiled catalogues to the target given as the first argument.
# The target zvc_viewer_lupdate brings the catalogues up to date with the
# viewer's sources and form.

find_package(${ZVC_QT}LinguistTools ${ZVC_QT_MINIMUM_VERSION} REQUIRED)

function(zvc_add_viewer_translations target)
    set(directory ${CMAKE_CURRENT_SOURCE_DIR}/translations)
    set(qm_dir ${CMAKE_CURRENT_BINARY_DIR}/translation)
    file(MAKE_DIRECTORY ${qm_dir})
    set(qm_files)
    set(catalogues)
    set(entries)
    foreach(language en ja ko zh)
        set(ts ${directory}/zarvex-viewer_${language}.ts)
        set(qm ${qm_dir}/zarvex-viewer_${language}.qm)
        add_custom_command(
            OUTPUT ${qm}
            COMMAND ${ZVC_QT}::lrelease -silent ${ts} -qm ${qm}
            DEPENDS ${ts}
            COMMENT "Compiling the viewer's ${language} translations"
            VERBATIM)
        list(APPEND qm_files ${qm})
        list(APPEND catalogues ${ts})
        string(APPEND entries
            "        <file alias=\"zarvex-viewer_${language}.qm\">translation/zarvex-viewer_${language}.qm</file>\n")
    endforeach()
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/zarvex_viewer_translations.qrc)
    file(WRITE ${qrc}.in
        "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n"
        "    <qresource prefix=\"/translation\">\n"
        "${entries}"
        "    </qresource>\n</RCC>\n")
    configure_file(${qrc}.in ${qrc} COPYONLY)
    # rcc must wait for lrelease.
    set_source_files_properties(${qrc} PROPERTIES SKIP_AUTORCC ON)
    qt_add_resources(resources ${qrc} OPTIONS -name zarvex_viewer_translations)
    set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${qm_files}")
    target_sources(${target} PRIVATE ${resources})

    add_custom_target(zvc_viewer_lupdate
        COMMAND ${ZVC_QT}::lupdate -silent -locations relative -no-obsolete ${CMAKE_CURRENT_SOURCE_DIR}
            -ts ${catalogues}
        WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}
        COMMENT "Updating the viewer's translation catalogues from its sources"
        VERBATIM)
endfunction()
