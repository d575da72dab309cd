# SPDX-License-Identifier: MIT
# For tests that are scripts: a folder of their own, $work, and what they expect. To be sourced.
# shellcheck shell=bash
failures=0
work=$(mktemp -d --tmpdir quillon.XXXX)
trap 'rm -rf "$work"' EXIT

# fail WHAT: says so, and lets the test fail at its end.
fail() {
    echo "FAILED: $1" >&2
    failures=$((failures + 1))
}

# expect WHAT ACTUAL EXPECTED
expect() {
    if [[ $2 != "$3" ]]; then
        fail "$1"
        diff <(printf '%s\n' "$3") <(printf '%s\n' "$2") >&2 || true
    fi
}

# succeed WHAT COMMAND…: expects success and silence.
succeed() {
    local what=$1 said
    shift
    if ! said=$("$@" 2>&1) || [[ -n $said ]]; then
        fail "$what: $* says: $said"
    fi
}

# finish: to be called last; gives the test's status.
finish() {
    [[ $failures -eq 0 ]]
}
