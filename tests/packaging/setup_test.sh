#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# script/setup on machines that this one is not: what it calls is found by PATH, which names a
# folder of stand-ins. Usage: setup_test.sh SOURCE_FOLDER
set -euo pipefail
# shellcheck source=tests/packaging/expect.sh
source "$(dirname "$0")/expect.sh"

# Where an ordinary user can read it.
setup=$work/setup
cp "$1/script/setup" "$setup"
machine=$work/bin

# new_machine [TOOL…]: one that has these tools, each of which does nothing, and succeeds.
new_machine() {
    local tool
    rm -rf "$machine"
    mkdir "$machine"
    ln -s "$(command -v bash)" "$(command -v env)" "$machine"
    for tool in "$@"; do
        printf '#!/bin/sh\n' >"$machine/$tool"
        chmod +x "$machine/$tool"
    done
}

# run_setup USER TASK…: prints what setup says; its status is in the last line.
run_setup() {
    local user=$1 status=0 as=()
    shift
    if [[ $user == ordinary && $EUID -eq 0 ]]; then
        as=("$(command -v setpriv)" --reuid 65534 --regid 65534 --clear-groups)
    fi
    chmod 755 "$work" "$machine"
    env PATH="$machine" "${as[@]}" "$(command -v bash)" "$setup" "$@" 2>&1 || status=$?
    echo "status $status"
}

new_machine apt-get dpkg-query
said=$(run_setup ordinary chroot)
expect 'an ordinary user without sudo is given one whole command' "$said" \
    "setup: an administrator must run: apt-get update --quiet && apt-get install --yes --quiet\
 --no-install-recommends debootstrap ca-certificates
status 1"

new_machine apt-get
printf '#!/bin/sh\nprintf installed\n' >"$machine/dpkg-query"
chmod +x "$machine/dpkg-query"
said=$(run_setup ordinary build test lint)
expect 'nothing is said where all is there' "$said" 'status 0'

new_machine debootstrap
said=$(run_setup ordinary chroot)
expect 'off Debian it says what is needed and goes on where it is there' "$said" \
    "setup: not a Debian machine; needed is the like of: debootstrap ca-certificates
status 0"

new_machine
said=$(run_setup ordinary chroot)
expect 'off Debian it fails where a tool is missing' "$said" \
    "setup: not a Debian machine; needed is the like of: debootstrap ca-certificates
setup: missing: debootstrap
status 1"

new_machine apt-get dpkg-query
said=$(run_setup ordinary nonsense | tail -n 1)
expect 'an unknown task is wrong usage' "$said" 'status 2'

finish
