# The library's icons, rendered from the Breeze icon theme's SVG sources at
# build time (see ICONS.md beside this file for the sources and the licence).
#
# Each icon is written twice into the build tree: "name.png" at its design size
# and "name@2x.png" at double size, which QIcon picks on a screen at scale 2.
# A generated .qrc lists them under the library's resource prefix and is
# compiled into the library by rcc.
#
# Sets ZVC_ICON_RESOURCES to the generated rcc source for the library.

find_program(ZVC_RSVG_CONVERT rsvg-convert)
find_path(ZVC_BREEZE_ICON_DIR
    NAMES actions/16/view-refresh.svg
    PATHS /usr/share/icons/breeze /usr/local/share/icons/breeze
    NO_DEFAULT_PATH)
if(NOT ZVC_RSVG_CONVERT OR NOT ZVC_BREEZE_ICON_DIR)
    message(FATAL_ERROR
        "The icons are rendered from the Breeze icon theme with rsvg-convert; "
        "install them with scripts/setup.sh (packages breeze-icon-theme and librsvg2-bin).")
endif()

# name | SVG below the theme's directory | size in pixels at scale 1
set(ZVC_ICONS
    "sync_16|actions/16/view-refresh.svg|16"
    "AddGigECamera_16|actions/16/bookmark-new.svg|16"
    "RemGigECamera_16|actions/16/bookmark-remove.svg|16"
    "Move_Up|actions/16/go-up.svg|16"
    "Move_Down|actions/16/go-down.svg|16"
    "searchlens_16|actions/16/edit-find.svg|16"
    "cross_16|actions/16/edit-clear-locationbar-rtl.svg|16"
    "Info_32|status/64/dialog-information.svg|32"
    "Warning_16_black|status/16/dialog-warning.svg|16"
    "Error_32|status/64/dialog-error.svg|32"
    "Question_32|status/64/dialog-question.svg|32"
)

set(ZVC_ICON_DIR ${CMAKE_CURRENT_BINARY_DIR}/icons)
file(MAKE_DIRECTORY ${ZVC_ICON_DIR})

set(ZVC_ICON_FILES)
set(ZVC_ICON_QRC_ENTRIES)
foreach(entry ${ZVC_ICONS})
    string(REPLACE "|" ";" fields "${entry}")
    list(GET fields 0 name)
    list(GET fields 1 source)
    list(GET fields 2 size)
    math(EXPR size2x "${size} * 2")
    set(svg ${ZVC_BREEZE_ICON_DIR}/${source})
    if(NOT EXISTS ${svg})
        message(FATAL_ERROR "Icon source ${svg} is missing from the Breeze icon theme.")
    endif()
    set(png ${ZVC_ICON_DIR}/${name}.png)
    set(png2x ${ZVC_ICON_DIR}/${name}@2x.png)
    add_custom_command(
        OUTPUT ${png} ${png2x}
        COMMAND ${ZVC_RSVG_CONVERT} -w ${size} -h ${size} -o ${png} ${svg}
        COMMAND ${ZVC_RSVG_CONVERT} -w ${size2x} -h ${size2x} -o ${png2x} ${svg}
        DEPENDS ${svg}
        COMMENT "Rendering icon ${name}"
        VERBATIM)
    list(APPEND ZVC_ICON_FILES ${png} ${png2x})
    string(APPEND ZVC_ICON_QRC_ENTRIES
        "        <file alias=\"${name}.png\">icons/${name}.png</file>\n"
        "        <file alias=\"${name}@2x.png\">icons/${name}@2x.png</file>\n")
endforeach()

# The files keep their names directly under the prefix, so QIcon finds each
# "@2x" variant beside its base image.
set(ZVC_ICON_QRC ${CMAKE_CURRENT_BINARY_DIR}/zarvexviewercomponents_icons.qrc)
file(WRITE ${ZVC_ICON_QRC}.in
    "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n"
    "    <qresource prefix=\"/zarvexviewercomponents/Resources\">\n"
    "${ZVC_ICON_QRC_ENTRIES}"
    "    </qresource>\n</RCC>\n")
# Rewritten only when the list changes, so rcc does not run on every configure.
configure_file(${ZVC_ICON_QRC}.in ${ZVC_ICON_QRC} COPYONLY)

# Kept away from AUTORCC, whose dependency scan runs before the images exist;
# qt_add_resources makes rcc depend on every rendered file instead.
set_source_files_properties(${ZVC_ICON_QRC} PROPERTIES SKIP_AUTORCC ON)
qt_add_resources(ZVC_ICON_RESOURCES ${ZVC_ICON_QRC} OPTIONS -name zarvexviewercomponents_icons)
