# The library's translation catalogues, compiled by lrelease at build time and
# carried in the library under ":/translation/ZarvexViewerComponents_<lang>.qm".
#
# Two catalogues per language are merged into each .qm file:
#   ZarvexViewerComponents_<lang>.ts  the texts of the sources, kept up to date
#                                     from them by the target zvc_lupdate;
#   FeatureToolTips_<lang>.ts         the tool tips of the features, in the
#                                     contexts named after the node maps, with
#                                     the keys "<feature>_Tooltip". No source
#                                     holds these keys, so lupdate never sees
#                                     them and they live apart.
#
# Sets ZVC_TRANSLATION_RESOURCES to the generated rcc source for the library.

find_package(${ZVC_QT}LinguistTools ${ZVC_QT_MINIMUM_VERSION} REQUIRED)

set(ZVC_LANGUAGES en ja ko zh)
set(ZVC_TRANSLATION_DIR ${CMAKE_CURRENT_SOURCE_DIR}/translations)
set(ZVC_QM_DIR ${CMAKE_CURRENT_BINARY_DIR}/translation)
file(MAKE_DIRECTORY ${ZVC_QM_DIR})

set(ZVC_QM_FILES)
set(ZVC_SOURCE_CATALOGUES)
set(ZVC_QM_QRC_ENTRIES)
foreach(language ${ZVC_LANGUAGES})
    set(sources ${ZVC_TRANSLATION_DIR}/ZarvexViewerComponents_${language}.ts)
    set(tooltips ${ZVC_TRANSLATION_DIR}/FeatureToolTips_${language}.ts)
    set(qm ${ZVC_QM_DIR}/ZarvexViewerComponents_${language}.qm)
    add_custom_command(
        OUTPUT ${qm}
        COMMAND ${ZVC_QT}::lrelease -silent ${sources} ${tooltips} -qm ${qm}
        DEPENDS ${sources} ${tooltips}
        COMMENT "Compiling the ${language} translations"
        VERBATIM)
    list(APPEND ZVC_QM_FILES ${qm})
    list(APPEND ZVC_SOURCE_CATALOGUES ${sources})
    string(APPEND ZVC_QM_QRC_ENTRIES
        "        <file alias=\"ZarvexViewerComponents_${language}.qm\">translation/ZarvexViewerComponents_${language}.qm</file>\n")
endforeach()

set(ZVC_QM_QRC ${CMAKE_CURRENT_BINARY_DIR}/zarvexviewercomponents_translations.qrc)
file(WRITE ${ZVC_QM_QRC}.in
    "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n"
    "    <qresource prefix=\"/translation\">\n"
    "${ZVC_QM_QRC_ENTRIES}"
    "    </qresource>\n</RCC>\n")
configure_file(${ZVC_QM_QRC}.in ${ZVC_QM_QRC} COPYONLY)
# As with the icons: rcc must wait for lrelease.
set_source_files_properties(${ZVC_QM_QRC} PROPERTIES SKIP_AUTORCC ON)
qt_add_resources(ZVC_TRANSLATION_RESOURCES ${ZVC_QM_QRC} OPTIONS -name zarvexviewercomponents_translations)
set_source_files_properties(${ZVC_TRANSLATION_RESOURCES} PROPERTIES OBJECT_DEPENDS "${ZVC_QM_FILES}")

# Brings the source catalogues up to date with the tr() texts of the library's
# sources and forms. Not part of the build: run it after changing texts, then
# translate what it added.
add_custom_target(zvc_lupdate
    COMMAND ${ZVC_QT}::lupdate -silent -locations relative -no-obsolete ${CMAKE_CURRENT_SOURCE_DIR}/featuretree
        ${CMAKE_CURRENT_SOURCE_DIR}/messages ${CMAKE_CURRENT_SOURCE_DIR}/network ${CMAKE_CURRENT_SOURCE_DIR}/camerasettings
        -ts ${ZVC_SOURCE_CATALOGUES}
    WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}
    COMMENT "Updating the translation catalogues from the sources"
    VERBATIM)

# The tests run lupdate too, to find texts of the sources that the catalogues lack.
get_target_property(ZVC_LUPDATE_EXECUTABLE ${ZVC_QT}::lupdate IMPORTED_LOCATION)
set(ZVC_LUPDATE_EXECUTABLE ${ZVC_LUPDATE_EXECUTABLE} CACHE INTERNAL "lupdate, for the translation tests")
