#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The files that desktops, shells and readers use, as their own tools judge them.
# Usage: files_test.sh SOURCE BUILD
set -euo pipefail
# shellcheck source=tests/packaging/expect.sh
source "$(dirname "$0")/expect.sh"

resources=$1/resources
build=$2
metainfo=$build/org.quillon.Quillon.metainfo.xml

succeed 'the desktop entry is valid' \
    desktop-file-validate "$resources/org.quillon.Quillon.desktop"
said=$(appstreamcli validate --pedantic --no-net --no-color "$metainfo" 2>&1) || fail "$said"
# The program's name on the session bus has an upper-case letter, and the id must be the same. Before
# version 1 the tool did not know the element that it wants since.
expect 'the metainfo is valid' "$(grep '^[EWIP]:' <<<"$said" |
    grep -vE 'cid-contains-uppercase-letter|unknown-tag developer')" ''

succeed "the bundle's description is whole" python3 - "$build/Info.plist" <<'INSIDE'
import plistlib, sys

with open(sys.argv[1], "rb") as file:
    bundle = plistlib.load(file)
assert bundle["CFBundleIdentifier"] == "org.quillon.Quillon", bundle
assert bundle["CFBundleDevelopmentRegion"] == "fr", bundle
assert bundle["CFBundleDocumentTypes"][0]["CFBundleTypeRole"] == "Viewer", bundle
assert "@" not in bundle["CFBundleShortVersionString"], bundle
INSIDE

for page in quillon.1 quillon.fr.1; do
    succeed "$page is well written" mandoc -T lint -W style "$build/$page"
    succeed "$page is well written, says the other tool" \
        sh -c "LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l '$build/$page' 2>&1 >/dev/null"
done

succeed 'the completion is good bash' bash -n "$resources/completions/quillon.bash"
succeed 'the completion is good zsh' zsh -n "$resources/completions/_quillon"
succeed 'the completion is good fish' fish --no-execute "$resources/completions/quillon.fish"

# completed LINE: what bash offers at the end of the line.
completed() {
    # shellcheck disable=SC2016 # For the shell inside.
    env --ignore-environment PATH="$PATH" HOME="$work" bash --norc --noprofile -c '
        source /usr/share/bash-completion/bash_completion
        source "$1"
        read -r -a COMP_WORDS <<<"$2"
        if [[ $2 == *" " ]]; then COMP_WORDS+=(""); fi
        COMP_LINE=$2 COMP_POINT=${#2} COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
        _quillon
        printf "%s\n" "${COMPREPLY[@]}"' bash "$resources/completions/quillon.bash" "$1" 2>/dev/null
}

touch "$work/debug.log" "$work/php.log"
cd "$work"
expect 'bash completes an option' "$(completed 'quillon --only')" --only-errors
expect 'bash completes a file name' "$(completed 'quillon --print d')" debug.log
expect 'bash completes the second severity of a list' \
    "$(completed 'quillon --print --hide notice,w')" notice,warning
expect 'fish completes a file name after an option' \
    "$(HOME=$work fish --no-config -c "source '$resources/completions/quillon.fish'
        complete -C 'quillon --print p'" 2>/dev/null | cut -f 1)" php.log

finish
