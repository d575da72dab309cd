#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The links of the documents lead somewhere, and the commands of README.md run.
# Usage: readme_test.sh SOURCE BUILD
set -euo pipefail
# shellcheck source=tests/packaging/expect.sh
source "$(dirname "$0")/expect.sh"

source=$1
build=$2

# anchors FILE: what headings can be linked to as.
anchors() {
    sed -n 's/^#\+ //p' "$1" | tr '[:upper:] ' '[:lower:]-' | tr -cd 'a-z0-9\n_-'
}

follow() {
    local document=$1 link=$2 file anchor=
    case $link in
    http://* | https://*) return ;; # A test needs no network.
    esac
    file=$(dirname "$document")/${link%%#*}
    if [[ $link == *'#'* ]]; then anchor=${link#*#}; fi
    if [[ $link == '#'* ]]; then file=$document; fi
    [[ -e $file ]] || fail "$document links to $link, which is not there"
    if [[ -n $anchor ]] && ! anchors "$file" | grep -qx -- "$anchor"; then
        fail "$document links to $link; there is no such heading"
    fi
}

links=0
for document in "$source"/*.md "$source"/docs/*.md; do
    while IFS= read -r link; do
        follow "$document" "$link"
        links=$((links + 1))
    done < <(grep -oE '\]\([^) ]+\)' "$document" | sed 's/^](//; s/)$//')
done
[[ $links -gt 10 ]] || fail "only $links links were found"
for document in "$source"/docs/*.md; do
    grep -qF "(docs/$(basename "$document"))" "$source/README.md" ||
        fail "README.md does not link to $document"
done

# The commands, in a folder with a log.
cd "$work"
cp "$source/tests/data/wordpress-excerpt.log" debug.log
export PATH=$build:$PATH XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/run
mkdir -m 700 run
unset DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY
export QT_QPA_PLATFORM=offscreen

# starts COMMAND: whether it writes a line; then it is ended, as it would go on.
starts() {
    local line=
    coproc started { exec bash -c "exec $1" 2>&1; }
    IFS= read -r -t 120 -u "${started[0]}" line || true
    # shellcheck disable=SC2154 # The shell sets it.
    kill "$started_PID" 2>/dev/null || true
    wait "$started_PID" 2>/dev/null || true
    [[ -n $line && $line != quillon:* ]]
}

run=0
try() {
    local command=$1
    case $command in
    *sudo* | ssh\ * | docker\ * | *'| quillon '*) return ;; # What only another machine has.
    cmake\ *) return ;;                                     # The test of the installation.
    script/*)
        # They build; that they are there, and shell, is what can be seen at once.
        bash -n "$source/${command%% *}" || fail "$command"
        [[ -x $source/${command%% *} ]] || fail "$command cannot be run"
        ;;
    *--follow* | quillon\ -pf*) starts "${command//\/var\/www\/html\/wp-content\//}" || fail "$command" ;;
    quillon\ -p*)
        bash -c "set -o pipefail; $command" >out 2>errors || fail "$command says $(cat errors)"
        [[ -s out ]] || fail "$command writes nothing"
        ;;
    *) fail "this test does not know how to try: $command" ;;
    esac
    run=$((run + 1))
}

# shellcheck disable=SC2016 # The quotes are those of a document.
while IFS= read -r command; do
    if [[ -n $command ]]; then try "$command"; fi
done < <(sed -n '/^```sh$/,/^```$/{/^```/d; s/ *#.*//; p}' "$source/README.md")
[[ $run -gt 8 ]] || fail "only $run commands were tried"

finish
