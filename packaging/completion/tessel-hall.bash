# shellcheck shell=bash
# What bash proposes behind tessel-hall.
_tessel_hall()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local options="--hubs --peripherals --base --second-addresses --password --export-polls
        --discovery --discovery-listen --store --fault -h --help --version"
    COMPREPLY=()
    case $previous in
        --store)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$current")
            return
            ;;
        --hubs | --peripherals | --base | --second-addresses | --password | --export-polls | \
            --discovery-listen | --fault)
            return
            ;;
    esac
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
        return
    fi
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -o plusdirs -X '!*.json' -- "$current")
}

complete -F _tessel_hall tessel-hall
