# shellcheck shell=bash disable=SC2154 # self is what reads this
# Read by every script, which has put its own path into `self`: with --help or -h the script prints
# the comment at its head, which says what it is for, and starts nothing.

head_comment() {
    sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$self"
}

# For a script that is called wrongly.
usage() {
    head_comment >&2
    exit 64
}

case ${1-} in
    -h | --help)
        head_comment
        exit
        ;;
esac
