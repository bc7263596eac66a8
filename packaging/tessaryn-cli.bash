# Completion of tessaryn-cli in bash. Commands and options are those that its own help names.
# shellcheck shell=bash

_tessaryn_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]}
    local help words ending
    help=$("${COMP_WORDS[0]}" --help 2>/dev/null) || return
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ] || [ "$command" = help ]; then
        words="--help --version help $(sed -n 's/.*tessaryn-cli \([a-z][a-z]*\).*/\1/p' <<<"$help")"
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current" | sort -u)
        return
    fi
    if [[ $current == -* ]]; then
        words=$(grep -E "tessaryn-cli $command( |\$)" <<<"$help" | grep -oE -- '--[a-z][a-z-]*')
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current" | sort -u)
        return
    fi
    compopt -o filenames 2>/dev/null
    case ${COMP_WORDS[COMP_CWORD - 1]} in
        --library | --rests-on | --settings) ending=/ ;;
        *) case $command in
            run) ending=.script ;;
            grade) ending= ;;
            *) ending=.proof ;;
        esac ;;
    esac
    mapfile -t COMPREPLY < <(compgen -d -- "$current"
        [ "$ending" = / ] || compgen -f -X "!*$ending" -- "$current" | while read -r file; do
            [ -d "$file" ] || echo "$file"
        done)
}
complete -F _tessaryn_cli tessaryn-cli
