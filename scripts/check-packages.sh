#!/usr/bin/env bash
# Makes the Debian packages of the library and checks them, without installing
# anything into the system: for each Qt version it configures a library-only
# build in build-deb<5|6>/, runs `cpack -G DEB`, checks the packages' fields
# and file lists, unpacks them with `dpkg-deb -x` into a scratch root
# (build-deb-check/root/), and builds and runs the host of tests/install/
# against that root through the CMake package and through pkg-config.
# With both Qt versions, both unpack into the same root and must share no file.
#   scripts/check-packages.sh          Qt 6, then Qt 5, and that they install side by side
#   scripts/check-packages.sh --qt6    Qt 6 only
#   scripts/check-packages.sh --qt5    Qt 5 only
# lintian (installed by the set-up) checks the packages too; any error or warning fails.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

case "${1:-}" in
    "") qt_versions=(6 5) ;;
    --qt6) qt_versions=(6) ;;
    --qt5) qt_versions=(5) ;;
    *)
        echo "usage: $0 [--qt6 | --qt5]" >&2
        exit 2
        ;;
esac

setup_arguments=(dpkg-dev file lintian)
for qt in "${qt_versions[@]}"; do
    if [ "$qt" = 6 ]; then
        setup_arguments+=(--qt6)
    fi
done
"$root/scripts/setup.sh" "${setup_arguments[@]}"

version=$(sed -n 's/^ *VERSION \([0-9][0-9.]*\)$/\1/p' "$root/CMakeLists.txt" | head -n 1)
soversion=${version%%.*}
arch=$(dpkg --print-architecture)
work="$root/build-deb-check"
scratch="$work/root"
rm -rf "$work"
mkdir -p "$scratch"

launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

fail() {
    echo "FAILED: $*" >&2
    exit 1
}
ok() {
    echo "ok: $*"
}

# The regular files and links of a package, as paths under /, sorted.
package_files() {
    dpkg-deb -c "$1" | awk '$1 !~ /^d/ { sub(/^\.\//, "/", $6); print $6 }' | sort
}

check_qt() {
    local qt=$1
    local name lib runtime devel qt_dev qt_lib_pattern
    if [ "$qt" = 5 ]; then
        name=ZarvexViewerComponents
        runtime=libzarvexviewercomponents$soversion
        devel=libzarvexviewercomponents-dev
        qt_dev=qtbase5-dev
        qt_lib_pattern='libqt5%s5[a-z0-9]*'
    else
        name=ZarvexViewerComponentsQt6
        runtime=libzarvexviewercomponentsqt6-$soversion
        devel=libzarvexviewercomponentsqt6-dev
        qt_dev=qt6-base-dev
        qt_lib_pattern='libqt6%s6[a-z0-9]*'
    fi
    lib=lib$name.so

    echo "=== Qt $qt: $runtime, $devel ==="
    local build="$root/build-deb$qt"
    cmake -S "$root" -B "$build" -G Ninja "${launcher[@]}" \
        -DZVC_QT_MAJOR_VERSION="$qt" -DCMAKE_INSTALL_PREFIX=/usr \
        -DZVC_BUILD_TESTS=OFF -DZVC_BUILD_VIEWER=OFF -DZVC_BUILD_ARAVIS=OFF \
        -DZVC_BUILD_BENCHMARKS=OFF -DZVC_BUILD_DOCS=OFF >/dev/null
    cmake --build "$build" --target ZarvexViewerComponents --parallel "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}"
    rm -rf "$build/packages"
    (cd "$build" && cpack -G DEB >/dev/null)

    local libdir
    libdir=$(sed -n 's/^CMAKE_INSTALL_LIBDIR:[A-Z]*=//p' "$build/CMakeCache.txt")
    local runtime_deb="$build/packages/${runtime}_${version}_${arch}.deb"
    local devel_deb="$build/packages/${devel}_${version}_${arch}.deb"
    [ -f "$runtime_deb" ] || fail "no $runtime_deb"
    [ -f "$devel_deb" ] || fail "no $devel_deb"
    local count
    count=$(find "$build/packages" -maxdepth 1 -name '*.deb' | wc -l)
    [ "$count" = 2 ] || fail "cpack made $count packages instead of 2: $(ls "$build/packages")"
    ok "packages $(basename "$runtime_deb") and $(basename "$devel_deb")"

    # Control fields.
    [ "$(dpkg-deb -f "$runtime_deb" Package)" = "$runtime" ] || fail "$runtime_deb: wrong Package field"
    [ "$(dpkg-deb -f "$devel_deb" Package)" = "$devel" ] || fail "$devel_deb: wrong Package field"
    [ "$(dpkg-deb -f "$runtime_deb" Version)" = "$version" ] || fail "$runtime_deb: Version is not $version"
    [ "$(dpkg-deb -f "$runtime_deb" Section)" = libs ] || fail "$runtime_deb: Section is not libs"
    [ "$(dpkg-deb -f "$devel_deb" Section)" = libdevel ] || fail "$devel_deb: Section is not libdevel"
    [ -n "$(dpkg-deb -f "$runtime_deb" Maintainer)" ] || fail "$runtime_deb: no Maintainer"
    local depends module
    depends=$(dpkg-deb -f "$runtime_deb" Depends)
    for module in core gui widgets network xml; do
        # shellcheck disable=SC2059 # the pattern is the format
        printf ", %s, " "$depends" | grep -Eq ", $(printf "$qt_lib_pattern" "$module") " \
            || fail "$runtime depends on no Qt $qt ${module} library: $depends"
    done
    printf ", %s, " "$depends" | grep -Eq ', libstdc\+\+6 ' || fail "$runtime does not depend on libstdc++6: $depends"
    ok "$runtime Depends: $depends"
    depends=$(dpkg-deb -f "$devel_deb" Depends)
    printf ", %s, " "$depends" | grep -Fq ", $runtime (= $version), " \
        || fail "$devel does not depend on $runtime (= $version): $depends"
    printf ", %s, " "$depends" | grep -Eq ", $qt_dev( |,)" || fail "$devel does not depend on $qt_dev: $depends"
    ok "$devel Depends: $depends"
    local control="$work/control-$runtime"
    dpkg-deb -e "$runtime_deb" "$control"
    grep -Fxq "lib$name $soversion $runtime (>= $version)" "$control/shlibs" \
        || fail "$runtime: shlibs is $(cat "$control/shlibs")"
    grep -Fxq "activate-noawait ldconfig" "$control/triggers" || fail "$runtime: no ldconfig trigger"
    ok "$runtime shlibs: $(cat "$control/shlibs")"

    # File lists: the runtime package has the library and its documents and
    # nothing else; everything else belongs to the development package.
    package_files "$runtime_deb" >"$work/files-$runtime"
    package_files "$devel_deb" >"$work/files-$devel"
    local expected_runtime
    expected_runtime=$(printf '%s\n' \
        "/usr/$libdir/$lib.$soversion" \
        "/usr/$libdir/$lib.$version" \
        "/usr/share/doc/$runtime/changelog.gz" \
        "/usr/share/doc/$runtime/copyright" \
        "/usr/share/lintian/overrides/$runtime" | sort)
    [ "$(cat "$work/files-$runtime")" = "$expected_runtime" ] \
        || fail "$runtime holds:"$'\n'"$(cat "$work/files-$runtime")"$'\n'"instead of:"$'\n'"$expected_runtime"
    local file
    for file in \
        "/usr/$libdir/$lib" \
        "/usr/$libdir/cmake/$name/${name}Config.cmake" \
        "/usr/$libdir/cmake/$name/${name}ConfigVersion.cmake" \
        "/usr/$libdir/cmake/$name/${name}Targets.cmake" \
        "/usr/$libdir/pkgconfig/$name.pc" \
        "/usr/include/$name/zarvexviewercomponents_export.h" \
        "/usr/include/$name/parameters/iparametercollection.h" \
        "/usr/include/$name/featuretree/featuretreewidget.h" \
        "/usr/include/$name/messages/asyncerrorqueue.h" \
        "/usr/include/$name/network/ipaddresswidget.h" \
        "/usr/include/$name/camerasettings/camerasettings.h" \
        "/usr/share/doc/$devel/changelog.gz" \
        "/usr/share/doc/$devel/copyright"; do
        grep -Fxq "$file" "$work/files-$devel" || fail "$devel lacks $file"
    done
    local stray
    stray=$(grep -Ev "^(/usr/include/$name/|/usr/$libdir/cmake/$name/|/usr/$libdir/pkgconfig/$name\.pc$|/usr/$libdir/$lib$|/usr/share/doc/$devel/)" \
        "$work/files-$devel" || true)
    [ -z "$stray" ] || fail "$devel holds files out of place:"$'\n'"$stray"
    local headers
    headers=$(grep -c '\.h$' "$work/files-$devel")
    ok "$runtime holds $(wc -l <"$work/files-$runtime") files: the library, its soname link, copyright, changelog, lintian overrides"
    ok "$devel holds $(wc -l <"$work/files-$devel") files: $headers headers, the .so link, the CMake package, $name.pc, copyright, changelog"

    # Unpack. With both Qt versions the second unpacks over the first, which
    # is only safe when they share no file; this is checked at the end.
    dpkg-deb -x "$runtime_deb" "$scratch"
    dpkg-deb -x "$devel_deb" "$scratch"
    local library="$scratch/usr/$libdir/$lib.$version"
    local dynamic
    dynamic=$(readelf -d "$library")
    grep -q "(SONAME).*\[$lib.$soversion\]" <<<"$dynamic" || fail "$library: soname is not $lib.$soversion"
    if grep -Eq '\((RPATH|RUNPATH)\)' <<<"$dynamic"; then
        fail "$library has an rpath"
    fi
    if readelf -S "$library" | grep -q '\.debug_info'; then
        fail "$library is not stripped"
    fi
    ok "$lib.$version: soname $lib.$soversion, no rpath, stripped"

    # The translations travel inside the library as resources.
    local host_dir="$work/qt$qt"
    mkdir -p "$host_dir"
    cat >"$host_dir/translations.cpp" <<'EOF'
#include <messages/asyncerrorqueue.h>
#include <QCoreApplication>
#include <QFile>
#include <cstdio>
int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    GetTheGlobalAsyncErrorQueue(); // a use of the library, so that the linker keeps it
    int missing = 0;
    for (const char* language : {"en", "ja", "ko", "zh"}) {
        const QString qm = QStringLiteral(":/translation/ZarvexViewerComponents_%1.qm").arg(QLatin1String(language));
        if (!QFile::exists(qm)) {
            std::printf("missing %s\n", qPrintable(qm));
            ++missing;
        }
    }
    return missing;
}
EOF

    export QT_QPA_PLATFORM=offscreen
    export XDG_CONFIG_HOME="$host_dir/xdg-config"
    export XDG_RUNTIME_DIR="$host_dir/xdg-runtime"
    mkdir -m 0700 "$XDG_RUNTIME_DIR"
    local library_path="$scratch/usr/$libdir"

    # The host through the CMake package. It must find the package in the
    # scratch root, not one installed elsewhere on the machine.
    cmake -S "$root/tests/install/consumer" -B "$host_dir/consumer-cmake" -G Ninja "${launcher[@]}" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$scratch/usr" -DZVC_PACKAGE="$name" >/dev/null
    local found
    found=$(sed -n "s/^${name}_DIR:PATH=//p" "$host_dir/consumer-cmake/CMakeCache.txt")
    [ "$found" = "$scratch/usr/$libdir/cmake/$name" ] || fail "the host found $name in $found"
    cmake --build "$host_dir/consumer-cmake" >/dev/null
    local loaded
    loaded=$(LD_LIBRARY_PATH="$library_path" ldd "$host_dir/consumer-cmake/consumer" | awk -v lib="$lib.$soversion" '$1 == lib { print $3 }')
    [ "$loaded" = "$library_path/$lib.$soversion" ] || fail "the host loads $lib.$soversion from '$loaded'"
    local output
    output=$(LD_LIBRARY_PATH="$library_path" "$host_dir/consumer-cmake/consumer") || fail "the CMake-built host failed: $output"
    ok "host built with find_package($name) from $found runs: $output"

    # The host through pkg-config, and the translations check beside it.
    local flags prefix
    prefix=$(PKG_CONFIG_PATH="$library_path/pkgconfig" pkg-config --variable=prefix "$name")
    [ "$(realpath "$prefix")" = "$scratch/usr" ] || fail "$name.pc gives the prefix $prefix"
    flags=$(PKG_CONFIG_PATH="$library_path/pkgconfig" pkg-config --cflags --libs "$name")
    # shellcheck disable=SC2086 # the flags are words
    c++ -std=c++17 -fPIC "$root/tests/install/consumer/main.cpp" $flags -o "$host_dir/consumer-pkgconfig"
    output=$(LD_LIBRARY_PATH="$library_path" "$host_dir/consumer-pkgconfig") || fail "the pkg-config-built host failed: $output"
    ok "host built with pkg-config $name (prefix $(realpath "$prefix")) runs: $output"
    # shellcheck disable=SC2086
    c++ -std=c++17 -fPIC "$host_dir/translations.cpp" $flags -o "$host_dir/translations"
    output=$(LD_LIBRARY_PATH="$library_path" "$host_dir/translations") || fail "translations not in the library: $output"
    ok "the library carries its en, ja, ko and zh translations"

    if command -v lintian >/dev/null; then
        local lint line status=0
        lint=$(lintian --fail-on error,warning "$runtime_deb" "$devel_deb" 2>&1) || status=$?
        # Its note on being run as root, in a container for instance, is no finding.
        lint=$(grep -v 'running with root privileges' <<<"$lint" || true)
        if [ -n "$lint" ]; then
            while IFS= read -r line; do
                echo "    lintian: $line"
            done <<<"$lint"
        fi
        [ "$status" = 0 ] || fail "lintian finds errors or warnings in $runtime_deb or $devel_deb"
        ok "lintian: no error, no warning"
    else
        echo "lintian is not installed: packages not linted (apt-get install lintian)"
    fi
    echo "$runtime $devel" >>"$work/packages"
}

for qt in "${qt_versions[@]}"; do
    check_qt "$qt"
done

if [ "${#qt_versions[@]}" = 2 ]; then
    echo "=== Qt 5 and Qt 6 side by side ==="
    common=$(sort "$work"/files-* | uniq -d)
    [ -z "$common" ] || fail "the Qt 5 and Qt 6 packages share files:"$'\n'"$common"
    ok "no file in common among $(tr '\n' ' ' <"$work/packages")"
fi
echo "All package checks passed in ${SECONDS}s; packages in $(printf 'build-deb%s/packages/ ' "${qt_versions[@]}")"
