# Installs the library into a scratch prefix, then builds and runs a host
# against it twice: once through the CMake package, once through pkg-config.
# Run with -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -DPACKAGE=...
# PACKAGE is the installed name of the build: ZarvexViewerComponents on Qt 5,
# ZarvexViewerComponentsQt6 on Qt 6.
if(NOT PACKAGE)
    set(PACKAGE ZarvexViewerComponents)
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGN}\n${out}\n${err}")
    endif()
    set(last_output "${out}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")

# The host shows a widget; no display is needed for that.
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{XDG_CONFIG_HOME} "${WORK_DIR}/xdg-config")

foreach(expected
        lib/lib${PACKAGE}.so.6
        lib/cmake/${PACKAGE}/${PACKAGE}Config.cmake
        lib/pkgconfig/${PACKAGE}.pc
        include/${PACKAGE}/zarvexviewercomponents_export.h
        include/${PACKAGE}/parameters/iparameter.h
        include/${PACKAGE}/featuretree/featuretreewidget.h)
    if(NOT EXISTS "${prefix}/${expected}")
        message(FATAL_ERROR "not installed: ${expected}")
    endif()
endforeach()

# The CMake package.
run(${CMAKE_COMMAND} -S "${SOURCE_DIR}/consumer" -B "${WORK_DIR}/consumer-build"
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release -DZVC_PACKAGE=${PACKAGE})
run(${CMAKE_COMMAND} --build "${WORK_DIR}/consumer-build")
set(ENV{LD_LIBRARY_PATH} "${prefix}/lib")
run("${WORK_DIR}/consumer-build/consumer")
message(STATUS "CMake package host: ${last_output}")

# pkg-config.
set(ENV{PKG_CONFIG_PATH} "${prefix}/lib/pkgconfig")
run(pkg-config --cflags --libs ${PACKAGE})
string(STRIP "${last_output}" flags)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(c++ -std=c++17 -fPIC "${SOURCE_DIR}/consumer/main.cpp" ${flags} -o "${WORK_DIR}/consumer-pkgconfig")
run("${WORK_DIR}/consumer-pkgconfig")
message(STATUS "pkg-config host: ${last_output}")
