# Sourced by ./run, ./test and .ci/run: installs what is missing on a Debian 12 machine, then builds.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-base-private-dev
    libgtest-dev libbenchmark-dev nlohmann-json3-dev rapidjson-dev
    fonts-liberation fonts-dejavu-core)
test_packages=(xvfb xauth file)
package_packages=(dpkg-dev file)
check_packages=(clang clang-format clang-tidy libclang-rt-14-dev)
# With these the tests look at what others make of the documents; without them they skip that.
document_packages=(texlive-latex-base chromium)
picture_packages=(xvfb xauth openbox xdotool imagemagick)
wasm_packages=(emscripten nodejs)

# install_missing PACKAGE...: leaves at once when all are there.
install_missing() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Please install as root: apt-get install ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]} ..." >&2
    "${as_root[@]}" apt-get update -qq >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build PRESET [TARGET...]: configures once, then builds what has changed. Quiet unless it fails.
build() {
    local preset=$1 log
    shift
    log=$(mktemp)
    # shellcheck disable=SC2064
    trap "rm -f '$log'" RETURN
    cd "$root" || return 1
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
    fi
    echo "Building ($preset) ..." >&2
    cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}
