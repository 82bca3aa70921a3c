#compdef zarn-cli
# zsh completion for zarn-cli: the program itself tells what may follow, so that this is never out of date.

_zarn_cli()
{
    local line candidate
    local -a candidates descriptions typed
    typed=("${(@Q)words[2,CURRENT]}")
    for line in "${(@f)$("${(Q)words[1]}" --complete "${typed[@]}" 2>/dev/null)}"; do
        candidate=${line%%$'\t'*}
        case $candidate in
            '') ;;
            :files) _files ;;
            :folders) _files -/ ;;
            *=) compadd -S '' -- "$candidate" ;;
            *)
                candidates+=("$candidate")
                descriptions+=("${line/$'\t'/ -- }")
                ;;
        esac
    done
    (($#candidates)) && compadd -l -d descriptions -a candidates
}

_zarn_cli "$@"
