# shellcheck shell=bash disable=SC2154 # self is what reads this
# Read by every script, which has put its own path into `self`: with --help or -h the script prints
# the comment at its head, which says what it is for, and starts nothing.

head_comment() {
    sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$self"
}

# For a script that is called wrongly, with what is wrong.
usage() {
    printf '%s\n' "${self##*/}: ${1-an argument is missing}" "$0 --help says how it is called" >&2
    exit 64
}

unknown() {
    usage "$1: unknown"
}

# For names, where options have come before.
refuse_options() {
    local name
    for name; do
        case $name in -*) usage "$name: unknown here" ;; esac
    done
}

case ${1-} in
    -h | --help)
        head_comment
        exit
        ;;
esac
