#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# What `cmake --install` puts where, and that it works there. Usage: install_test.sh SOURCE BUILD
set -euo pipefail
# shellcheck source=tests/packaging/expect.sh
source "$(dirname "$0")/expect.sh"

source=$1
build=$2
log=$source/tests/data/wordpress-excerpt.log
service=share/dbus-1/services/org.quillon.Quillon.service

mkdir -m 700 "$work/run"

# opened_by PROGRAM: the two lines by which a window's process tells that it is up; then it is ended.
opened_by() {
    local line
    coproc window {
        exec env --unset=DBUS_SESSION_BUS_ADDRESS --unset=WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen \
            XDG_RUNTIME_DIR="$work/run" XDG_CONFIG_HOME="$work/config" "$1" "$log" 2>&1
    }
    for _ in first second; do
        if IFS= read -r -t 120 -u "${window[0]}" line; then printf '%s\n' "$line"; fi
    done
    # shellcheck disable=SC2154 # The shell sets it.
    kill "$window_PID" 2>/dev/null || true
    wait "$window_PID" 2>/dev/null || true
}

succeed 'installing' sh -c "cmake --install '$build' --prefix '$work/first' >'$work/install.log'"
expect 'the service names the installed program' \
    "$(sed -n 's/^Exec=//p' "$work/first/$service")" "$work/first/bin/quillon"
expect 'the installed program prints' \
    "$("$work/first/bin/quillon" --print "$log" | wc -l)" "$("$build/quillon" --print "$log" | wc -l)"

greeting="📂 Ouverture de 1 fichier(s)
📂 Fichier: wordpress-excerpt.log"
expect 'the installed program opens its window' "$(opened_by "$work/first/bin/quillon")" "$greeting"

# Not so where the module is beside the program, or part of it.
mkdir "$work/elsewhere"
mv "$work/first" "$work/elsewhere/moved"
expect 'a program that was moved with its prefix opens its window' \
    "$(opened_by "$work/elsewhere/moved/bin/quillon")" "$greeting"

succeed 'installing below DESTDIR' \
    sh -c "DESTDIR='$work/stage' cmake --install '$build' --prefix /opt/quillon >'$work/install.log'"
expect 'the service does not name DESTDIR' \
    "$(sed -n 's/^Exec=//p' "$work/stage/opt/quillon/$service")" /opt/quillon/bin/quillon
expect 'nothing is installed beside the prefix' "$(ls -A "$work/stage" "$work/stage/opt")" \
    "$work/stage:
opt

$work/stage/opt:
quillon"

succeed 'installing where the path has a space' \
    sh -c "cmake --install '$build' --prefix '$work/two words' >'$work/install.log'"
expect 'the service quotes a path with a space' \
    "$(sed -n 's/^Exec=//p' "$work/two words/$service")" "\"$work/two words/bin/quillon\""

finish
