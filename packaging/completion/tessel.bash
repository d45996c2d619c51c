# shellcheck shell=bash
# What bash proposes behind tessel.
_tessel()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "-N: -D: --log -h --help --version" -- "$current")
        # The device or the number follows at once.
        if [[ ${COMPREPLY[0]-} == *: ]]; then
            compopt -o nospace 2>/dev/null
        fi
        return 0
    fi
    compopt -o filenames 2>/dev/null
    if [ "$previous" = --log ]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -f -o plusdirs -X '!*.tessel' -- "$current")
    fi
}

complete -F _tessel tessel
