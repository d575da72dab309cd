# SPDX-License-Identifier: MIT
# Completion of quillon's command line for bash.
# shellcheck shell=bash

_quillon()
{
    # shellcheck disable=SC2034 # The function sets them.
    local cur prev words cword split
    _init_completion -s || return

    case $prev in
        --hide)
            # The last of a list of names separated by commas.
            local list=${cur%"${cur##*,}"}
            compopt -o nospace
            mapfile -t COMPREPLY < <(
                compgen -P "$list" -W 'deprecated warning notice' -- "${cur##*,}")
            return
            ;;
        --color)
            # It takes its value after an equals sign only.
            if $split; then
                mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$cur")
                return
            fi
            ;;
        -q | --query | -n | --lines)
            return
            ;;
    esac

    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '-f --follow -p --print -h --help --version
            -q --query -e --only-errors --hide -n --lines -c --count --no-number
            --color --json --no-runs' -- "$cur")
        return
    fi
    _filedir
}

complete -F _quillon quillon
