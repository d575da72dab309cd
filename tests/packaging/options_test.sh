#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The manual and the completions know the options of --help, and no others.
# Usage: options_test.sh SOURCE BUILD
set -euo pipefail
# shellcheck source=tests/packaging/expect.sh
source "$(dirname "$0")/expect.sh"

resources=$1/resources
program=$2/quillon

# options: those in the text on standard input, one a line.
options() {
    grep -oE -- '(^|[^[:alnum:]-])-(-[a-z][a-z-]*|[a-z])\>' | sed 's/^[^-]*//' | sort -u
}

known=$("$program" --help | grep -E '^ +-' | sed -E 's/^( *-[^ ]+( -[^ ]+)?).*/\1/' | options)
expect '--help shows options' "$(grep -cx -- '--help\|--print\|--query' <<<"$known")" 3

for page in quillon.1 quillon.fr.1; do
    expect "$page knows the options" \
        "$(sed -n '/^\.SH OPTIONS/,/^\.SH "/{s/\\-/-/g; s/\\f[A-Z]//g; /^\.TP/{n; p}}' "$resources/man/$page.in" |
            sed -n 's/\\-/-/g; s/\\f[A-Z]//g; p' | options)" "$known"
done
expect 'bash completes the options' \
    "$(grep -A 3 -- "compgen -W '-" "$resources/completions/quillon.bash" | sed 's/.*-W//; s/ -- .*//' | options)" "$known"
expect 'zsh completes the options' \
    "$(sed -E "s/\[.*//; s/[{},()']/ /g" "$resources/completions/_quillon" | grep -v '^#' |
        sed 's/_arguments.*//; s/(.*)//' | options)" "$known"
expect 'fish completes the options' \
    "$(sed -nE 's/^complete -c quillon( -s ([a-z]))?( -l ([a-z-]+))?.*/-\2 --\4/p' \
        "$resources/completions/quillon.fish" | options)" "$known"

finish
