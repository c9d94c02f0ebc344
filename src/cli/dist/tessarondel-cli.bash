# bash completion for tessarondel-cli: the options, the base names after
# --base and directories after --functions. Expressions are free text.
_tessarondel_cli() {
    local cur prev
    cur=${COMP_WORDS[COMP_CWORD]}
    prev=${COMP_WORDS[COMP_CWORD-1]}
    case $prev in
        --base)
            mapfile -t COMPREPLY < <(compgen -W 'bin oct dec hex' -- "$cur")
            return ;;
        --functions)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$cur")
            return ;;
        --round)
            return ;;
    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--round --base --complement --functions --no-history --json --help --version --' -- "$cur")
    fi
}
complete -F _tessarondel_cli tessarondel-cli
