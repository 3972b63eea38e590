# Debian packages through CPack: `cpack -G DEB` in a build directory makes
#   lib<name><soversion>   the shared library (translations and icons are compiled into it)
#   lib<name>-dev          headers, CMake package, pkg-config module, the .so link
# with <name> the lower-cased ZVC_PACKAGE_NAME: zarvexviewercomponents on Qt 5
# (libzarvexviewercomponents6), zarvexviewercomponentsqt6 on Qt 6
# (libzarvexviewercomponentsqt6-6). The two Qt versions share no file, so their
# packages install side by side.
#
# Configure with -DCMAKE_INSTALL_PREFIX=/usr so that GNUInstallDirs picks the
# multiarch library directory (lib/x86_64-linux-gnu); any other prefix gives
# plain lib/. The packages install under /usr either way, and the .pc file and
# the CMake package find everything relative to themselves.
#
# The demo (component Demo) is not packaged: it is an example host, and the
# Qt 5 and Qt 6 builds of it would both be /usr/bin/zarvex-viewer.

set(ZVC_PACKAGE_MAINTAINER "ZarvexViewerComponents maintainers <maintainers@users.noreply.c-seed-1ffa6416.example>"
    CACHE STRING "Maintainer field of the Debian packages: Name <address>")
set(ZVC_PACKAGE_HOMEPAGE "" CACHE STRING "Homepage field of the Debian packages (left out when empty)")

# Debian names a library package after its soname: libfoo.so.6 is libfoo6,
# and a name that ends in a digit takes a hyphen, libfooqt6.so.6 is libfooqt6-6.
string(TOLOWER "lib${ZVC_PACKAGE_NAME}" zvc_deb_base)
if(zvc_deb_base MATCHES "[0-9]$")
    set(zvc_deb_runtime "${zvc_deb_base}-${PROJECT_VERSION_MAJOR}")
else()
    set(zvc_deb_runtime "${zvc_deb_base}${PROJECT_VERSION_MAJOR}")
endif()
set(zvc_deb_devel "${zvc_deb_base}-dev")

if(ZVC_QT_MAJOR_VERSION STREQUAL "5")
    set(zvc_deb_qt_dev "qtbase5-dev (>= ${ZVC_QT_MINIMUM_VERSION})")
else()
    set(zvc_deb_qt_dev "qt6-base-dev (>= ${ZVC_QT_MINIMUM_VERSION})")
endif()

# Every Debian package carries its copyright file and changelog in
# /usr/share/doc/<package>/. They are installed only when a component is
# installed on its own, as CPack does, not by a plain `cmake --install`.
set(zvc_deb_doc_dir "${PROJECT_BINARY_DIR}/debian-doc")
if(EXISTS "${PROJECT_SOURCE_DIR}/LICENSE")
    file(READ "${PROJECT_SOURCE_DIR}/LICENSE" ZVC_DEB_LICENSE_TEXT)
    string(REGEX REPLACE "\n+$" "" ZVC_DEB_LICENSE_TEXT "${ZVC_DEB_LICENSE_TEXT}")
else()
    set(ZVC_DEB_LICENSE_TEXT "No licence for the library's own code is given in its source tree.")
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/debian/copyright.in" "${zvc_deb_doc_dir}/copyright" @ONLY)

# The changelog is dated by the last commit, so that the packages of one
# commit come out the same whenever they are built.
set(ZVC_DEB_CHANGELOG_DATE "")
find_package(Git QUIET)
if(Git_FOUND)
    execute_process(COMMAND "${GIT_EXECUTABLE}" log -1 --format=%cD
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        OUTPUT_VARIABLE ZVC_DEB_CHANGELOG_DATE OUTPUT_STRIP_TRAILING_WHITESPACE
        ERROR_QUIET)
endif()
if(NOT ZVC_DEB_CHANGELOG_DATE)
    string(TIMESTAMP ZVC_DEB_CHANGELOG_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
endif()

# All four packages, Qt 5's and Qt 6's, come from this one source tree.
set(ZVC_DEB_SOURCE zarvexviewercomponents)
foreach(zvc_deb_component Runtime Devel)
    if(zvc_deb_component STREQUAL "Runtime")
        set(ZVC_DEB_PACKAGE "${zvc_deb_runtime}")
    else()
        set(ZVC_DEB_PACKAGE "${zvc_deb_devel}")
    endif()
    configure_file("${PROJECT_SOURCE_DIR}/cmake/debian/changelog.in"
        "${zvc_deb_doc_dir}/${ZVC_DEB_PACKAGE}/changelog" @ONLY)
    # Compressed as Debian wants it: at the highest level, without a time stamp.
    execute_process(COMMAND gzip -9 -n -c "${zvc_deb_doc_dir}/${ZVC_DEB_PACKAGE}/changelog"
        OUTPUT_FILE "${zvc_deb_doc_dir}/${ZVC_DEB_PACKAGE}/changelog.gz"
        COMMAND_ERROR_IS_FATAL ANY)
    install(FILES
            "${zvc_deb_doc_dir}/copyright"
            "${zvc_deb_doc_dir}/${ZVC_DEB_PACKAGE}/changelog.gz"
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/${ZVC_DEB_PACKAGE}"
        COMPONENT ${zvc_deb_component}
        EXCLUDE_FROM_ALL)
endforeach()

set(ZVC_DEB_PACKAGE "${zvc_deb_runtime}")
configure_file("${PROJECT_SOURCE_DIR}/cmake/debian/lintian-overrides.in"
    "${zvc_deb_doc_dir}/lintian/${zvc_deb_runtime}" @ONLY)
install(FILES "${zvc_deb_doc_dir}/lintian/${zvc_deb_runtime}"
    DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides"
    COMPONENT Runtime
    EXCLUDE_FROM_ALL)

# Both packages share the synopsis and the first paragraph of their descriptions.
set(zvc_deb_synopsis "Qt ${ZVC_QT_MAJOR_VERSION} widgets for the GenICam features of industrial cameras")
set(zvc_deb_about
"A searchable tree of a camera's GenICam features with a live value and an
in-place editor for each, user levels, favourites and per-camera filters;
spin-box and slider widgets, an IP configuration dialog with validators, a
message box with \"don't show again\" and a queue that defers error messages
to the event loop. Built against Qt ${ZVC_QT_MAJOR_VERSION}.")

set(CPACK_GENERATOR DEB)
# Values are written to CPackConfig.cmake as they are, quotes in descriptions included.
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME "${zvc_deb_base}")
set(CPACK_PACKAGE_VENDOR "ZarvexViewerComponents")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${ZVC_PACKAGE_MAINTAINER}")
# Empty, so that CPack does not put the project's one-line description above
# each package's own: the first line of a component description is its synopsis.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_SOURCE_GENERATOR "")
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/debian/cpack-options.cmake")
set(CPACK_ZVC_BUILD_TESTS ${ZVC_BUILD_TESTS})

set(CPACK_COMPONENTS_ALL Runtime Devel)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ZVC_PACKAGE_MAINTAINER}")
if(ZVC_PACKAGE_HOMEPAGE)
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${ZVC_PACKAGE_HOMEPAGE}")
endif()
set(CPACK_DEBIAN_PACKAGE_SOURCE "${ZVC_DEB_SOURCE}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Runtime: the library. Its dependencies come from dpkg-shlibdeps (the Qt
# libraries, libstdc++, libc); its shlibs file lets packages linked against it
# depend on this version or a later one of the same soname.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${zvc_deb_runtime}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# dpkg runs ldconfig through its trigger once all packages are in place.
# CPack still adds its own ldconfig call to postinst and postrm, which
# cmake/debian/lintian-overrides.in tells lintian about.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"${zvc_deb_synopsis}
${zvc_deb_about}
.
This package holds the shared library. Its English, Japanese, Korean and
Chinese translations and its icons are compiled into it.")

# Devel: everything a host builds against, for the same version of the library.
set(CPACK_DEBIAN_DEVEL_PACKAGE_NAME "${zvc_deb_devel}")
set(CPACK_DEBIAN_DEVEL_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVEL_PACKAGE_DEPENDS "${zvc_deb_runtime} (= ${PROJECT_VERSION}), ${zvc_deb_qt_dev}")
set(CPACK_COMPONENT_DEVEL_DESCRIPTION
"${zvc_deb_synopsis} - development files
${zvc_deb_about}
.
This package holds what a host builds against: the headers under
/usr/include/${ZVC_PACKAGE_NAME}/,
the CMake package ${ZVC_PACKAGE_NAME} and
the pkg-config module ${ZVC_PACKAGE_NAME}.")

include(CPack)
