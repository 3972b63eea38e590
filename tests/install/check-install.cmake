# Installs the library into a scratch prefix, then builds and runs a host
# against it twice: once through the CMake package, once through pkg-config.
# Then the example hosts (EXAMPLES_DIR), both ways as well, from the installed
# components, and the components' exported symbols.
# Run with -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -DPACKAGE=...
# [-DNAME_SUFFIX=Qt6] [-DWITH_ARAVIS=ON] [-DEXAMPLES_DIR=...]
# PACKAGE is the installed name of the build: ZarvexViewerComponents on Qt 5,
# ZarvexViewerComponentsQt6 on Qt 6; NAME_SUFFIX the components' suffix ("" or Qt6).
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
        include/${PACKAGE}/featuretree/featuretreewidget.h
        include/${PACKAGE}/camerasettings/camerasettings.h
        lib/libZarvexSimulation${NAME_SUFFIX}.so.6
        lib/cmake/${PACKAGE}/${PACKAGE}SimulationTargets.cmake
        lib/pkgconfig/ZarvexSimulation${NAME_SUFFIX}.pc
        include/${PACKAGE}/simulation/simulatedcamera.h
        include/${PACKAGE}/simulation/zarvexsimulation_export.h)
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

# ---- the optional components and the example hosts ----------------------------

set(components Simulation)
set(pc_modules ZarvexSimulation${NAME_SUFFIX})
if(WITH_ARAVIS)
    list(APPEND components Aravis)
    list(APPEND pc_modules ZarvexAravis${NAME_SUFFIX})
    foreach(expected
            lib/libZarvexAravis${NAME_SUFFIX}.so.6
            lib/cmake/${PACKAGE}/${PACKAGE}AravisTargets.cmake
            lib/pkgconfig/ZarvexAravis${NAME_SUFFIX}.pc
            include/${PACKAGE}/aravis/araviscamera.h
            include/${PACKAGE}/aravis/aravisstream.h
            include/${PACKAGE}/aravis/aravisframe.h
            include/${PACKAGE}/aravis/zarvexaravis_export.h)
        if(NOT EXISTS "${prefix}/${expected}")
            message(FATAL_ERROR "not installed: ${expected}")
        endif()
    endforeach()
endif()

# A component exports its public classes and nothing else: every defined
# dynamic symbol belongs to them (their methods, vtables, type information and
# meta-objects), apart from the linker's own.
set(public_Simulation "Simulation::(SimulatedCamera|NodeMapEntry)")
set(public_Aravis "Aravis::(AravisCamera|AravisStream|AravisFrame|CameraInfo|NodeMapEntry)")
foreach(component IN LISTS components)
    run(nm -D --defined-only -C "${prefix}/lib/libZarvex${component}${NAME_SUFFIX}.so.6")
    string(REPLACE "\n" ";" symbols "${last_output}")
    set(count 0)
    foreach(line IN LISTS symbols)
        string(REGEX REPLACE "^[0-9a-f]+ [A-Za-z] " "" symbol "${line}")
        if(symbol STREQUAL "" OR symbol MATCHES "^(_init|_fini|_edata|_end|__bss_start)$")
            continue()
        endif()
        # Anchored at the start: a template of the standard library merely
        # instantiated over one of their private types is not theirs to export.
        if(NOT symbol MATCHES
           "^((typeinfo name|typeinfo|vtable) for |(non-)?virtual thunk to )?${public_${component}}(::|$)")
            message(FATAL_ERROR "libZarvex${component}${NAME_SUFFIX} exports ${symbol}")
        endif()
        math(EXPR count "${count} + 1")
    endforeach()
    if(count EQUAL 0)
        message(FATAL_ERROR "libZarvex${component}${NAME_SUFFIX} exports nothing")
    endif()
    message(STATUS "libZarvex${component}${NAME_SUFFIX}: ${count} exported symbols, all of its public classes")
endforeach()

# A host streams from the public headers alone: they name no type of Aravis
# or GLib, so the component's module is all it needs, without Aravis's own
# development files. Built and linked, not run: there is no camera here.
if(WITH_ARAVIS)
    file(WRITE "${WORK_DIR}/stream-host.cpp" [=[
#include <aravis/araviscamera.h>
#include <aravis/aravisframe.h>
#include <aravis/aravisstream.h>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    auto camera = Aravis::AravisCamera::open(app.arguments().value(1));
    if (!camera)
        return 1;
    Aravis::AravisStream stream(*camera);
    QObject::connect(&stream, &Aravis::AravisStream::frameReady, &app, [](const Aravis::AravisFrame& frame) {
        qInfo("%d x %d %s", frame.width(), frame.height(), qPrintable(frame.pixelFormat()));
        QCoreApplication::quit();
    });
    if (!stream.start())
        return 1;
    app.exec();
    return int(stream.statistics().lost());
}
]=])
    set(ENV{PKG_CONFIG_PATH} "${prefix}/lib/pkgconfig")
    run(pkg-config --cflags --libs ZarvexAravis${NAME_SUFFIX})
    string(STRIP "${last_output}" flags)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run(c++ -std=c++17 -fPIC "${WORK_DIR}/stream-host.cpp" ${flags} -o "${WORK_DIR}/stream-host")
    message(STATUS "a host streams through the installed Aravis component with its pkg-config module alone")
endif()

if(NOT EXAMPLES_DIR)
    return()
endif()

# The examples through the CMake package, as a host builds them.
run(${CMAKE_COMMAND} -S "${EXAMPLES_DIR}" -B "${WORK_DIR}/examples-cmake"
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release -DZVC_PACKAGE=${PACKAGE})
run(${CMAKE_COMMAND} --build "${WORK_DIR}/examples-cmake")
set(examples simulated two-cameras)
if(WITH_ARAVIS)
    list(APPEND examples minimal)
endif()
foreach(example IN LISTS examples)
    if(NOT EXISTS "${WORK_DIR}/examples-cmake/${example}/${example}")
        message(FATAL_ERROR "the example ${example} was not built through the CMake package")
    endif()
endforeach()

# ... and through pkg-config: a component's module brings the library's.
foreach(example IN LISTS examples)
    if(example STREQUAL "minimal")
        set(module ZarvexAravis${NAME_SUFFIX})
    else()
        set(module ZarvexSimulation${NAME_SUFFIX})
    endif()
    run(pkg-config --cflags --libs ${module})
    string(STRIP "${last_output}" flags)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run(c++ -std=c++17 -fPIC "${EXAMPLES_DIR}/${example}/main.cpp" ${flags} -o "${WORK_DIR}/${example}-pkgconfig")
endforeach()
message(STATUS "examples built through the CMake package and through pkg-config: ${examples}")

# The simulated examples start and keep running until stopped (they have no
# camera to wait for): a crash or an early exit fails the check.
foreach(example simulated two-cameras)
    foreach(binary "${WORK_DIR}/examples-cmake/${example}/${example}" "${WORK_DIR}/${example}-pkgconfig")
        execute_process(COMMAND "${binary}" TIMEOUT 3 RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
        if(NOT result MATCHES "timeout")
            message(FATAL_ERROR "${binary} ended by itself (${result}) instead of running\n${out}\n${err}")
        endif()
    endforeach()
endforeach()
message(STATUS "simulated and two-cameras run")
