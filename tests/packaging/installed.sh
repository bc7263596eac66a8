#!/usr/bin/env bash
# Installs the program into a root of its own and starts it from there: installed.sh BUILD
set -euo pipefail
build=$(realpath "$1")
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
fail() { echo "$*" >&2; exit 1; }

cmake --install "$build" --prefix "$place/usr" >/dev/null
PATH=$place/usr/bin:$PATH
export XDG_CONFIG_HOME=$place/config XDG_STATE_HOME=$place/state QT_QPA_PLATFORM=offscreen
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
share=$place/usr/share

# One version.
for program in tessaryn tessaryn-cli; do
    [ "$($program --version)" = "$program $version" ] || fail "$program is not of version $version"
    head -1 "$share/man/man1/$program.1" | grep -qF "Tessaryn $version" || fail "$program.1"
done
grep -qF "<release version=\"$version\"" "$share/metainfo/tessaryn.metainfo.xml" || fail "metainfo"

# What desktops look for, each by its own checker where there is one.
for size in 16 22 24 32 48 64 128 256; do
    file "$share/icons/hicolor/${size}x$size/apps/tessaryn.png" | grep -q "$size x $size" || fail "icon of $size"
done
check() { ! command -v "$1" >/dev/null || "$@" >"$place/log" 2>&1 || fail "$(cat "$place/log")"; }
check desktop-file-validate "$share/applications/tessaryn.desktop"
check appstreamcli validate --no-net --explain "$share/metainfo/tessaryn.metainfo.xml"
check xmllint --noout "$share/mime/packages/tessaryn.xml" "$share/icons/hicolor/scalable/apps/tessaryn.svg"
magic=$(sed -n 's/.*<match.*value="\([^"]*\)".*/\1/p' "$share/mime/packages/tessaryn.xml")
head -c "${#magic}" "$share/tessaryn/examples/barber.proof" | grep -qxF "$magic" || fail "magic $magic"

# The window comes up with a proof that was installed along, and the command line judges it.
for page in index rule-join; do [ -s "$share/tessaryn/manual/$page.md" ] || fail "no page $page"; done
example=$share/tessaryn/examples/barber.proof
TESSARYN_MEASURE_START=1 timeout 60 tessaryn "$example" 2>&1 | grep -q "first paint" || fail "no window"
tessaryn-cli check "$example" | grep -q ": proved\|: rests on" || fail "the example is not accepted"

# Completion knows each command and each option of the help.
source "$share/bash-completion/completions/tessaryn-cli"
completed() {
    COMP_WORDS=(tessaryn-cli "$@")
    COMP_CWORD=$#
    _tessaryn_cli
    echo "${COMPREPLY[*]}"
}
[ "$(completed gr)" = grade ] || fail "gr completes to $(completed gr)"
[ "$(completed help la)" = latex ] || fail "help la completes to $(completed help la)"
[ "$(completed check --li)" = --library ] || fail "--li completes to $(completed check --li)"
[ "$(completed check "$share/tessaryn/examples/barb")" = "$example" ] || fail "barb is not completed"
