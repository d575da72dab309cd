#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The version stands in CMakeLists.txt; everything else bears the same. Usage: version_test.sh
# SOURCE BUILD
set -euo pipefail
# shellcheck source=tests/packaging/expect.sh
source "$(dirname "$0")/expect.sh"

source=$1
build=$2
version=$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' "$source/CMakeLists.txt")

expect 'the program says it' "$("$build/quillon" --version)" "Quillon $version"
expect 'the newest release of the change log is it' \
    "$(sed -nE 's/^## ([0-9].*) \([0-9]{4}-[0-9]{2}-[0-9]{2}\)$/\1/p' "$source/CHANGELOG.md" | head -n 1)" \
    "$version"
expect 'the newest release of the metainfo is it' \
    "$(sed -nE 's/.*<release version="([^"]*)".*/\1/p' "$build/org.quillon.Quillon.metainfo.xml" |
        head -n 1)" "$version"
expect 'the manual bears it' \
    "$(sed -nE 's/^\.TH .* "Quillon ([^"]*)".*/\1/p' "$build/quillon.1" "$build/quillon.fr.1" | uniq)" \
    "$version"
expect 'the packages bear it' \
    "$("$source/packaging/debian-changelog" "$source/CHANGELOG.md" 'A <a@b.c>' |
        sed -nE '1s/^quillon \((.*)~deb[0-9]*\).*/\1/p')" "$version"
expect 'the change log has the releases and what is to come' \
    "$(grep '^## ' "$source/CHANGELOG.md" | grep -vcE '^## (Unreleased|[0-9.]+ \([0-9-]+\))$')" 0

finish
